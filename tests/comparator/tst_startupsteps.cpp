// The start-up services as the technician meets them: the import question over every syncbd
// state, the update check's boxes and pages, the disclaimer, the carry-over of an Access
// Config.vkt, and the about screen's import and links. Boxes are scripted, pages recorded.

#include "AccessMigration.h"
#include "ComparatorFixture.h"
#include "Http.h"
#include "LinkMenu.h"
#include "Sobre.h"
#include "StartupSteps.h"
#include "UpdateCheck.h"
#include "UserFile.h"

#include <QAction>
#include <QLabel>
#include <QCryptographicHash>
#include <QtTest>

namespace {

QByteArray digest(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256) : QByteArray();
}

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

// A User.vkt with one recorded answer the shipped file lacks.
bool makeUser(const QString &path)
{
    QString error;
    return DatabaseBuilder::build(QStringLiteral(VEKTO_SOURCE_DIR "/data/schema.sql"), {}, path, &error)
        && exec(path, QStringLiteral("INSERT INTO Dados (Aparelho, Comando, Dados) VALUES ('IP 7', 'mine', 'recorded')"));
}

bool imported(const QString &config)
{
    return Database(config).dadosRecord(QStringLiteral("IP 7"), QStringLiteral("mine")).has_value();
}

class FakeHttp : public Http
{
public:
    HttpReply reply;
    QList<QUrl> asked;
    HttpReply get(const QUrl &url, std::chrono::milliseconds, qint64) override
    {
        asked << url;
        return reply;
    }
};

QString accessFixture()
{
    QString dir = qEnvironmentVariable("VEKTO_SHARED_DIR");
    if (dir.isEmpty())
        dir = QStringLiteral(VEKTO_SHARED_DIR);
    return QDir(dir).filePath(QStringLiteral("fixtures/DateTestDatabase.mdb"));
}

} // namespace

class TestStartupSteps : public QObject
{
    Q_OBJECT

private slots:
    void importQuestion_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<int>("userFile"); // 0 absent, 1 present, 2 present but not a database
        QTest::addColumn<bool>("yes");
        QTest::addColumn<bool>("asked");
        QTest::addColumn<bool>("done");     // the data came over
        QTest::addColumn<QString>("after");
        QTest::newRow("0, absent") << "0" << 0 << true << false << false << "2";
        QTest::newRow("1, absent") << "1" << 0 << true << false << false << "2";
        QTest::newRow("2, absent") << "2" << 0 << true << false << false << "2";
        QTest::newRow("0, present, Yes") << "0" << 1 << true << true << true << "2";
        QTest::newRow("0, present, No") << "0" << 1 << false << true << false << "1";
        QTest::newRow("1, present, Yes") << "1" << 1 << true << true << true << "2";
        QTest::newRow("1, present, No") << "1" << 1 << false << true << false << "2";
        QTest::newRow("2, present, Yes") << "2" << 1 << true << false << false << "2";
        QTest::newRow("2, present, No") << "2" << 1 << false << false << false << "2";
        QTest::newRow("unknown state asks") << "" << 1 << false << true << false << "1";
        QTest::newRow("0, damaged file, Yes") << "0" << 2 << true << true << false << "0";
    }
    void importQuestion()
    {
        QFETCH(QString, state);
        QFETCH(int, userFile);
        QFETCH(bool, yes);
        fixture::ScreenRig rig;
        QVERIFY(exec(rig.path, QStringLiteral("INSERT INTO Tools (Idioma, syncbd) VALUES ('1', ?)"), {state}));
        const QString user = StartupSteps::userFilePath(rig.path);
        if (userFile == 1)
            QVERIFY(makeUser(user));
        if (userFile == 2) {
            QFile f(user);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write("not a database");
        }
        rig.dialogs.answers = {yes};
        StartupSteps::perguntaImportacao(rig.session, rig.dialogs, nullptr);

        const bool asked = !rig.dialogs.shown.isEmpty()
                        && rig.dialogs.shown.first() == QStringLiteral("question:Sincronização|"
                                                                       "Foi localizado dados salvos ou alterados por você na versão anterior.\r\n"
                                                                       "Deseja importar esses dados para essa nova versão?");
        QTEST(asked, "asked");
        QTEST(imported(rig.path), "done");
        QCOMPARE(rig.dialogs.shown.contains(QStringLiteral("MSG_DADOS_SYNC")), imported(rig.path));
        if (userFile == 2)
            QVERIFY(rig.dialogs.shown.last().startsWith(QStringLiteral("critical:Sincronização|")));
        QTEST(Database(rig.path).syncbd().value_or(QStringLiteral("?")), "after");
    }

    void declinedTwiceIsNotAskedAgainButTheMenuImports()
    {
        fixture::ScreenRig rig;
        QVERIFY(exec(rig.path, QStringLiteral("INSERT INTO Tools (Idioma, syncbd) VALUES ('1', '0')")));
        QVERIFY(makeUser(StartupSteps::userFilePath(rig.path)));
        for (int start = 0; start < 4; ++start) {
            rig.dialogs.answers = {false};
            StartupSteps::perguntaImportacao(rig.session, rig.dialogs, nullptr);
        }
        QCOMPARE(rig.dialogs.shown.size(), 2);
        QVERIFY(!imported(rig.path));

        FakeShell shell;
        Sobre sobre({rig.session, rig.exchange, rig.dialogs}, shell, [] { return QString(); });
        sobre.sincronizar();
        QVERIFY(imported(rig.path));
        QCOMPARE(rig.dialogs.shown.last(), QStringLiteral("MSG_DADOS_SYNC"));
    }

    void menuAsksForTheFileWhenNoneIsBeside()
    {
        fixture::ScreenRig rig;
        QTemporaryDir elsewhere;
        const QString user = elsewhere.filePath(QStringLiteral("Antigo.vkt"));
        QVERIFY(makeUser(user));
        FakeShell shell;
        int asked = 0;
        QString answer;
        Sobre sobre({rig.session, rig.exchange, rig.dialogs}, shell, [&] {
            ++asked;
            return answer;
        });
        sobre.sincronizar(); // cancelled
        QCOMPARE(asked, 1);
        QVERIFY(rig.dialogs.shown.isEmpty());
        QVERIFY(!imported(rig.path));
        answer = user;
        sobre.sincronizar();
        QCOMPARE(asked, 2);
        QVERIFY(imported(rig.path));
    }

    void updateCheck_data()
    {
        QTest::addColumn<QString>("endpoint");
        QTest::addColumn<QString>("download");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("yes");
        QTest::addColumn<bool>("goesOn");
        QTest::addColumn<QString>("box");      // first box, or empty
        QTest::addColumn<QStringList>("opened");
        const QString page = QStringLiteral("https://www.example.com/baixar");
        const QString ask = QStringLiteral("question:Atualização|Existe uma atualização disponível. Deseja atualizar agora?");
        using S = HttpReply::Status;
        QTest::newRow("OK") << "https://v.example.com/v" << page << int(S::Ok) << QByteArray("OK") << true << true
                            << "" << QStringList();
        QTest::newRow("empty endpoint is not asked") << "" << page << int(S::Ok) << QByteArray("[m](O)") << true << true
                                                     << "" << QStringList();
        QTest::newRow("optional, No") << "https://v.example.com/v" << page << int(S::Ok) << QByteArray("[m](N)") << false
                                      << true << ask << QStringList();
        QTest::newRow("optional, Yes") << "https://v.example.com/v" << page << int(S::Ok) << QByteArray("[m](N)") << true
                                       << false << ask << QStringList{page};
        QTest::newRow("mandatory") << "https://v.example.com/v" << page << int(S::Ok) << QByteArray("[Versão 2](O)") << true
                                   << false
                                   << "info:Atualização Obrigatória|Atualização obrigatória para continuar utilizando o "
                                      "aplicativo\r\n\r\nVersão 2"
                                   << QStringList{page};
        QTest::newRow("mandatory, http page not opened") << "https://v.example.com/v" << "http://www.example.com/baixar"
                                                         << int(S::Ok) << QByteArray("[m](O)") << true << false
                                                         << "info:Atualização Obrigatória|Atualização obrigatória para "
                                                            "continuar utilizando o aplicativo\r\n\r\nm"
                                                         << QStringList();
        QTest::newRow("server error") << "https://v.example.com/v" << page << int(S::HttpError) << QByteArray("[m](O)")
                                      << true << true << "" << QStringList();
        QTest::newRow("time-out") << "https://v.example.com/v" << page << int(S::TimedOut) << QByteArray() << true
                                  << true << "" << QStringList();
    }
    void updateCheck()
    {
        QFETCH(QString, endpoint);
        QFETCH(QString, download);
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(bool, yes);
        QFETCH(QString, box);
        fixture::ScreenRig rig;
        rig.session.setVersoes(QStringLiteral("1.81"));
        QVERIFY(exec(rig.path, QStringLiteral("INSERT INTO Tools (Idioma, syncbd, UrlVersao, UrlDownload) VALUES ('1', '2', ?, ?)"),
                     {endpoint, download}));
        FakeHttp http;
        http.reply.status = HttpReply::Status(status);
        http.reply.body = body;
        FakeShell shell;
        rig.dialogs.answers = {yes};
        int hidden = 0;
        QTEST(StartupSteps::verificaVersao(rig.session, http, rig.dialogs, shell, [&] { ++hidden; }), "goesOn");
        QCOMPARE(rig.dialogs.shown.value(0), box);
        QCOMPARE(hidden, box.isEmpty() ? 0 : 1);
        QTEST(shell.opened, "opened");
        QCOMPARE(http.asked.size(), endpoint.isEmpty() ? 0 : 1);
    }

    void disclaimer()
    {
        fixture::ScreenRig rig;
        QVERIFY(exec(rig.path, QStringLiteral("INSERT INTO Tools (Idioma, syncbd, Termos) VALUES ('1', '2', '0')")));
        int shown = 0;
        QVERIFY(!StartupSteps::termos(rig.session, rig.dialogs, [&] { ++shown; return false; }));
        QCOMPARE(Database(rig.path).toolsText(QStringLiteral("Termos")), QStringLiteral("0"));
        QVERIFY(StartupSteps::termos(rig.session, rig.dialogs, [&] { ++shown; return true; }));
        QCOMPARE(Database(rig.path).toolsText(QStringLiteral("Termos")), QStringLiteral("1"));
        // Agreed once: never shown again.
        QVERIFY(StartupSteps::termos(rig.session, rig.dialogs, [&] { ++shown; return false; }));
        QCOMPARE(shown, 2);
        QVERIFY(rig.dialogs.shown.isEmpty());
    }

    void linkMenu_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("https") << "https://www.example.com/suporte" << true;
        QTest::newRow("http") << "http://www.example.com/suporte" << false;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("file") << "file:///etc/passwd" << false;
    }
    void linkMenu()
    {
        QFETCH(QString, address);
        QFETCH(bool, enabled);
        fixture::ScreenRig rig;
        QVERIFY(exec(rig.path, QStringLiteral("INSERT INTO Tools (Idioma, UrlSuporte) VALUES ('1', ?)"), {address}));
        FakeShell shell;
        LinkMenu menu(rig.session, shell);
        QAction *action = menu.findChild<QAction *>(QStringLiteral("linkUrlSuporte"));
        QVERIFY(action);
        QCOMPARE(action->isEnabled(), enabled);
        action->trigger();
        QCOMPARE(shell.opened, enabled ? QStringList{address} : QStringList());
    }

    void aboutScreen()
    {
        fixture::ScreenRig rig;
        rig.session.setVersoes(QStringLiteral("1.81"));
        QVERIFY(exec(rig.path, QStringLiteral("INSERT INTO Tools (Idioma, UrlSuporte, UrlSuporte2) VALUES ('1', ?, ?)"),
                     {QStringLiteral("https://a.example.com/remoto"), QStringLiteral("http://b.example.com/x")}));
        FakeShell shell;
        rig.session.setIdioma(2);
        Sobre sobre({rig.session, rig.exchange, rig.dialogs}, shell);
        QCOMPARE(sobre.findChild<QLabel *>(QStringLiteral("lbVersao"))->text(), QStringLiteral("Version 1.81"));
        // Only the https page is offered as a link.
        const QString links = sobre.findChild<QLabel *>(QStringLiteral("lbSuporte"))->text();
        QVERIFY2(links.contains(QStringLiteral("https://a.example.com/remoto")), qPrintable(links));
        QVERIFY2(!links.contains(QStringLiteral("b.example.com")), qPrintable(links));
    }

    void accessConfigThatIsNotOursIsLeftAlone()
    {
        if (!QFile::exists(accessFixture()))
            QSKIP("the shared Access fixture is not beside the project");
        QTemporaryDir dir;
        const QString config = dir.filePath(QStringLiteral("Config.vkt"));
        QVERIFY(QFile::copy(accessFixture(), config));
        QFile::setPermissions(config, QFile::ReadOwner | QFile::WriteOwner);
        const QByteArray before = digest(config);
        FakeDialogs dialogs;
        QCOMPARE(StartupSteps::migrateConfig(config, dialogs), std::optional<int>(2));
        QCOMPARE(dialogs.shown.size(), 1);
        QVERIFY2(dialogs.shown.first().contains(QStringLiteral("table Comandos is missing")), qPrintable(dialogs.shown.first()));
        QCOMPARE(digest(config), before);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{QStringLiteral("Config.vkt")});
    }

    void accessConfigIsCarriedOver()
    {
        if (!QFile::exists(accessFixture()))
            QSKIP("the shared Access fixture is not beside the project");
        QTemporaryDir dir;
        const QString config = dir.filePath(QStringLiteral("Config.vkt"));
        QVERIFY(QFile::copy(accessFixture(), config));
        const QByteArray original = digest(config);
        const AccessMigration::Result result = AccessMigration::migrate(config, {QStringLiteral("DateTest")});
        QVERIFY2(result.migrated, qPrintable(result.error));
        QCOMPARE(QFileInfo(result.keptAs).fileName(), QStringLiteral("Config-access.mdb"));
        QCOMPARE(digest(result.keptAs), original);
        QCOMPARE(UserFile::detect(config), UserFile::Format::SQLite);
        // Our tables, empty where the old file had none, and the old file's own table with its rows.
        QCOMPARE(Database::check(config), DatabaseProblem::None);
        UserFile copy(config);
        const auto rows = copy.rows(QStringLiteral("DateTest"), {QStringLiteral("IDCol"), QStringLiteral("ShortTextCol")});
        QVERIFY(rows);
        QCOMPARE(rows->size(), result.rows);
        QCOMPARE(rows->first(), QStringList({"1", "Hello"}));
        // A second start finds SQLite and does nothing; a later migration keeps an earlier original.
        QCOMPARE(AccessMigration::migrate(config).migrated, false);
        QCOMPARE(AccessMigration::keptName(config), dir.filePath(QStringLiteral("Config-access-2.mdb")));
    }

    void olderFileGetsTheNewColumns()
    {
        QTemporaryDir dir;
        const QString config = dir.filePath(QStringLiteral("Config.vkt"));
        QVERIFY(DatabaseBuilder::build(QStringLiteral(VEKTO_SOURCE_DIR "/data/schema.sql"), {}, config));
        // The Tools table of the first release.
        QVERIFY(exec(config, QStringLiteral("DROP TABLE Tools")));
        QVERIFY(exec(config, QStringLiteral("CREATE TABLE Tools (Idioma TEXT, syncbd TEXT)")));
        QVERIFY(exec(config, QStringLiteral("INSERT INTO Tools VALUES ('3', '1')")));
        QCOMPARE(Database(config).toolsText(QStringLiteral("UrlVersao")), std::nullopt);
        for (int run = 0; run < 2; ++run) {
            QString error;
            QVERIFY2(StartupSteps::upgradeConfig(config, &error), qPrintable(error));
        }
        Database db(config);
        QCOMPARE(db.idioma(), quint8(3));
        QCOMPARE(db.syncbd(), QStringLiteral("1"));
        for (const QString &column : Database::toolsTextColumns())
            QCOMPARE(db.toolsText(column), QString());
        QVERIFY(db.setToolsText(QStringLiteral("Termos"), QStringLiteral("1")));
        QCOMPARE(db.toolsText(QStringLiteral("Termos")), QStringLiteral("1"));
    }
};

QTEST_MAIN(TestStartupSteps)
#include "tst_startupsteps.moc"
