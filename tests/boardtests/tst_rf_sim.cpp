// The RF and display screens and `vekto-cli judge|run rf` against the simulated phone: the real
// serial stack and exchange with their timers, one good board and one with dead radios, each
// shared by every test of this file.
#include "ConsoleExchange.h"
#include "Displays.h"
#include "FakeDialogs.h"
#include "QtSerialPort.h"
#include "RFs.h"
#include "RadioEngine.h"
#include "Session.h"
#include "e2e/SimProcess.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QtTest>

namespace {

struct CliRun
{
    int exitCode = -1;
    QByteArray out;
    QString errors;
};

CliRun runCli(const QStringList &args)
{
    QProcess cli;
    cli.start(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli"), args);
    CliRun run;
    if (!cli.waitForFinished(60000)) {
        cli.kill();
        cli.waitForFinished();
        run.errors = QStringLiteral("vekto-cli did not finish");
        return run;
    }
    run.exitCode = cli.exitStatus() == QProcess::NormalExit ? cli.exitCode() : -1;
    run.out = cli.readAllStandardOutput();
    run.errors = QString::fromUtf8(cli.readAllStandardError());
    return run;
}

// The program's side of one connected phone: session, real port, exchange.
struct Link
{
    Session session;
    QtSerialPortLink port;
    ConsoleExchange exchange{session, port};
    FakeDialogs dialogs;
    ScreenContext context{session, exchange, dialogs};

    Link(const QString &config, const QString &model) : session(config)
    {
        session.setModelo(model);
    }
    bool open(const QString &pty)
    {
        if (port.open(pty) != SerialPort::NoError)
            return false;
        session.setConnectionFlag(QStringLiteral("1"));
        return true;
    }
};

} // namespace

class TestRfSim : public QObject
{
    Q_OBJECT

    ConfigCopy m_config;
    SimProcess m_good;
    SimProcess m_dead;
    SimProcess m_silent;

    SimProcess &phone(const QString &profile)
    {
        return profile == QLatin1String("good") ? m_good : profile == QLatin1String("silent") ? m_silent : m_dead;
    }

private slots:
    void initTestCase()
    {
        if (!SimProcess::available() || !QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli")))
            QSKIP("vekto-sim, vekto-cli or Config.vkt was not built");
        QVERIFY(m_config.ok());
        QString error = m_good.start(QStringLiteral("IP 7"), QStringLiteral("good"));
        QVERIFY2(error.isEmpty(), qPrintable(error));
        error = m_dead.start(QStringLiteral("IP 7"), QStringLiteral("dead-radio"));
        QVERIFY2(error.isEmpty(), qPrintable(error));
        error = m_silent.start(QStringLiteral("IP 7"), QStringLiteral("silent"));
        QVERIFY2(error.isEmpty(), qPrintable(error));
    }

    void radios_data()
    {
        QTest::addColumn<QString>("profile");
        QTest::addColumn<bool>("alive");
        QTest::newRow("good board") << "good" << true;
        QTest::newRow("dead radios") << "dead-radio" << false;
    }
    void radios()
    {
        QFETCH(QString, profile);
        QFETCH(bool, alive);
        Link link(m_config.path(), QStringLiteral("IP 7"));
        QVERIFY(link.open(phone(profile).port()));
        RFs screen(link.context);
        auto *frame = screen.findChild<QWidget *>(QStringLiteral("FrameBotoes"));
        for (int radio = 0; radio < RadioEngine::RadioCount; ++radio) {
            screen.findChild<QPushButton *>(QStringLiteral("btOn_%1").arg(radio))->click();
            QVERIFY(!frame->isEnabled());
            QTRY_VERIFY_WITH_TIMEOUT(frame->isEnabled(), 20000);
            const QString status = screen.findChild<QLabel *>(QStringLiteral("lbStatus2"))->text();
            const QString expected = RadioEngine::name(quint8(radio)) +
                                     (alive ? QStringLiteral("\r\nCOMUNICAÇÃO OK") : QStringLiteral("\r\nCOMUNICAÇÃO OFF"));
            QCOMPARE(status, expected);
            const QColor colour = screen.findChild<QLabel *>(RadioEngine::backgroundLabel(quint8(radio)))
                                      ->palette().color(QPalette::Window);
            QCOMPARE(colour, alive ? RadioEngine::PassColour : RadioEngine::FailColour);
            QCOMPARE(link.session.connectionFlag(), QStringLiteral("1"));
        }
        QVERIFY(link.dialogs.shown.isEmpty());
    }

    void backlightLevel()
    {
        Link link(m_config.path(), QStringLiteral("IP 7"));
        QVERIFY(link.open(m_good.port()));
        Displays screen(link.context);
        auto *dados = screen.findChild<QPlainTextEdit *>(QStringLiteral("txtDados"));
        screen.findChild<QSlider *>(QStringLiteral("Slider1"))->setValue(37);
        QTRY_VERIFY_WITH_TIMEOUT(dados->toPlainText().contains(QStringLiteral("backlight level 37")), 20000);
        screen.findChild<QPushButton *>(QStringLiteral("btBl_1"))->click();
        QTRY_VERIFY_WITH_TIMEOUT(dados->toPlainText().contains(QStringLiteral("backlight off")), 20000);
    }

    void runCommand_data()
    {
        QTest::addColumn<QString>("profile");
        QTest::addColumn<QString>("radio");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("verdict");
        QTest::newRow("gps, good") << "good" << "gps" << 0 << "pass";
        QTest::newRow("baseband, good") << "good" << "0" << 0 << "pass";
        QTest::newRow("wifi, dead") << "dead-radio" << "3" << 1 << "fail";
        // A phone that never answers gets no verdict, and that is not a pass either.
        QTest::newRow("bluetooth, silent") << "silent" << "1" << 1 << "none";
    }
    void runCommand()
    {
        QFETCH(QString, profile);
        QFETCH(QString, radio);
        QFETCH(int, exitCode);
        QFETCH(QString, verdict);
        // The silent phone cannot be recognised, so its model is given.
        const QString model = profile == QLatin1String("silent") ? QStringLiteral("IP 7") : QStringLiteral("auto");
        const CliRun run = runCli({"run", "rf", "--port", phone(profile).port(), "--model", model, "--radio", radio,
                                   "--db", m_config.path(), "--json"});
        QVERIFY2(run.exitCode == exitCode, qPrintable(run.errors + QString::fromUtf8(run.out)));
        const QJsonObject report = QJsonDocument::fromJson(run.out).object();
        QCOMPARE(report.value("engine").toString(), QStringLiteral("rf"));
        QCOMPARE(report.value("model").toString(), QStringLiteral("IP 7"));
        const QJsonArray rows = report.value("rows").toArray();
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows.at(0).toObject().value("verdict").toString(), verdict);
        if (verdict == QLatin1String("none"))
            QVERIFY(report.value("status").isNull());
        else
            QVERIFY(report.value("status").toString().endsWith(verdict == QLatin1String("pass") ? "COMUNICAÇÃO OK"
                                                                                                 : "COMUNICAÇÃO OFF"));
    }

};

QTEST_MAIN(TestRfSim)
#include "tst_rf_sim.moc"
