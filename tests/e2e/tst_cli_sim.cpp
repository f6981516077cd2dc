// The command-line tool against the simulated phone, run as a user runs it: its output and exit
// codes for listing ports, identifying a phone (and giving up on a silent one), sending one
// command and running a judge live.

#include "CliRun.h"
#include "SimProcess.h"

#include <QtTest>

class TestCliSim : public QObject
{
    Q_OBJECT

    ConfigCopy m_config;
    SimPhones m_phones;

private slots:
    void initTestCase()
    {
        if (!SimProcess::available() || !QFile::exists(cliProgram()))
            QSKIP("vekto-sim, vekto-cli or Config.vkt was not built");
        QVERIFY(m_config.ok());
    }

    // PORT and DB in the arguments and texts stand for the phone's port and the database copy.
    void onAPhone_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("profile");
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QStringList>("says"); // each in the output or the errors
        QTest::addColumn<QString>("last");     // how the last output line starts; empty: not checked
        const QStringList identify{"identify", "--port", "PORT", "--db", "DB"};
        const QString readme = QStringLiteral(VEKTO_SOURCE_DIR "/README.md");
        QTest::newRow("identify IP 7") << "IP 7" << "good" << identify << 0 << QStringList{"Model number: A1660"} << "IP 7";
        // A database that cannot be read is said as such, naming the file, not as an unknown model.
        QTest::newRow("identify with an unreadable database")
            << "IP 7" << "good" << QStringList{"identify", "--port", "PORT", "--db", readme} << 2
            << QStringList{"cannot read the database " + readme + ": file is not a database"} << "";
        QTest::newRow("identify gives up on a silent phone")
            << "IP 7" << "silent" << identify << 1 << QStringList{"Device not found on the selected COM Port"}
            << "FOLLOW THE STEPS: 1. Start the device in purple mode";
        // The console's own line ends, so the saved output is a valid answer file.
        QTest::newRow("send") << "IP 6s Plus" << "good" << QStringList{"send", "--port", "PORT", "syscfg print RMd#"} << 0
                              << QStringList{"syscfg print RMd#\r\r\nA1634\r\n"} << "[";
        QTest::newRow("send to a silent phone") << "IP 7" << "silent" << QStringList{"send", "--port", "PORT", "nand --getinfo"}
                                                << 1 << QStringList{"no answer from PORT"} << "";
        // A phone that rejects the first model question is asked again, as the main window does.
        QTest::newRow("run auto asks again after a rejected command")
            << "IP 8" << "reject-once"
            << QStringList{"run", "vcore", "--port", "PORT", "--model", "auto", "--db", "DB", "--json"} << 0
            << QStringList{"\"model\": \"IP 8\"", "\"status\": \"pass\""} << "";
    }
    void onAPhone()
    {
        QFETCH(QString, model);
        QFETCH(QString, profile);
        QFETCH(QStringList, args);
        QFETCH(QStringList, says);
        QFETCH(QString, last);
        SimProcess *phone = m_phones.get(model, profile);
        QVERIFY(phone);
        for (QStringList *list : {&args, &says}) {
            list->replaceInStrings(QStringLiteral("PORT"), phone->port());
            list->replaceInStrings(QStringLiteral("DB"), m_config.path());
        }
        const CliRun run = runCli(args);
        QFETCH(int, exitCode);
        QVERIFY2(run.exitCode == exitCode, qPrintable(run.describe()));
        for (const QString &s : std::as_const(says))
            QVERIFY2(run.text.contains(s) || run.errors.contains(s), qPrintable(s + u'\n' + run.describe()));
        if (!last.isEmpty())
            QVERIFY2(run.lines.value(run.lines.size() - 1).startsWith(last), qPrintable(run.describe()));
    }

    // What send prints, saved to a file, is an answer the judge takes as the screen would.
    void savedSendJudgesLikeTheScreen()
    {
        SimProcess *phone = m_phones.get(QStringLiteral("IP 7"), QStringLiteral("good"));
        QVERIFY(phone);
        const CliRun sent = runCli({"send", "--port", phone->port(), "nand --getinfo"});
        QVERIFY2(sent.exitCode == 0, qPrintable(sent.describe()));
        QTemporaryDir dir;
        const CliRun judged = runCli({"judge", "compare", "--model", "IP 7", "--command", "nand --getinfo", "--answer",
                                      saveAnswer(dir, sent.text.toUtf8()), "--db", m_config.path()});
        QVERIFY2(judged.exitCode == 0, qPrintable(judged.describe()));
        QVERIFY2(judged.text.contains(QStringLiteral("Auto Comparador OK")), qPrintable(judged.describe()));
    }

    void portsListsTheSimulator()
    {
        SimProcess phone;
        const QString started = phone.start(QStringLiteral("IP 8 Plus"), QStringLiteral("chatty"));
        QVERIFY2(started.isEmpty(), qPrintable(started));
        const QString entry = phone.port() + QStringLiteral("\tvekto-sim IP 8 Plus (chatty)");
        const CliRun before = runCli({"ports"});
        QVERIFY2(before.exitCode == 0 && before.lines.contains(entry), qPrintable(before.describe()));
        // A stopped simulator is no longer offered.
        phone.stop();
        const CliRun after = runCli({"ports"});
        QVERIFY2(after.exitCode == 0 && !after.lines.contains(entry), qPrintable(after.describe()));
    }
};

QTEST_MAIN(TestCliSim)
#include "tst_cli_sim.moc"
