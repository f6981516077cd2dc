// vekto-cli judge compare, run as the program it is, on the shipped demo recordings.

#include "DemoSeeds.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
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
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
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
    QCOMPARE(plain.exitCode, 0);
    QVERIFY2(plain.out.startsWith(QStringLiteral("lbAutoComparador\t") + command + u'\t' + caption + u'\t' + verdict),
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
        << QStringList{"--model", "IP 7", "--command", "bl -n", "--answer", "/nonexistent/answer.txt"} << 1
        << "cannot read the answer";
    QTest::newRow("missing database")
        << QStringList{"--model", "IP 7", "--command", "bl -n", "--answer", answer, "--db", "/nonexistent/Config.vkt"}
        << 1 << "not found";
    QTest::newRow("not a database")
        << QStringList{"--model", "IP 7", "--command", "bl -n", "--answer", answer, "--db", answer} << 1
        << "database";
}

void TestJudgeCompare::mistakes()
{
    QFETCH(QStringList, args);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    const Run r = cli(QStringList{QStringLiteral("judge"), QStringLiteral("compare")} + args);
    QCOMPARE(r.exitCode, exitCode);
    QVERIFY2(r.err.contains(message), qPrintable(r.err));
    QVERIFY(r.out.isEmpty());
}

QTEST_GUILESS_MAIN(TestJudgeCompare)
#include "tst_judgecompare.moc"
