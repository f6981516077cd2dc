// The shipped demo recordings agree with the simulated phone, and vekto-cli judge, run as the
// program it is, on answers of the simulated boards: what support gets when a technician sends a
// saved console answer.

#include "AutoComparador.h"
#include "Board.h"
#include "ConsoleExchange.h"
#include "Database.h"
#include "DemoSeeds.h"
#include "SimCatalog.h"
#include "CliRun.h"
#include "platform/SqlFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString Shipped = QStringLiteral(VEKTO_BIN_DIR "/Config.vkt");

CliRun cli(const QStringList &args)
{
    return runCli(QStringList{QStringLiteral("judge")} + args);
}

// The console text the tool shows after sending `command` to a fresh simulated board (an IP 7
// where the model name is not one the simulator knows).
QString boardAnswer(const QString &model, Profile profile, const QString &command)
{
    const auto known = SimCatalog::modelByName(model);
    Board board(AnswerStore(), known ? *known : *SimCatalog::modelByName(QStringLiteral("IP 7")), profile);
    board.receive(command.toUtf8() + '\r');
    QByteArray bytes;
    while (board.hasOutput())
        bytes += board.takeOutput(1 << 20);
    return QStringLiteral("\r\n") + ConsoleExchange::convertSlice(QString::fromUtf8(bytes));
}

} // namespace

class TestJudge : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString answerFile(const QString &text)
    {
        const QString file = m_dir.filePath(QString::fromUtf8(QTest::currentDataTag()) + QStringLiteral(".txt"));
        QFile f(file);
        if (f.open(QIODevice::WriteOnly))
            f.write(text.toUtf8());
        return file;
    }

private slots:
    void initTestCase()
    {
        if (!QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli")) || !QFile::exists(Shipped))
            QSKIP("vekto-cli or Config.vkt was not built");
    }

    // On a good board of every model, every listed command's answer shows the comparator's mark.
    void shippedRecordingsAgreeWithTheSimulator()
    {
        Database db(Shipped, Database::Access::ReadOnly);
        QStringList commands;
        for (const ComandoRecord &c : db.comandos())
            commands << c.comando;
        QVERIFY(!commands.isEmpty());
        const QStringList masks = demo::masks();
        QCOMPARE(db.maskTexts(), masks);
        const QList<demo::Recording> expected = demo::allRecordings(commands, masks);
        QCOMPARE(db.allDados().size(), expected.size());
        for (const demo::Recording &r : expected) {
            const auto row = db.dadosRecord(r.model, r.command);
            const QString where = r.model + u'|' + r.command;
            QVERIFY2(row && row->dados == r.recorded, qPrintable(where + QStringLiteral(": differs from the simulator; "
                                                                                        "run vekto-demoseeds")));
            QVERIFY2(AutoComparador::evaluate(r.console, row->dados, masks, false) == AutoComparador::Mark::Shown,
                     qPrintable(where));
        }
    }

    void compare_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("verdict");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("status");
        const SimModel ip7 = *SimCatalog::modelByName(QStringLiteral("IP 7"));
        const QString good = demo::consoleText(ip7, QStringLiteral("nand --getinfo"));
        const QString ok = QStringLiteral("Auto Comparador OK");
        QTest::newRow("good board") << "IP 7" << "nand --getinfo" << good << "pass" << ok << "ok";
        // Letter case does not count in the lookup, as in the Access file.
        QTest::newRow("command in capitals") << "IP 7" << "NAND --GETINFO" << good << "pass" << ok << "ok";
        QTest::newRow("other vendor") << "IP 7" << "nand --getinfo"
                                      << QString(good).replace(QStringLiteral("Hynix"), QStringLiteral("Toshiba")) << "fail"
                                      << "..." << "ok";
        QTest::newRow("another model's recording") << "IP X" << "nand --getinfo" << good << "fail" << "..." << "ok";
        QTest::newRow("nothing recorded") << "IP 7" << "no such command" << good << "none" << "..." << "no recorded answer";
        // The board's UID is masked in the recording and in the answer alike; another board's is not.
        const QString uid = demo::consoleText(ip7, QStringLiteral("nanduid"));
        QTest::newRow("masked UID") << "IP 7" << "nanduid" << uid << "pass" << ok << "ok";
        QTest::newRow("another board's UID") << "IP 7" << "nanduid"
                                             << QString(uid).replace(QRegularExpression(QStringLiteral("UID: \\S+")),
                                                                     QStringLiteral("UID: 0011223344"))
                                             << "fail" << "..." << "ok";
        const QString help = demo::consoleText(ip7, QStringLiteral("Help"));
        QTest::newRow("long answer") << "IP 7" << "Help" << help << "none" << "..." << "long answer, not compared";
        QTest::newRow("quote in the model") << "IP 7'" << "nanduid" << uid << "none" << "..." << "no recorded answer";
    }
    void compare()
    {
        QFETCH(QString, model);
        QFETCH(QString, command);
        QFETCH(QString, answer);
        QFETCH(QString, verdict);
        QFETCH(QString, caption);
        const QString file = answerFile(answer);
        const QStringList args{QStringLiteral("compare"), QStringLiteral("--model"), model, QStringLiteral("--command"), command,
                               QStringLiteral("--answer"), file};
        const CliRun r = cli(args + QStringList{QStringLiteral("--db"), Shipped, QStringLiteral("--json")});
        // Only a shown mark is a success: a hidden one, or nothing to compare with, is not.
        const int exitCode = verdict == QLatin1String("pass") ? 0 : 1;
        QVERIFY2(r.exitCode == exitCode, qPrintable(QString::number(r.exitCode) + r.errors));
        const QJsonObject o = QJsonDocument::fromJson(r.text.toUtf8()).object();
        QCOMPARE(o.value(QStringLiteral("engine")).toString(), QStringLiteral("compare"));
        QCOMPARE(o.value(QStringLiteral("model")).toString(), model);
        QTEST(o.value(QStringLiteral("status")).toString(), "status");
        const QJsonArray rows = o.value(QStringLiteral("rows")).toArray();
        QCOMPARE(rows.size(), 1);
        const QJsonObject row = rows.first().toObject();
        QCOMPARE(row.value(QStringLiteral("name")).toString(), QStringLiteral("lbAutoComparador"));
        QCOMPARE(row.value(QStringLiteral("label")).toString(), command);
        QCOMPARE(row.value(QStringLiteral("caption")).toString(), caption);
        QVERIFY(row.value(QStringLiteral("deviation")).isNull());
        QCOMPARE(row.value(QStringLiteral("verdict")).toString(), verdict);
        // The plain form says the same on one line.
        const CliRun plain = cli(args);
        QCOMPARE(plain.exitCode, exitCode);
        const QStringList lines = plain.text.split(u'\n');
        QCOMPARE(lines.value(0), QStringLiteral("compare ") + model);
        const QStringList words = lines.value(1).split(u' ', Qt::SkipEmptyParts);
        QVERIFY2(words.first() == QLatin1String("lbAutoComparador") && words.last() == verdict && lines.value(1).contains(caption),
                 qPrintable(plain.text));
    }

    void rails_data()
    {
        QTest::addColumn<QString>("engine");
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("profile");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("status");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<int>("failing"); // -1: more than one
        const int good = int(Profile::Good);
        QTest::newRow("vcore good IP 7") << "vcore" << "IP 7" << good << "pmuadc --read all" << "pass" << 0 << 0;
        QTest::newRow("buckldo good IP X") << "buckldo" << "IP X" << good << "pmuadc --read all" << "pass" << 0 << 0;
        QTest::newRow("vcore low rail IP 7") << "vcore" << "IP 7" << int(Profile::LowRail) << "pmuadc --read all" << "fail" << 1 << 1;
        // An answer without rails: every referenced rail has no reading.
        QTest::newRow("vcore other command") << "vcore" << "IP 6" << good << "nanduid" << "fail" << 1 << -1;
        // A plain read only lists: nothing is judged, so nothing is a success.
        QTest::newRow("buck read IP 8") << "buck-read" << "IP 8" << good << "buck" << "not judged" << 1 << 0;
        QTest::newRow("buck check passes") << "buck-check" << "IP 7" << good << "buckcheck 2" << "pass" << 0 << 0;
        QTest::newRow("buck1 of IP 6 fails") << "buck-check" << "IP 6" << good << "buckcheck 1" << "fail" << 1 << 1;
        QTest::newRow("buck check of a plain read") << "buck-check" << "IP 7" << good << "buck" << "empty" << 1 << 0;
        QTest::newRow("unknown model") << "vcore" << "IP7" << good << "pmuadc --read all" << "empty" << 1 << 0;
        QTest::newRow("empty answer") << "buckldo" << "IP 7" << good << "" << "empty" << 1 << 0;
    }
    void rails()
    {
        QFETCH(QString, engine);
        QFETCH(QString, model);
        QFETCH(int, profile);
        QFETCH(QString, command);
        QFETCH(int, failing);
        const QString file = answerFile(command.isEmpty() ? QString() : boardAnswer(model, Profile(profile), command));
        const CliRun r = cli({engine, QStringLiteral("--model"), model, QStringLiteral("--answer"), file, QStringLiteral("--db"),
                           Shipped, QStringLiteral("--json")});
        QTEST(r.exitCode, "exitCode");
        const QJsonObject report = QJsonDocument::fromJson(r.text.toUtf8()).object();
        QCOMPARE(report.value(QStringLiteral("engine")).toString(), engine);
        QCOMPARE(report.value(QStringLiteral("model")).toString(), model);
        QTEST(report.value(QStringLiteral("status")).toString(), "status");
        int failed = 0;
        for (const QJsonValue &v : report.value(QStringLiteral("rows")).toArray()) {
            const QJsonObject row = v.toObject();
            for (const char *key : {"name", "label", "caption", "deviation", "verdict"})
                QVERIFY2(row.contains(QLatin1String(key)), key);
            const QString verdict = row.value(QStringLiteral("verdict")).toString();
            QVERIFY(QStringList({"pass", "fail", "none"}).contains(verdict));
            failed += verdict == QLatin1String("fail");
        }
        QVERIFY2(failing >= 0 ? failed == failing : failed > 1, qPrintable(QString::number(failed)));
    }

    // Every mistake: exit code 2, nothing on the standard output, the reason on the error output;
    // a file that cannot be used is named with the first reason it failed.
    void mistakes_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("message");
        const QString answer = QStringLiteral(VEKTO_SOURCE_DIR "/README.md");
        const QStringList bl{"compare", "--model", "IP 7", "--command", "bl -n", "--answer"};
        QTest::newRow("no command") << QStringList{"compare", "--model", "IP 7", "--answer", answer} << "usage";
        QTest::newRow("unknown option") << QStringList{"compare", "--modle", "IP 7"} << "usage";
        QTest::newRow("no model") << QStringList{"vcore", "--answer", "x"} << "";
        QTest::newRow("missing answer file") << bl + QStringList{"/nonexistent/answer.txt"}
                                             << "cannot read the answer /nonexistent/answer.txt";
        QTest::newRow("missing database") << bl + QStringList{answer, "--db", "/nonexistent/Config.vkt"}
                                          << "cannot read the database /nonexistent/Config.vkt: file not found";
        QTest::newRow("not a database") << bl + QStringList{answer, "--db", answer}
                                        << QStringLiteral("cannot read the database %1: file is not a database").arg(answer);
        QTest::newRow("rails, not a database")
            << QStringList{"buckldo", "--model", "IP 7", "--answer", answer, "--db", answer}
            << QStringLiteral("cannot read the database %1: file is not a database").arg(answer);
        QTest::newRow("incomplete database") << bl + QStringList{answer, "--db", "INCOMPLETE"} << "no such table: M";
    }
    void mistakes()
    {
        QFETCH(QStringList, args);
        QFETCH(QString, message);
        if (const qsizetype at = args.indexOf(QStringLiteral("INCOMPLETE")); at >= 0) {
            // The shipped file without its masks table.
            const QString incomplete = m_dir.filePath(QStringLiteral("incomplete.vkt"));
            QFile::remove(incomplete);
            QVERIFY(QFile::copy(Shipped, incomplete));
            QFile::setPermissions(incomplete, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
            QVERIFY(sqlfixture::run(incomplete, QStringLiteral("DROP TABLE M")));
            args[at] = incomplete;
            message = QStringLiteral("cannot read the database %1: %2").arg(incomplete, message);
        }
        const CliRun r = cli(args);
        QCOMPARE(r.exitCode, 2);
        QVERIFY2(!r.errors.isEmpty() && r.errors.contains(message) && !r.errors.contains(QLatin1String("Unable to fetch row")),
                 qPrintable(r.errors));
        QVERIFY(r.text.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestJudge)
#include "tst_judge.moc"
