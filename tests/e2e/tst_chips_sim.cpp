// Each chip screen reads the simulated phone end to end: the pseudo-terminal, the real serial
// link and the exchange with its timers, the hand-over and the painted labels. One low-rail
// "IP 8" board serves Tigris, Tristar, Chestnut and the command line (each sees exactly one
// value out of its band); Acorn, which exists only on "IP X", gets a board of its own.
#include "Acorn.h"
#include "Chestnut.h"
#include "ConsoleExchange.h"
#include "FakeDialogs.h"
#include "QtSerialPort.h"
#include "Session.h"
#include "SimProcess.h"
#include "Tigris.h"
#include "Tristar.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QtTest>
#include <memory>

namespace {

constexpr int Patience = 40000;

std::unique_ptr<ChipScreen> makeScreen(const QString &name, const ScreenContext &context)
{
    if (name == QLatin1String("Tigris"))
        return std::make_unique<Tigris>(context);
    if (name == QLatin1String("Tristar"))
        return std::make_unique<Tristar>(context);
    if (name == QLatin1String("Chestnut"))
        return std::make_unique<Chestnut>(context);
    return std::make_unique<Acorn>(context);
}

} // namespace

class TestChipsSim : public QObject
{
    Q_OBJECT

    std::unique_ptr<SimProcess> m_lowRail;

    // Opens `name` on a connected phone (it reads at once) and waits for the painted result.
    static ChipResult readOn(const QString &port, const QString &model, const QString &name, QStringList *dialogsShown)
    {
        ConfigCopy config;
        Session session(config.path());
        session.setModelo(model);
        QtSerialPortLink link;
        if (link.open(port) != SerialPort::NoError)
            return {};
        ConsoleExchange exchange(session, link);
        FakeDialogs dialogs;
        session.setConnectionFlag(QStringLiteral("1"));
        ChipResult result;
        {
            std::unique_ptr<ChipScreen> screen = makeScreen(name, {session, exchange, dialogs});
            auto *read = screen->findChild<QPushButton *>(QStringLiteral("btExecutaLeitura"));
            if (!read->isEnabled() &&
                QTest::qWaitFor([&] { return read->isEnabled() && session.connectedAndIdle(); }, Patience))
                result = screen->result();
        }
        *dialogsShown = dialogs.shown;
        link.close();
        return result;
    }

private slots:
    void initTestCase()
    {
        if (!SimProcess::available())
            QSKIP("vekto-sim or Config.vkt was not built");
        m_lowRail = std::make_unique<SimProcess>();
        const QString error = m_lowRail->start(QStringLiteral("IP 8"), QStringLiteral("low-rail"));
        QVERIFY2(error.isEmpty(), qPrintable(error));
    }

    void lowRailBoard_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("failing");
        QTest::addColumn<int>("rows");
        QTest::newRow("Tigris") << "Tigris" << "VBus_V" << 10;
        QTest::newRow("Tristar") << "Tristar" << "Malha2_V" << 6;
        QTest::newRow("Chestnut") << "Chestnut" << "iLDO_V(1)" << 11;
    }
    void lowRailBoard()
    {
        QFETCH(QString, screen);
        QFETCH(QString, failing);
        QFETCH(int, rows);
        QStringList dialogs;
        const ChipResult result = readOn(m_lowRail->port(), QStringLiteral("IP 8"), screen, &dialogs);
        QVERIFY2(dialogs.isEmpty(), qPrintable(dialogs.join(u'\n')));
        QCOMPARE(result.readings.size(), rows);
        QStringList failed;
        for (const ChipReading &r : result.readings) {
            QVERIFY2(r.state == ChipReading::State::Read, qPrintable(r.row.control));
            if (r.verdict == Verdict::Fail)
                failed << r.row.control;
        }
        QCOMPARE(failed, QStringList{failing});
    }

    // The live command line on the same board, the model recognised as the connect button does.
    void runOnTheCommandLine()
    {
        QProcess cli;
        cli.start(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli"),
                  {QStringLiteral("run"), QStringLiteral("chestnut"), QStringLiteral("--port"), m_lowRail->port(),
                   QStringLiteral("--model"), QStringLiteral("auto"), QStringLiteral("--db"), SimProcess::shippedConfig(),
                   QStringLiteral("--json")});
        QVERIFY(cli.waitForFinished(Patience));
        const QJsonObject report = QJsonDocument::fromJson(cli.readAllStandardOutput()).object();
        QCOMPARE(cli.exitCode(), 1);
        QCOMPARE(report.value(QStringLiteral("model")).toString(), QStringLiteral("IP 8"));
        const QJsonObject first = report.value(QStringLiteral("rows")).toArray().first().toObject();
        QCOMPARE(first.value(QStringLiteral("name")).toString(), QStringLiteral("iLDO_V(1)"));
        QCOMPARE(first.value(QStringLiteral("verdict")).toString(), QStringLiteral("fail"));
    }

    void acornOnAGoodIpX()
    {
        SimProcess phone;
        const QString error = phone.start(QStringLiteral("IP X"), QStringLiteral("good"));
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QStringList dialogs;
        const ChipResult result = readOn(phone.port(), QStringLiteral("IP X"), QStringLiteral("Acorn"), &dialogs);
        QVERIFY2(dialogs.isEmpty(), qPrintable(dialogs.join(u'\n')));
        QCOMPARE(result.readings.size(), 16);
        QVERIFY(!result.anyFailed());
        QCOMPARE(result.reading(QStringLiteral("M9"))->verdict, Verdict::Pass); // a PMU line of the same answer
    }
};

QTEST_MAIN(TestChipsSim)
#include "tst_chips_sim.moc"
