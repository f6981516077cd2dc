// The I2C automatic run end to end against a simulated board that lost one device behind its
// front camera flex: the program as main() wires it, opened from its menu, with the real serial
// link, the exchange's hand-over and the screen's own timers; then the command line on the same
// phone. Both must name the silent device and the connector to check.
#include "DesktopProgram.h"
#include "FakeShell.h"
#include "I2C.h"
#include "Screens.h"
#include "SimProcess.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

namespace {

const QString Model = QStringLiteral("IP 7");
const QString Connector = QStringLiteral("J4503 - Flex Front Camera and Prox. Sensor Cable");
const QString Device = QStringLiteral("x39 - Prox ALS Sensor");

} // namespace

class TestI2CSim : public QObject
{
    Q_OBJECT

    SimProcess m_phone;
    ConfigCopy m_config;

private slots:
    void initTestCase()
    {
        if (!SimProcess::available() || !QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli")))
            QSKIP("vekto-sim, vekto-cli or Config.vkt was not built");
        QVERIFY(m_config.ok());
        const QString started = m_phone.start(Model, QStringLiteral("i2c-missing"));
        QVERIFY2(started.isEmpty(), qPrintable(started));
    }

    void menuScreensThroughTheMainWindow()
    {
        DesktopProgram program(m_config.path());
        FakeShell shell;
        Screens::registerAll(*program.inicial, shell);
        program.preselectOtherModel(Model);
        QVERIFY(program.selectPort(m_phone.port()));
        program.connectButton()->click();
        QTRY_COMPARE_WITH_TIMEOUT(program.modelCombo()->currentText(), Model, 20000);
        QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
        QTRY_VERIFY_WITH_TIMEOUT(!program.connection.timerVerificaVersao().isActive(), 20000);

        // Menu element 9: the automatic run, each answer handed over into the screen's txtDados.
        program.find<QPushButton>("Botoes_9")->click();
        auto *i2c = qobject_cast<I2C *>(program.inicial->screen(QStringLiteral("I2C")));
        QVERIFY(i2c);
        i2c->findChild<QPushButton *>(QStringLiteral("btAutoTeste"))->click();
        QVERIFY(i2c->autoRunning());
        QTRY_VERIFY_WITH_TIMEOUT(!i2c->autoRunning(), 90000);
        const QString failures = i2c->findChild<QPlainTextEdit *>(QStringLiteral("txtDadosI2C"))->toPlainText();
        QVERIFY2(failures.contains(QStringLiteral("I2C 2\n") + Connector + QStringLiteral(" \n") + Device),
                 qPrintable(failures));
        QCOMPARE(failures.count(QStringLiteral("I2C ")), 1);
        auto *log = i2c->findChild<QListWidget *>(QStringLiteral("ListView"));
        QCOMPARE(log->item(log->count() - 1)->text(), QStringLiteral("Teste Finalizados"));
        QCOMPARE(log->findItems(QStringLiteral("COMUNICAÇÃO OFF"), Qt::MatchContains).size(), 1);

        // Menu element 8: the Tristar data dump, handed over into the IC screen's txtDados.
        program.find<QPushButton>("Botoes_8")->click();
        QWidget *ic = program.inicial->screen(QStringLiteral("IC"));
        QVERIFY(ic);
        QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
        ic->findChild<QPushButton *>(QStringLiteral("btBl_1"))->click();
        QTRY_COMPARE_WITH_TIMEOUT(ic->findChild<QLabel *>(QStringLiteral("lbStatus"))->text(),
                                  QStringLiteral("COMUNICAÇÃO OK"), 40000);
        QCOMPARE(ic->findChild<QLabel *>(QStringLiteral("lbIC"))->text(), QStringLiteral("TRISTAR"));
        QVERIFY2(program.dialogs.shown.isEmpty(), qPrintable(program.dialogs.shown.join(u'\n')));
    }

    void commandLineAutoRun()
    {
        QProcess cli;
        cli.start(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli"),
                  {QStringLiteral("run"), QStringLiteral("i2c"), QStringLiteral("--port"), m_phone.port(),
                   QStringLiteral("--model"), QStringLiteral("auto"), QStringLiteral("--db"), m_config.path(),
                   QStringLiteral("--json")});
        QVERIFY(cli.waitForFinished(120000));
        const QString errors = QString::fromUtf8(cli.readAllStandardError());
        QVERIFY2(cli.exitCode() == 1, qPrintable(errors));
        const QJsonObject report = QJsonDocument::fromJson(cli.readAllStandardOutput()).object();
        QCOMPARE(report.value(QStringLiteral("model")).toString(), Model);
        const QJsonObject extra = report.value(QStringLiteral("extra")).toObject();
        QCOMPARE(extra.value(QStringLiteral("buses")).toArray(), (QJsonArray{0, 1, 2, 3, 4}));
        QVERIFY(extra.value(QStringLiteral("failures")).toString().contains(Connector + QStringLiteral(" \n") + Device));
        QCOMPARE(extra.value(QStringLiteral("FrameResultadoOK")).toBool(), false);
        QStringList failed;
        for (const QJsonValue &v : report.value(QStringLiteral("rows")).toArray())
            if (v.toObject().value(QStringLiteral("verdict")).toString() == QLatin1String("fail"))
                failed << v.toObject().value(QStringLiteral("name")).toString();
        QCOMPARE(failed, QStringList{QStringLiteral("x39")});
    }
};

QTEST_MAIN(TestI2CSim)
#include "tst_i2c_sim.moc"
