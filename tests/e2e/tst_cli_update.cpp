// vekto-cli import and update-check as a user runs them: what they print and how they exit.
// The version page is a server on the loopback address that this test serves while the
// command runs; the databases are files built by the test.

#include "CliRun.h"
#include "Database.h"
#include "DatabaseBuilder.h"
#include "LoopbackHttpServer.h"

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

class TestCliUpdate : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_config;
    QString m_user;

private slots:
    void init()
    {
        if (!QFile::exists(cliProgram()))
            QSKIP("vekto-cli was not built");
        const QString schema = QStringLiteral(VEKTO_SOURCE_DIR "/data/schema.sql");
        m_config = m_dir.filePath(QStringLiteral("Config.vkt"));
        m_user = m_dir.filePath(QStringLiteral("User.vkt"));
        QFile::remove(m_config);
        QFile::remove(m_user);
        QVERIFY(DatabaseBuilder::build(schema, {}, m_config));
        QVERIFY(exec(m_config, QStringLiteral("INSERT INTO Tools (Idioma, syncbd, UrlVersao) VALUES ('2', '0', '')")));
        QVERIFY(exec(m_config, QStringLiteral("INSERT INTO Comandos (Comando) VALUES ('bl -n')")));
        QVERIFY(DatabaseBuilder::build(schema, {}, m_user));
        QVERIFY(exec(m_user, QStringLiteral("INSERT INTO Dados (Aparelho, Comando, Dados) VALUES ('IP 7', 'bl -n', 'x')")));
        QVERIFY(exec(m_user, QStringLiteral("INSERT INTO Comandos (Comando) VALUES ('bl -n'), ('mine')")));
    }

    void importPrintsPerTable()
    {
        const CliRun run = runCli({QStringLiteral("import"), QStringLiteral("--from"), m_user, QStringLiteral("--db"), m_config});
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
        const QByteArray before = digest(m_config);
        const CliRun run = runCli(args + QStringList{QStringLiteral("--db"), m_config});
        QTEST(run.exitCode, "exitCode");
        QFETCH(QString, says);
        QVERIFY2(run.errors.contains(says), qPrintable(run.errors));
        QCOMPARE(digest(m_config), before);
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
        const QStringList args{QStringLiteral("update-check"), QStringLiteral("--db"), m_config};
        CliRun run = runCli(args);
        QCOMPARE(run.exitCode, 1); // no address set: nothing was checked
        QVERIFY2(run.errors.contains(QStringLiteral("no version page")), qPrintable(run.errors));
        QVERIFY(exec(m_config, QStringLiteral("UPDATE Tools SET UrlVersao = ?"), {server.url()}));
        run = runCli(args);
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(server.requestLines.size(), 1);
        QCOMPARE(runCli({QStringLiteral("update-check"), QStringLiteral("--url"), QStringLiteral("ftp://127.0.0.1/v")}).exitCode, 2);
    }
};

QTEST_MAIN(TestCliUpdate)
#include "tst_cli_update.moc"
