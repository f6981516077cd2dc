// The start-up services as the technician meets them: the import question over every syncbd
// state, the update check's boxes and pages, the disclaimer, the carry-over of an Access
// Config.vkt, and the about screen's import and links. Boxes are scripted, pages recorded.
// Then the update check itself: what an answer of the version page means, and how the real HTTP
// client behaves against a server on the loopback address that answers well, badly, hugely or never.

#include "AccessMigration.h"
#include "ComparatorFixture.h"
#include "Http.h"
#include "LoopbackHttpServer.h"
#include "LinkMenu.h"
#include "Sobre.h"
#include "StartupSteps.h"
#include "UpdateCheck.h"
#include "UserFile.h"

#include <QAction>
#include <QLabel>
#include <QtTest>

using sqlfixture::digest;
using UpdateCheck::Kind;
Q_DECLARE_METATYPE(UpdateCheck::Kind)

namespace {

bool exec(const QString &path, const QString &sql, const QVariantList &values = {})
{
    return sqlfixture::run(path, sql, values);
}

// A User.vkt with one recorded answer the shipped file lacks.
bool makeUser(const QString &path)
{
    return fixture::makeDatabaseAt(path)
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

    // Declined twice, the question is not asked again; the about screen's menu still imports,
    // asking for the file when none lies beside Config.vkt.
    void menuImportsWhateverTheQuestion()
    {
        fixture::ScreenRig rig;
        QVERIFY(exec(rig.path, QStringLiteral("INSERT INTO Tools (Idioma, syncbd) VALUES ('1', '0')")));
        QTemporaryDir elsewhere;
        const QString user = elsewhere.filePath(QStringLiteral("Antigo.vkt"));
        QVERIFY(makeUser(user) && makeUser(StartupSteps::userFilePath(rig.path)));
        for (int start = 0; start < 4; ++start) {
            rig.dialogs.answers = {false};
            StartupSteps::perguntaImportacao(rig.session, rig.dialogs, nullptr);
        }
        QCOMPARE(rig.dialogs.shown.size(), 2);
        QVERIFY(!imported(rig.path));
        FakeShell shell;
        QStringList chosen{QString(), user};
        Sobre sobre({rig.session, rig.exchange, rig.dialogs}, shell, [&] { return chosen.takeFirst(); });
        sobre.sincronizar();
        QVERIFY(imported(rig.path));
        QCOMPARE(rig.dialogs.shown.last(), QStringLiteral("MSG_DADOS_SYNC"));
        QCOMPARE(chosen.size(), 2); // the file beside was found: nothing asked

        fixture::ScreenRig other;
        Sobre asking({other.session, other.exchange, other.dialogs}, shell, [&] { return chosen.takeFirst(); });
        asking.sincronizar(); // cancelled
        QVERIFY(other.dialogs.shown.isEmpty() && !imported(other.path));
        asking.sincronizar();
        QVERIFY(chosen.isEmpty());
        QVERIFY(imported(other.path));
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
        const char *page = "https://www.example.com/baixar", *v = "https://v.example.com/v";
        const QString ask = QStringLiteral("question:Atualização|Existe uma atualização disponível. Deseja atualizar agora?");
        const QString must = QStringLiteral("info:Atualização Obrigatória|Atualização obrigatória para continuar utilizando o "
                                            "aplicativo\r\n\r\n");
        using S = HttpReply::Status;
        const struct { const char *tag, *endpoint, *download; S status; const char *body; bool yes, goesOn; QString box; bool opens; } rows[] = {
            {"OK", v, page, S::Ok, "OK", true, true, {}, false},
            {"empty endpoint is not asked", "", page, S::Ok, "[m](O)", true, true, {}, false},
            {"optional, No", v, page, S::Ok, "[m](N)", false, true, ask, false},
            {"optional, Yes", v, page, S::Ok, "[m](N)", true, false, ask, true},
            {"mandatory", v, page, S::Ok, "[Versão 2](O)", true, false, must + QStringLiteral("Versão 2"), true},
            {"mandatory, http page not opened", v, "http://www.example.com/baixar", S::Ok, "[m](O)", true, false, must + u'm', false},
            {"server error", v, page, S::HttpError, "[m](O)", true, true, {}, false},
            {"time-out", v, page, S::TimedOut, "", true, true, {}, false},
        };
        for (const auto &r : rows)
            QTest::newRow(r.tag) << QString::fromUtf8(r.endpoint) << QString::fromUtf8(r.download) << int(r.status)
                                 << QByteArray(r.body) << r.yes << r.goesOn << r.box
                                 << (r.opens ? QStringList{QString::fromUtf8(r.download)} : QStringList());
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

    // The address rule itself is the update check's; here only that the menu follows it.
    void linkMenu_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("https") << "https://www.example.com/suporte" << true;
        QTest::newRow("http") << "http://www.example.com/suporte" << false;
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
        if (!QFile::exists(sqlfixture::accessFile()))
            QSKIP("the shared Access fixture is not beside the project");
        QTemporaryDir dir;
        const QString config = dir.filePath(QStringLiteral("Config.vkt"));
        QVERIFY(QFile::copy(sqlfixture::accessFile(), config));
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
        if (!QFile::exists(sqlfixture::accessFile()))
            QSKIP("the shared Access fixture is not beside the project");
        QTemporaryDir dir;
        const QString config = dir.filePath(QStringLiteral("Config.vkt"));
        QVERIFY(QFile::copy(sqlfixture::accessFile(), config));
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
        QVERIFY(fixture::makeDatabaseAt(config));
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

    // --- the update check ----------------------------------------------------------------

    void parse_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("mode");
        QTest::newRow("empty") << "" << Kind::Current << "" << "";
        QTest::newRow("OK") << "OK" << Kind::Current << "" << "";
        QTest::newRow("OK with line end") << "OK\r\n" << Kind::Current << "" << "";
        QTest::newRow("ok in lower case is a notice") << "ok" << Kind::Optional << "" << "";
        QTest::newRow("mandatory") << "[Versão 1.90 corrige a leitura NAND](O)" << Kind::Mandatory
                                   << "Versão 1.90 corrige a leitura NAND" << "O";
        QTest::newRow("optional") << "[Nova versão](N)" << Kind::Optional << "Nova versão" << "N";
        QTest::newRow("mode before message") << "(O) texto [msg]" << Kind::Mandatory << "msg" << "O";
        QTest::newRow("first brackets only") << "[a] [b] (x) (O)" << Kind::Optional << "a" << "x";
        QTest::newRow("bracket never closed") << "[sem fim (O)" << Kind::Mandatory << "" << "O";
        QTest::newRow("closing before opening") << "] x [msg] )(N)" << Kind::Optional << "msg" << "N";
        QTest::newRow("lower-case o is not mandatory") << "[m](o)" << Kind::Optional << "m" << "o";
        QTest::newRow("padded mode is not mandatory") << "[m]( O )" << Kind::Optional << "m" << " O ";
        QTest::newRow("no marks at all") << "<html>portal</html>" << Kind::Optional << "" << "";
    }
    void parse()
    {
        QFETCH(QString, answer);
        const UpdateCheck::Outcome outcome = UpdateCheck::parse(answer);
        QTEST(outcome.kind, "kind");
        QTEST(outcome.message, "message");
        QTEST(outcome.mode, "mode");
    }

    void addresses_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("asked");        // usable as the version page
        QTest::addColumn<bool>("downloadPage"); // may be opened as the download page
        QTest::newRow("https") << "https://www.example.com/v" << true << true;
        QTest::newRow("http") << "http://www.example.com/v" << true << false;
        QTest::newRow("blank around") << "  https://www.example.com/v " << true << true;
        QTest::newRow("empty") << "" << false << false;
        QTest::newRow("file") << "file:///etc/passwd" << false << false;
        QTest::newRow("javascript") << "javascript:alert(1)" << false << false;
        QTest::newRow("ftp") << "ftp://www.example.com/setup.exe" << false << false;
        QTest::newRow("no host") << "https:///v" << false << false;
        QTest::newRow("not an address") << "update page" << false << false;
    }
    void addresses()
    {
        QFETCH(QString, address);
        QTEST(UpdateCheck::requestUrl(address, QStringLiteral("1.81")).isValid(), "asked");
        QTEST(UpdateCheck::isSafeDownloadPage(address), "downloadPage");
    }

    void requestCarriesTheVersion()
    {
        const QUrl url = UpdateCheck::requestUrl(QStringLiteral("https://h.example.com/v?canal=1&versao=0.1"),
                                                 QStringLiteral("1.81"));
        const QUrlQuery query(url);
        QCOMPARE(query.queryItemValue(QStringLiteral("canal")), QStringLiteral("1"));
        QCOMPARE(query.allQueryItemValues(QStringLiteral("versao")), QStringList{QStringLiteral("1.81")});
    }

    // The real client against the loopback server.
    void loopback_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("silent");
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QString>("message");
        QTest::newRow("OK") << 200 << QByteArray("OK") << false << Kind::Current << "";
        QTest::newRow("mandatory") << 200 << QByteArray("[Obrigatória](O)") << false << Kind::Mandatory << "Obrigatória";
        QTest::newRow("500 with a notice in its body") << 500 << QByteArray("[x](O)") << false << Kind::NoAnswer << "";
        QTest::newRow("404") << 404 << QByteArray("not here") << false << Kind::NoAnswer << "";
        QTest::newRow("oversized") << 200 << QByteArray(10 * 1024 * 1024, 'A').prepend("[big](O)") << false
                                   << Kind::NoAnswer << "";
        QTest::newRow("binary") << 200 << QByteArray("[x](O)\0\x01\x02\xff", 10) << false << Kind::NoAnswer << "";
        QTest::newRow("never answers") << 200 << QByteArray() << true << Kind::NoAnswer << "";
    }
    void loopback()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(bool, silent);
        LoopbackHttpServer server;
        QVERIFY(server.isListening());
        server.answer = {status, body, {}, silent};
        QtHttp http;
        const UpdateCheck::Outcome outcome = UpdateCheck::check(http, server.url(), QStringLiteral("1.81"));
        QTEST(outcome.kind, "kind");
        QTEST(outcome.message, "message");
        if (outcome.kind == Kind::NoAnswer)
            QVERIFY2(!outcome.detail.isEmpty(), "a missing answer must say why");
        QCOMPARE(server.requestLines.size(), 1);
        QVERIFY2(server.requestLines.first().startsWith("GET /versao?versao=1.81 "), server.requestLines.first());
    }

    // A redirect is followed only to the same scheme; TARGET is a second server answering "OK".
    void redirects_data()
    {
        QTest::addColumn<QByteArray>("headers");
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("followed");
        QTest::newRow("redirect to https") << QByteArray("Location: https://127.0.0.1:1/v\r\n") << 302 << false;
        QTest::newRow("redirect to ftp") << QByteArray("Location: ftp://127.0.0.1/v\r\n") << 301 << false;
        QTest::newRow("redirect to a file") << QByteArray("Location: file:///etc/hostname\r\n") << 307 << false;
        QTest::newRow("same scheme") << QByteArray("Location: TARGET\r\n") << 302 << true;
    }
    void redirects()
    {
        QFETCH(QByteArray, headers);
        QFETCH(int, status);
        QFETCH(bool, followed);
        LoopbackHttpServer target;
        target.answer = {200, QByteArray("OK"), {}, false};
        LoopbackHttpServer server;
        server.answer = {status, QByteArray(), headers.replace("TARGET", target.url(QStringLiteral("/novo")).toUtf8()), false};
        QtHttp http;
        const HttpReply reply = http.get(QUrl(server.url()), std::chrono::milliseconds(2000), 1024);
        QCOMPARE(reply.status == HttpReply::Status::Ok, followed);
        QCOMPARE(reply.body, followed ? QByteArray("OK") : QByteArray());
        QCOMPARE(server.requestLines.size(), 1);
        QCOMPARE(target.requestLines.size(), followed ? 1 : 0);
    }

    void unreachableServer()
    {
        quint16 port = 0;
        {
            QTcpServer closed;
            QVERIFY(closed.listen(QHostAddress::LocalHost));
            port = closed.serverPort();
        }
        QtHttp http;
        const UpdateCheck::Outcome outcome =
            UpdateCheck::check(http, QStringLiteral("http://127.0.0.1:%1/v").arg(port), QStringLiteral("1.81"));
        QCOMPARE(outcome.kind, Kind::NoAnswer);
    }
};

QTEST_MAIN(TestStartupSteps)
#include "tst_startupsteps.moc"
