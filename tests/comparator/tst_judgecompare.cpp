// vekto-cli judge compare, run as the program it is, on the shipped demo recordings.

#include "DemoSeeds.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

Run cli(const QStringList &args)
{
    QProcess p;
    p.start(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli"), args);
    Run r;
    if (!p.waitForFinished(60000))
        return r;
    r.exitCode = p.exitCode();
    r.out = QString::fromUtf8(p.readAllStandardOutput());
    r.err = QString::fromUtf8(p.readAllStandardError());
    return r;
}

} // namespace

class TestJudgeCompare : public QObject
{
    Q_OBJECT
private slots:
    void verdicts_data();
    void verdicts();
    void mistakes_data();
    void mistakes();

private:
    QTemporaryDir m_dir;
};

void TestJudgeCompare::verdicts_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("verdict");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("status");

    const SimModel ip7 = *SimCatalog::modelByName(QStringLiteral("IP 7"));
    const QString good = demo::consoleText(ip7, QStringLiteral("nand --getinfo"));
    QTest::newRow("good board") << "IP 7" << "nand --getinfo" << good << "pass" << "Auto Comparador OK" << "ok";
    // Letter case does not count in the lookup, as in the Access file.
    QTest::newRow("command in capitals") << "IP 7" << "NAND --GETINFO" << good << "pass" << "Auto Comparador OK"
                                         << "ok";
    QTest::newRow("other vendor") << "IP 7" << "nand --getinfo" << QString(good).replace(QStringLiteral("Hynix"), QStringLiteral("Toshiba"))
                                  << "fail" << "..." << "ok";
    QTest::newRow("another model's recording") << "IP X" << "nand --getinfo" << good << "fail" << "..." << "ok";
    QTest::newRow("nothing recorded") << "IP 7" << "no such command" << good << "none" << "..." << "no recorded answer";
    // The board's UID is masked in the recording and in the answer alike.
    const QString uid = demo::consoleText(ip7, QStringLiteral("nanduid"));
    QTest::newRow("masked UID") << "IP 7" << "nanduid" << uid << "pass" << "Auto Comparador OK" << "ok";
    const QString help = demo::consoleText(ip7, QStringLiteral("Help"));
    QTest::newRow("long answer") << "IP 7" << "Help" << help << "none" << "..." << "long answer, not compared";
    QTest::newRow("quote in the model") << "IP 7'" << "nanduid" << uid << "none" << "..." << "no recorded answer";
}

void TestJudgeCompare::verdicts()
{
    QFETCH(QString, model);
    QFETCH(QString, command);
    QFETCH(QString, answer);
    QFETCH(QString, verdict);
    QFETCH(QString, caption);
    QFETCH(QString, status);

    const QString file = m_dir.filePath(QString::fromUtf8(QTest::currentDataTag()) + QStringLiteral(".txt"));
    QFile f(file);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(answer.toUtf8());
    f.close();

    const Run r = cli({QStringLiteral("judge"), QStringLiteral("compare"), QStringLiteral("--model"), model,
                       QStringLiteral("--command"), command, QStringLiteral("--answer"), file,
                       QStringLiteral("--db"), QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"), QStringLiteral("--json")});
    // Only a shown mark is a success: a hidden one, or nothing to compare with, is not.
    const int exitCode = verdict == QLatin1String("pass") ? 0 : 1;
    QVERIFY2(r.exitCode == exitCode, qPrintable(QString::number(r.exitCode) + r.err));
    const QJsonObject o = QJsonDocument::fromJson(r.out.toUtf8()).object();
    QCOMPARE(o.value(QStringLiteral("engine")).toString(), QStringLiteral("compare"));
    QCOMPARE(o.value(QStringLiteral("model")).toString(), model);
    QCOMPARE(o.value(QStringLiteral("status")).toString(), status);
    QVERIFY(o.value(QStringLiteral("extra")).isObject());
    const QJsonArray rows = o.value(QStringLiteral("rows")).toArray();
    QCOMPARE(rows.size(), 1);
    const QJsonObject row = rows.first().toObject();
    QCOMPARE(row.value(QStringLiteral("name")).toString(), QStringLiteral("lbAutoComparador"));
    QCOMPARE(row.value(QStringLiteral("label")).toString(), command);
    QCOMPARE(row.value(QStringLiteral("caption")).toString(), caption);
    QVERIFY(row.value(QStringLiteral("deviation")).isNull());
    QCOMPARE(row.value(QStringLiteral("verdict")).toString(), verdict);

    // The plain form says the same on one line.
    const Run plain = cli({QStringLiteral("judge"), QStringLiteral("compare"), QStringLiteral("--model"), model,
                           QStringLiteral("--command"), command, QStringLiteral("--answer"), file});
    QCOMPARE(plain.exitCode, exitCode);
    const QStringList lines = plain.out.split(u'\n');
    QCOMPARE(lines.value(0), QStringLiteral("compare ") + model);
    const QStringList words = lines.value(1).split(u' ', Qt::SkipEmptyParts);
    QVERIFY2(words.first() == QLatin1String("lbAutoComparador") && words.last() == verdict
                 && lines.value(1).contains(caption),
             qPrintable(plain.out));
}

void TestJudgeCompare::mistakes_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");
    const QString answer = QStringLiteral(VEKTO_SOURCE_DIR "/README.md");
    QTest::newRow("no command") << QStringList{"--model", "IP 7", "--answer", answer} << 2 << "usage";
    QTest::newRow("unknown option") << QStringList{"--modle", "IP 7"} << 2 << "usage";
    QTest::newRow("missing answer file")
        << QStringList{"--model", "IP 7", "--command", "bl -n", "--answer", "/nonexistent/answer.txt"} << 2
        << "cannot read the answer /nonexistent/answer.txt";
    // Every database fault: the first reason, the file named, one exit code.
    QTest::newRow("missing database")
        << QStringList{"--model", "IP 7", "--command", "bl -n", "--answer", answer, "--db", "/nonexistent/Config.vkt"}
        << 2 << "cannot read the database /nonexistent/Config.vkt: file not found";
    QTest::newRow("not a database")
        << QStringList{"--model", "IP 7", "--command", "bl -n", "--answer", answer, "--db", answer} << 2
        << QStringLiteral("cannot read the database %1: file is not a database").arg(answer);
    QTest::newRow("incomplete database")
        << QStringList{"--model", "IP 7", "--command", "bl -n", "--answer", answer, "--db", "INCOMPLETE"} << 2
        << "no such table: M";
}

void TestJudgeCompare::mistakes()
{
    QFETCH(QStringList, args);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    if (const qsizetype at = args.indexOf(QStringLiteral("INCOMPLETE")); at >= 0) {
        // The shipped file without its masks table.
        const QString incomplete = m_dir.filePath(QStringLiteral("incomplete.vkt"));
        QFile::remove(incomplete);
        QVERIFY(QFile::copy(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"), incomplete));
        QFile::setPermissions(incomplete, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        {
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("incomplete"));
            db.setDatabaseName(incomplete);
            QVERIFY(db.open());
            QVERIFY(QSqlQuery(db).exec(QStringLiteral("DROP TABLE M")));
            db.close();
        }
        QSqlDatabase::removeDatabase(QStringLiteral("incomplete"));
        args[at] = incomplete;
        message = QStringLiteral("cannot read the database %1: %2").arg(incomplete, message);
    }
    const Run r = cli(QStringList{QStringLiteral("judge"), QStringLiteral("compare")} + args);
    QCOMPARE(r.exitCode, exitCode);
    QVERIFY2(r.err.contains(message), qPrintable(r.err));
    QVERIFY(r.out.isEmpty());
}

QTEST_GUILESS_MAIN(TestJudgeCompare)
#include "tst_judgecompare.moc"
