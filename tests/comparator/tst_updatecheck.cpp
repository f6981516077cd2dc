// The update check: what an answer of the version page means, and how the real HTTP client
// behaves against a server on the loopback address that answers well, badly, hugely or never.

#include "Http.h"
#include "LoopbackHttpServer.h"
#include "UpdateCheck.h"

#include <QtTest>

using UpdateCheck::Kind;
Q_DECLARE_METATYPE(UpdateCheck::Kind)

class TestUpdateCheck : public QObject
{
    Q_OBJECT

private slots:
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
        QTest::newRow("optional") << 200 << QByteArray("[Nova versão 1.90](N)") << false << Kind::Optional
                                  << "Nova versão 1.90";
        QTest::newRow("mandatory") << 200 << QByteArray("[Obrigatória](O)") << false << Kind::Mandatory
                                   << "Obrigatória";
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

    void redirectToAnotherSchemeIsNotFollowed_data()
    {
        QTest::addColumn<QByteArray>("headers");
        QTest::addColumn<int>("status");
        QTest::newRow("redirect to https") << QByteArray("Location: https://127.0.0.1:1/v\r\n") << 302;
        QTest::newRow("redirect to ftp") << QByteArray("Location: ftp://127.0.0.1/v\r\n") << 301;
        QTest::newRow("redirect to a file") << QByteArray("Location: file:///etc/hostname\r\n") << 307;
    }
    void redirectToAnotherSchemeIsNotFollowed()
    {
        QFETCH(QByteArray, headers);
        QFETCH(int, status);
        LoopbackHttpServer server;
        server.answer = {status, QByteArray(), headers, false};
        QtHttp http;
        const HttpReply reply = http.get(QUrl(server.url()), std::chrono::milliseconds(2000), 1024);
        QVERIFY(reply.status != HttpReply::Status::Ok);
        QVERIFY(reply.body.isEmpty());
        QCOMPARE(server.requestLines.size(), 1);
    }

    void sameSchemeRedirectIsFollowed()
    {
        LoopbackHttpServer target;
        target.answer = {200, QByteArray("OK"), {}, false};
        LoopbackHttpServer first;
        first.answer = {302, QByteArray(), "Location: " + target.url(QStringLiteral("/novo")).toUtf8() + "\r\n", false};
        QtHttp http;
        const HttpReply reply = http.get(QUrl(first.url()), std::chrono::milliseconds(2000), 1024);
        QCOMPARE(int(reply.status), int(HttpReply::Status::Ok));
        QCOMPARE(reply.body, QByteArray("OK"));
        QCOMPARE(target.requestLines.size(), 1);
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

QTEST_MAIN(TestUpdateCheck)
#include "tst_updatecheck.moc"
