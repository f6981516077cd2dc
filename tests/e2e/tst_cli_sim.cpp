// The command-line tool run as a user runs it: its output and exit codes for listing ports,
// identifying a phone (and giving up on a silent one), sending one command and running a judge
// live on the simulated phone; importing a previous installation and checking for an update.

#include "CliRun.h"
#include "Database.h"
#include "DatabaseBuilder.h"
#include "LoopbackHttpServer.h"
#include "SimProcess.h"

#include <QCryptographicHash>
#include <QSqlQuery>
#include <QtTest>

namespace {

bool exec(const QString &path, const QString &sql, const QVariantList &values = {})
{
    Database db(path);
    QSqlQuery q(db.connection());
    if (!q.prepare(sql))
        return false;
    for (const QVariant &v : values)
        q.addBindValue(v);
    return q.exec();
}

QByteArray digest(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256) : QByteArray();
}

} // namespace

class TestCliSim : public QObject
{
    Q_OBJECT

    ConfigCopy m_config;
    SimPhones m_phones;
    QTemporaryDir m_dir;
    QString m_bare;
    QString m_user;

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

    // Import and update check need no phone: a bare database and a user database per test, and
    // the version page served on the loopback address while the command runs.
    void init()
    {
        const QString schema = QStringLiteral(VEKTO_SOURCE_DIR "/data/schema.sql");
        m_bare = m_dir.filePath(QStringLiteral("Config.vkt"));
        m_user = m_dir.filePath(QStringLiteral("User.vkt"));
        QFile::remove(m_bare);
        QFile::remove(m_user);
        QVERIFY(DatabaseBuilder::build(schema, {}, m_bare));
        QVERIFY(exec(m_bare, QStringLiteral("INSERT INTO Tools (Idioma, syncbd, UrlVersao) VALUES ('2', '0', '')")));
        QVERIFY(exec(m_bare, QStringLiteral("INSERT INTO Comandos (Comando) VALUES ('bl -n')")));
        QVERIFY(DatabaseBuilder::build(schema, {}, m_user));
        QVERIFY(exec(m_user, QStringLiteral("INSERT INTO Dados (Aparelho, Comando, Dados) VALUES ('IP 7', 'bl -n', 'x')")));
        QVERIFY(exec(m_user, QStringLiteral("INSERT INTO Comandos (Comando) VALUES ('bl -n'), ('mine')")));
    }

    void importPrintsPerTable()
    {
        const CliRun run = runCli({QStringLiteral("import"), QStringLiteral("--from"), m_user, QStringLiteral("--db"), m_bare});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.lines, (QStringList{"Master\t0 rows: recorded readings copied\t0 rows without counterpart",
                                         "Dados\t1 added\t0 replaced", "Comandos\t1 added\t1 already present",
                                         "Combos\tno row to copy", "Data synchronized successfully!"}));
    }

    void importRefusals_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("says");
        QTest::newRow("no --from") << QStringList{"import"} << 2 << "usage";
        QTest::newRow("not a database, in the database's language") << QStringList{"import", "--from", "@/Config.vkt.txt"}
                                                                    << 2 << "The chosen file is not a database";
    }
    void importRefusals()
    {
        QFETCH(QStringList, args);
        QFile text(m_dir.filePath(QStringLiteral("Config.vkt.txt")));
        QVERIFY(text.open(QIODevice::WriteOnly));
        text.write("Modelo;Malha\n");
        text.close();
        for (QString &a : args)
            a.replace(u'@', m_dir.path());
        const QByteArray before = digest(m_bare);
        const CliRun run = runCli(args + QStringList{QStringLiteral("--db"), m_bare});
        QTEST(run.exitCode, "exitCode");
        QFETCH(QString, says);
        QVERIFY2(run.errors.contains(says), qPrintable(run.errors));
        QCOMPARE(digest(m_bare), before);
    }

    void updateCheck_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("OK") << 200 << QByteArray("OK") << 0 << QStringList{"result\tcurrent"};
        QTest::newRow("optional") << 200 << QByteArray("[Nova versão](N)") << 0
                                  << QStringList{"result\toptional", "message\tNova versão", "mode\tN"};
        QTest::newRow("500") << 500 << QByteArray("[x](O)") << 1 << QStringList{"result\tno answer", "detail\tHTTP status 500"};
    }
    void updateCheck()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        LoopbackHttpServer server;
        server.answer = {status, body, {}, false};
        const CliRun run = runCli({QStringLiteral("update-check"), QStringLiteral("--url"), server.url()});
        QTEST(run.exitCode, "exitCode");
        QTEST(run.lines, "lines");
    }

    void updateCheckAddressFromTheDatabase()
    {
        LoopbackHttpServer server;
        server.answer = {200, QByteArray("OK"), {}, false};
        const QStringList args{QStringLiteral("update-check"), QStringLiteral("--db"), m_bare};
        CliRun run = runCli(args);
        QCOMPARE(run.exitCode, 1); // no address set: nothing was checked
        QVERIFY2(run.errors.contains(QStringLiteral("no version page")), qPrintable(run.errors));
        QVERIFY(exec(m_bare, QStringLiteral("UPDATE Tools SET UrlVersao = ?"), {server.url()}));
        run = runCli(args);
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(server.requestLines.size(), 1);
        QCOMPARE(runCli({QStringLiteral("update-check"), QStringLiteral("--url"), QStringLiteral("ftp://127.0.0.1/v")}).exitCode, 2);
    }
};

QTEST_MAIN(TestCliSim)
#include "tst_cli_sim.moc"
