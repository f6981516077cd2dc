// References learned from the shop's own boards, end to end: three good "IP 7" boards read and
// recorded in the VCore screen over the real serial link, `vekto-cli refs learn`, then a board
// with a low rail read by `vekto-cli run vcore` against what was learned.
#include "ConsoleExchange.h"
#include "FakeDialogs.h"
#include "QtSerialPort.h"
#include "Session.h"
#include "SimProcess.h"
#include "VCores.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

namespace {

struct CliRun
{
    int exitCode = -1;
    QJsonObject json;
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
    run.json = QJsonDocument::fromJson(cli.readAllStandardOutput()).object();
    run.errors = QString::fromUtf8(cli.readAllStandardError());
    return run;
}

QJsonObject rowNamed(const QJsonArray &rows, const QString &name)
{
    for (const QJsonValue &row : rows)
        if (row.toObject().value(QStringLiteral("name")).toString() == name)
            return row.toObject();
    return {};
}

} // namespace

class TestRefsSim : public QObject
{
    Q_OBJECT

private slots:
    void learnedReferenceCatchesTheLowRail()
    {
        if (!SimProcess::available() || !QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli")))
            QSKIP("vekto-sim, vekto-cli or Config.vkt was not built");
        ConfigCopy config;
        QVERIFY(config.ok());
        const QString model = QStringLiteral("IP 7");
        {
            // The simulated good boards are alike: one phone stands in for the three.
            SimProcess good;
            const QString started = good.start(model, QStringLiteral("good"));
            QVERIFY2(started.isEmpty(), qPrintable(started));
            Session session(config.path());
            session.setModelo(model);
            QtSerialPortLink port;
            QCOMPARE(port.open(good.port()), int(SerialPort::NoError));
            ConsoleExchange exchange(session, port);
            FakeDialogs dialogs;
            session.setConnectionFlag(QStringLiteral("1"));
            session.setConnectionValidated(true);
            VCores screen({session, exchange, dialogs});
            for (int slot = 1; slot <= 3; ++slot) {
                screen.ExecutaLeitura();
                QTRY_VERIFY_WITH_TIMEOUT(!screen.readingUnderWay(), 40000);
                screen.gravar(slot);
            }
            QVERIFY2(!dialogs.shown.join(u'\n').contains(QLatin1String("critical")), qPrintable(dialogs.shown.join(u'\n')));
            port.close();
        }

        const QStringList db{QStringLiteral("--db"), config.path(), QStringLiteral("--json")};
        const CliRun learned = runCli(QStringList{QStringLiteral("refs"), QStringLiteral("learn"), QStringLiteral("--model"), model} + db);
        QVERIFY2(learned.exitCode == 0, qPrintable(learned.errors));
        const QJsonObject cpu = rowNamed(learned.json.value(QStringLiteral("rails")).toArray(), QStringLiteral("PP_CPU"));
        QCOMPARE(cpu.value(QStringLiteral("readings")).toInt(), 3);
        QCOMPARE(cpu.value(QStringLiteral("outcome")).toString(), QStringLiteral("learned"));

        const CliRun shown = runCli(QStringList{QStringLiteral("refs"), QStringLiteral("show"), QStringLiteral("--model"), model} + db);
        QVERIFY2(shown.exitCode == 0, qPrintable(shown.errors));
        const QJsonObject origin = rowNamed(shown.json.value(QStringLiteral("rails")).toArray(), QStringLiteral("PP_CPU"))
                                       .value(QStringLiteral("origin")).toObject();
        QCOMPARE(origin.value(QStringLiteral("state")).toString(), QStringLiteral("learned"));
        QCOMPARE(origin.value(QStringLiteral("boards")).toInt(), 3);

        SimProcess low;
        const QString started = low.start(model, QStringLiteral("low-rail"));
        QVERIFY2(started.isEmpty(), qPrintable(started));
        const CliRun judged = runCli(QStringList{QStringLiteral("run"), QStringLiteral("vcore"), QStringLiteral("--port"),
                                                 low.port(), QStringLiteral("--model"), model} + db);
        QVERIFY2(judged.exitCode == 1, qPrintable(judged.errors));
        const QJsonArray rows = judged.json.value(QStringLiteral("rows")).toArray();
        const QJsonObject lowRail = rowNamed(rows, QStringLiteral("PP_CPU"));
        QCOMPARE(lowRail.value(QStringLiteral("verdict")).toString(), QStringLiteral("fail"));
        const double deviation =
            lowRail.value(QStringLiteral("deviation")).toString().remove(QStringLiteral(" %")).replace(u',', u'.').toDouble();
        QVERIFY2(deviation < -10, qPrintable(lowRail.value(QStringLiteral("deviation")).toString()));
        QCOMPARE(rowNamed(rows, QStringLiteral("I_PP_CPU")).value(QStringLiteral("verdict")).toString(), QStringLiteral("pass"));
    }
};

QTEST_MAIN(TestRefsSim)
#include "tst_refs_sim.moc"
