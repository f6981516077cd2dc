// The command-line tool against the simulated phone, run as a user runs it: its output lines and
// exit codes for listing ports, identifying a phone (and giving up on a silent one) and sending
// one command.

#include "SimProcess.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct CliRun
{
    int exitCode = -1;
    QString text;      // standard output as printed
    QStringList lines; // standard output without carriage returns and empty lines
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
    run.text = QString::fromUtf8(cli.readAllStandardOutput());
    run.lines = QString(run.text).remove(u'\r').split(u'\n', Qt::SkipEmptyParts);
    run.errors = QString::fromUtf8(cli.readAllStandardError());
    return run;
}

QString describe(const CliRun &run)
{
    return QStringLiteral("exit %1\n%2\n%3").arg(run.exitCode).arg(run.lines.join(u'\n'), run.errors);
}

} // namespace

class TestCliSim : public QObject
{
    Q_OBJECT

    ConfigCopy m_config;

private slots:
    void init()
    {
        if (!SimProcess::available() || !QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli")))
            QSKIP("vekto-sim, vekto-cli or Config.vkt was not built");
        QVERIFY(m_config.ok());
    }

    void identifyPrintsTheModel_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("modelNumber");
        QTest::newRow("IP 7") << "IP 7" << "A1660";
        QTest::newRow("IP X") << "IP X" << "A1865";
    }

    void identifyPrintsTheModel()
    {
        QFETCH(QString, model);
        QFETCH(QString, modelNumber);
        SimProcess phone;
        const QString started = phone.start(model, QStringLiteral("good"));
        QVERIFY2(started.isEmpty(), qPrintable(started));

        const CliRun run = runCli({QStringLiteral("identify"), QStringLiteral("--port"), phone.port(),
                                   QStringLiteral("--db"), m_config.path()});
        QVERIFY2(run.exitCode == 0, qPrintable(describe(run)));
        QCOMPARE(run.lines.last(), model);
        QVERIFY2(run.lines.contains(QStringLiteral("Model number: ") + modelNumber), qPrintable(describe(run)));
    }

    // A database that cannot be read is said as such, naming the file, not as an unknown model.
    void identifyNamesAnUnreadableDatabase()
    {
        SimProcess phone;
        const QString started = phone.start(QStringLiteral("IP 7"), QStringLiteral("good"));
        QVERIFY2(started.isEmpty(), qPrintable(started));
        const QString notADatabase = QStringLiteral(VEKTO_SOURCE_DIR "/README.md");
        const CliRun run = runCli({QStringLiteral("identify"), QStringLiteral("--port"), phone.port(),
                                   QStringLiteral("--db"), notADatabase});
        QVERIFY2(run.exitCode == 2, qPrintable(describe(run)));
        QVERIFY2(run.errors.contains(QStringLiteral("cannot read the database ") + notADatabase
                                     + QStringLiteral(": file is not a database")),
                 qPrintable(describe(run)));
    }

    void identifyGivesUpOnASilentPhone()
    {
        SimProcess phone;
        const QString started = phone.start(QStringLiteral("IP 7"), QStringLiteral("silent"));
        QVERIFY2(started.isEmpty(), qPrintable(started));

        const CliRun run = runCli({QStringLiteral("identify"), QStringLiteral("--port"), phone.port(),
                                   QStringLiteral("--db"), m_config.path()});
        QVERIFY2(run.exitCode == 1, qPrintable(describe(run)));
        QCOMPARE(run.lines.last(),
                 QStringLiteral("FOLLOW THE STEPS: 1. Start the device in purple mode 2. Close the software of the "
                                "communication Box or Cable 3. Select the COM Port 4. Click Connect 5. If the device "
                                "stopped responding, restart the device and repeat the steps"));
        // The first of the two boxes, before it.
        const qsizetype first = run.lines.indexOf(QStringLiteral("Device not found on the selected COM Port or it is "
                                                                 "not responding. Change the COM Port and try "
                                                                 "again or wait."));
        QVERIFY2(first >= 0 && first < run.lines.size() - 1, qPrintable(describe(run)));
    }

    void sendPrintsTheAnswer()
    {
        SimProcess phone;
        const QString started = phone.start(QStringLiteral("IP 6s Plus"), QStringLiteral("good"));
        QVERIFY2(started.isEmpty(), qPrintable(started));

        const CliRun run = runCli({QStringLiteral("send"), QStringLiteral("--port"), phone.port(),
                                   QStringLiteral("syscfg print RMd#")});
        QVERIFY2(run.exitCode == 0, qPrintable(describe(run)));
        // The console's own line ends, so the saved output is a valid answer file.
        QVERIFY2(run.text.contains(QStringLiteral("A1634\r\n")), qPrintable(describe(run)));
        QCOMPARE(run.lines.value(0), QStringLiteral("syscfg print RMd#"));
        QCOMPARE(run.lines.value(1), QStringLiteral("A1634"));
        QVERIFY2(run.lines.last().endsWith(QStringLiteral("] :-) ")), qPrintable(describe(run)));
    }

    void sendOnASilentPhoneFails()
    {
        SimProcess phone;
        const QString started = phone.start(QStringLiteral("IP 7"), QStringLiteral("silent"));
        QVERIFY2(started.isEmpty(), qPrintable(started));

        const CliRun run = runCli({QStringLiteral("send"), QStringLiteral("--port"), phone.port(),
                                   QStringLiteral("nand --getinfo")});
        QVERIFY2(run.exitCode == 1, qPrintable(describe(run)));
        QVERIFY2(run.errors.contains(QStringLiteral("no answer from ") + phone.port()), qPrintable(describe(run)));
    }

    // What send prints, saved to a file, is an answer the judge takes as the screen would.
    void savedSendJudgesLikeTheScreen()
    {
        SimProcess phone;
        const QString started = phone.start(QStringLiteral("IP 7"), QStringLiteral("good"));
        QVERIFY2(started.isEmpty(), qPrintable(started));
        const CliRun sent = runCli({QStringLiteral("send"), QStringLiteral("--port"), phone.port(),
                                    QStringLiteral("nand --getinfo")});
        QVERIFY2(sent.exitCode == 0, qPrintable(describe(sent)));

        QTemporaryDir dir;
        const QString saved = dir.filePath(QStringLiteral("answer.txt"));
        QFile file(saved);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(sent.text.toUtf8());
        file.close();
        const CliRun judged = runCli({QStringLiteral("judge"), QStringLiteral("compare"), QStringLiteral("--model"),
                                      QStringLiteral("IP 7"), QStringLiteral("--command"),
                                      QStringLiteral("nand --getinfo"), QStringLiteral("--answer"), saved,
                                      QStringLiteral("--db"), m_config.path()});
        QVERIFY2(judged.exitCode == 0, qPrintable(describe(judged)));
        QVERIFY2(judged.text.contains(QStringLiteral("Auto Comparador OK")), qPrintable(describe(judged)));
    }

    // A phone that rejects the first model question is asked again, as the main window does.
    void runAutoAsksAgainAfterARejectedCommand()
    {
        SimProcess phone;
        const QString started = phone.start(QStringLiteral("IP 8"), QStringLiteral("reject-once"));
        QVERIFY2(started.isEmpty(), qPrintable(started));
        const CliRun run = runCli({QStringLiteral("run"), QStringLiteral("vcore"), QStringLiteral("--port"),
                                   phone.port(), QStringLiteral("--model"), QStringLiteral("auto"),
                                   QStringLiteral("--db"), m_config.path(), QStringLiteral("--json")});
        QVERIFY2(run.exitCode == 0, qPrintable(describe(run)));
        const QJsonObject report = QJsonDocument::fromJson(run.text.toUtf8()).object();
        QCOMPARE(report.value(QStringLiteral("model")).toString(), QStringLiteral("IP 8"));
        QCOMPARE(report.value(QStringLiteral("status")).toString(), QStringLiteral("pass"));
    }

    void portsListsTheSimulator()
    {
        SimProcess phone;
        const QString started = phone.start(QStringLiteral("IP 8 Plus"), QStringLiteral("chatty"));
        QVERIFY2(started.isEmpty(), qPrintable(started));

        const CliRun before = runCli({QStringLiteral("ports")});
        QVERIFY2(before.exitCode == 0, qPrintable(describe(before)));
        QVERIFY2(before.lines.contains(phone.port() + QStringLiteral("\tvekto-sim IP 8 Plus (chatty)")),
                 qPrintable(describe(before)));

        // A stopped simulator is no longer offered.
        const QString port = phone.port();
        phone.stop();
        const CliRun after = runCli({QStringLiteral("ports")});
        QVERIFY2(after.exitCode == 0, qPrintable(describe(after)));
        QVERIFY2(!after.lines.contains(port + QStringLiteral("\tvekto-sim IP 8 Plus (chatty)")),
                 qPrintable(describe(after)));
    }
};

QTEST_MAIN(TestCliSim)
#include "tst_cli_sim.moc"
