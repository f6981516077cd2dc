// vekto-cli judge for the rail engines, run as the program it is, on answers of the simulated
// boards: what support gets when a technician sends a saved console answer.

#include "Board.h"
#include "ConsoleExchange.h"
#include "SimCatalog.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// The console text the tool shows after sending `command` to a fresh simulated board.
QString consoleAnswer(const QString &model, Profile profile, const QString &command)
{
    Board board(AnswerStore(), *SimCatalog::modelByName(model), profile);
    board.receive(command.toUtf8() + '\r');
    QByteArray bytes;
    while (board.hasOutput())
        bytes += board.takeOutput(1 << 20);
    return QStringLiteral("\r\n") + ConsoleExchange::convertSlice(QString::fromUtf8(bytes));
}

} // namespace

class TestJudgeRails : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private slots:
    void initTestCase()
    {
        if (!QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli")) || !QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt")))
            QSKIP("vekto-cli or Config.vkt was not built");
    }

    void judge_data()
    {
        QTest::addColumn<QString>("engine");
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("profile");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("status");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<int>("failing");
        QTest::newRow("vcore good IP 7") << "vcore" << "IP 7" << int(Profile::Good) << "pmuadc --read all" << "pass" << 0 << 0;
        QTest::newRow("buckldo good IP X") << "buckldo" << "IP X" << int(Profile::Good) << "pmuadc --read all" << "pass" << 0 << 0;
        QTest::newRow("vcore low rail IP 7") << "vcore" << "IP 7" << int(Profile::LowRail) << "pmuadc --read all" << "fail" << 1 << 1;
        QTest::newRow("vcore other command") << "vcore" << "IP 6" << int(Profile::Good) << "nanduid" << "fail" << 1 << -1;
        // A plain read only lists: nothing is judged, so nothing is a success.
        QTest::newRow("buck read IP 8") << "buck-read" << "IP 8" << int(Profile::Good) << "buck" << "not judged" << 1 << 0;
        QTest::newRow("buck check passes") << "buck-check" << "IP 7" << int(Profile::Good) << "buckcheck 2" << "pass" << 0 << 0;
        QTest::newRow("buck1 of IP 6 fails") << "buck-check" << "IP 6" << int(Profile::Good) << "buckcheck 1" << "fail" << 1 << 1;
        QTest::newRow("buck check of a plain read") << "buck-check" << "IP 7" << int(Profile::Good) << "buck" << "empty" << 1 << 0;
        QTest::newRow("unknown model") << "vcore" << "IP7" << int(Profile::Good) << "pmuadc --read all" << "empty" << 1 << 0;
        QTest::newRow("empty answer") << "buckldo" << "IP 7" << int(Profile::Good) << "" << "empty" << 1 << 0;
    }
    void judge()
    {
        QFETCH(QString, engine);
        QFETCH(QString, model);
        QFETCH(int, profile);
        QFETCH(QString, command);
        QFETCH(QString, status);
        QFETCH(int, exitCode);
        QFETCH(int, failing);

        const QString answer = m_dir.filePath(QString::fromUtf8(QTest::currentDataTag()) + QStringLiteral(".txt"));
        QFile file(answer);
        QVERIFY(file.open(QIODevice::WriteOnly));
        if (!command.isEmpty())
            file.write(consoleAnswer(model, Profile(profile), command).toUtf8());
        file.close();

        QProcess cli;
        cli.start(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli"),
                  {QStringLiteral("judge"), engine, QStringLiteral("--model"), model, QStringLiteral("--answer"), answer,
                   QStringLiteral("--db"), QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"), QStringLiteral("--json")});
        QVERIFY(cli.waitForFinished(60000));
        QCOMPARE(cli.exitCode(), exitCode);
        const QJsonObject report = QJsonDocument::fromJson(cli.readAllStandardOutput()).object();
        QCOMPARE(report.value(QStringLiteral("engine")).toString(), engine);
        QCOMPARE(report.value(QStringLiteral("model")).toString(), model);
        QCOMPARE(report.value(QStringLiteral("status")).toString(), status);
        const QJsonArray rows = report.value(QStringLiteral("rows")).toArray();
        int failed = 0;
        for (const QJsonValue &v : rows) {
            const QJsonObject row = v.toObject();
            for (const char *key : {"name", "label", "caption", "deviation", "verdict"})
                QVERIFY2(row.contains(QLatin1String(key)), key);
            const QString verdict = row.value(QStringLiteral("verdict")).toString();
            QVERIFY(verdict == QLatin1String("pass") || verdict == QLatin1String("fail") || verdict == QLatin1String("none"));
            failed += verdict == QLatin1String("fail");
        }
        if (failing >= 0)
            QCOMPARE(failed, failing);
        else
            QVERIFY(failed > 1); // an answer without rails: every referenced rail has no reading
    }

    void badUse_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::newRow("no model") << QStringList{"judge", "vcore", "--answer", "x"};
        QTest::newRow("missing answer file") << QStringList{"judge", "vcore", "--model", "IP 7", "--answer", "/nonexistent/a.txt"};
        QTest::newRow("missing database") << QStringList{"judge", "vcore", "--model", "IP 7", "--answer", VEKTO_BIN_DIR "/Config.vkt",
                                                         "--db", "/nonexistent/Config.vkt"};
        QTest::newRow("not a database") << QStringList{"judge", "buckldo", "--model", "IP 7", "--answer", VEKTO_BIN_DIR "/Config.vkt",
                                                       "--db", VEKTO_SOURCE_DIR "/README.md"};
    }
    void badUse()
    {
        QFETCH(QStringList, args);
        QProcess cli;
        cli.start(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli"), args);
        QVERIFY(cli.waitForFinished(60000));
        QCOMPARE(cli.exitCode(), 2);
        const QString errors = QString::fromUtf8(cli.readAllStandardError());
        QVERIFY(!errors.isEmpty());
        // A file that cannot be used is named, with the first reason it failed.
        const qsizetype db = args.indexOf(QStringLiteral("--db"));
        if (db >= 0)
            QVERIFY2(errors.startsWith(QStringLiteral("cannot read the database ") + args.value(db + 1) + u':')
                         && !errors.contains(QLatin1String("Unable to fetch row")),
                     qPrintable(errors));
    }
};

QTEST_MAIN(TestJudgeRails)
#include "tst_judgerails.moc"
