// vekto-cli judge for the chip readouts, run as the program it is, on the answers of the
// simulated boards: every good board passes on every model it has the chip on, the low-rail
// board fails exactly its one lowered value, and a refused model prints no rows.

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

QString commandOf(const QString &engine)
{
    if (engine == QLatin1String("tigris"))
        return QStringLiteral("pmuadc --sel tigris --read all");
    if (engine == QLatin1String("chestnut"))
        return QStringLiteral("pmuadc --sel chestnut --read all");
    return QStringLiteral("pmuadc --read all");
}

} // namespace

class TestJudgeChips : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    struct Run
    {
        int exitCode = -1;
        QJsonObject json;
        QString err;
    };

    Run judge(const QStringList &args)
    {
        QProcess cli;
        cli.start(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli"), QStringList{QStringLiteral("judge")} + args);
        Run run;
        if (!cli.waitForFinished(30000))
            return run;
        run.exitCode = cli.exitCode();
        run.json = QJsonDocument::fromJson(cli.readAllStandardOutput()).object();
        run.err = QString::fromUtf8(cli.readAllStandardError());
        return run;
    }

    QString save(const QString &name, const QString &answer)
    {
        const QString path = m_dir.filePath(name);
        QFile f(path);
        if (f.open(QIODevice::WriteOnly))
            f.write(answer.toUtf8());
        return path;
    }

private slots:
    void initTestCase()
    {
        if (!QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli")))
            QSKIP("vekto-cli was not built");
    }

    void simulatedBoards_data()
    {
        QTest::addColumn<QString>("engine");
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("profile");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QStringList>("failing");
        QTest::addColumn<int>("rows");
        for (const SimModel &m : SimCatalog::models()) {
            const bool x = m.name == QLatin1String("IP X");
            const bool late = x || m.name.startsWith(QLatin1String("IP 8"));
            QTest::addRow("tigris %s", qPrintable(m.name)) << "tigris" << m.name << int(Profile::Good) << 0 << QStringList{} << (late ? 10 : 6);
            QTest::addRow("tristar %s", qPrintable(m.name)) << "tristar" << m.name << int(Profile::Good) << 0 << QStringList{} << 6;
            if (!x)
                QTest::addRow("chestnut %s", qPrintable(m.name)) << "chestnut" << m.name << int(Profile::Good) << 0 << QStringList{} << 11;
        }
        QTest::newRow("acorn IP X") << "acorn" << "IP X" << int(Profile::Good) << 0 << QStringList{} << 16;
        QTest::newRow("tigris low rail") << "tigris" << "IP 7" << int(Profile::LowRail) << 1 << QStringList{"VBus_V"} << 6;
        QTest::newRow("tristar low rail") << "tristar" << "IP 6" << int(Profile::LowRail) << 1 << QStringList{"Malha2_V"} << 6;
        QTest::newRow("chestnut low rail") << "chestnut" << "IP 8" << int(Profile::LowRail) << 1 << QStringList{"iLDO_V(1)"} << 11;
        QTest::newRow("acorn low rail") << "acorn" << "IP X" << int(Profile::LowRail) << 1 << QStringList{"M3"} << 16;
        QTest::newRow("garbled tigris still passes") << "tigris" << "IP 8 Plus" << int(Profile::Garbage) << 0 << QStringList{} << 10;
    }
    void simulatedBoards()
    {
        QFETCH(QString, engine);
        QFETCH(QString, model);
        QFETCH(int, profile);
        QFETCH(int, exitCode);
        QFETCH(QStringList, failing);
        QFETCH(int, rows);
        const QString file = save(engine + QStringLiteral(".txt"), consoleAnswer(model, Profile(profile), commandOf(engine)));
        const Run run = judge({engine, QStringLiteral("--model"), model, QStringLiteral("--answer"), file, QStringLiteral("--json")});
        QCOMPARE(run.exitCode, exitCode);
        QCOMPARE(run.json.value(QStringLiteral("engine")).toString(), engine);
        const QJsonArray array = run.json.value(QStringLiteral("rows")).toArray();
        QCOMPARE(array.size(), rows);
        QStringList failed;
        for (const QJsonValue &row : array) {
            const QJsonObject r = row.toObject();
            QVERIFY2(!r.value(QStringLiteral("caption")).toString().contains(QStringLiteral("Measurement")),
                     qPrintable(r.value(QStringLiteral("name")).toString()));
            if (r.value(QStringLiteral("verdict")).toString() == QLatin1String("fail"))
                failed << r.value(QStringLiteral("name")).toString();
        }
        QCOMPARE(failed, failing);
    }

    // Refusals, answers that judge nothing and bad use, and what the report then says.
    void edges_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("status");
        QTest::newRow("chestnut refuses IP X") << QStringList{"chestnut", "--model", "IP X"} << "chestnut vldo1 : 5700.0 mV\r\n" << 1 << "NOT FOR X!";
        QTest::newRow("acorn refuses IP 7") << QStringList{"acorn", "--model", "IP 7"} << "acorn vp : 10000.0 mV\r\n" << 1 << "Reading available only for the IP X!";
        QTest::newRow("tigris empty answer judges nothing") << QStringList{"tigris", "--model", "IP 7"} << "" << 1 << "";
        QTest::newRow("tristar empty answer fails") << QStringList{"tristar", "--model", "IP 7"} << "" << 1 << "NORMAL";
        QTest::newRow("unknown chip") << QStringList{"hydra", "--model", "IP 7"} << "x" << 2 << "";
        QTest::newRow("no model") << QStringList{"tigris"} << "x" << 2 << "";
    }
    void edges()
    {
        QFETCH(QStringList, args);
        QFETCH(QString, answer);
        QFETCH(int, exitCode);
        QFETCH(QString, status);
        const Run run = judge(args + QStringList{QStringLiteral("--answer"), save(QStringLiteral("edge.txt"), answer),
                                                 QStringLiteral("--json")});
        QCOMPARE(run.exitCode, exitCode);
        if (exitCode == 2) {
            QVERIFY(run.json.isEmpty()); // bad use prints no report
            return;
        }
        QCOMPARE(run.json.value(QStringLiteral("status")).toString(), status);
        if (run.json.value(QStringLiteral("extra")).toObject().value(QStringLiteral("refused")).toBool())
            QVERIFY(run.json.value(QStringLiteral("rows")).toArray().isEmpty());
    }

    void unreadableAnswerIsBadInput()
    {
        const Run run = judge({QStringLiteral("tigris"), QStringLiteral("--model"), QStringLiteral("IP 7"),
                               QStringLiteral("--answer"), m_dir.filePath(QStringLiteral("absent.txt"))});
        QCOMPARE(run.exitCode, 2);
    }

    // The shape DESIGN promises: names of arrays with their index, deviation text or null, extras.
    void reportShape()
    {
        const QString file = save(QStringLiteral("shape.txt"),
                                  consoleAnswer(QStringLiteral("IP 8"), Profile::Good, commandOf(QStringLiteral("chestnut"))));
        const Run run = judge({QStringLiteral("chestnut"), QStringLiteral("--model"), QStringLiteral("IP 8"),
                               QStringLiteral("--answer"), file, QStringLiteral("--json")});
        const QJsonArray rows = run.json.value(QStringLiteral("rows")).toArray();
        QCOMPARE(rows.at(1).toObject().value(QStringLiteral("name")).toString(), QStringLiteral("iLDO_V(2)"));
        QCOMPARE(rows.at(1).toObject().value(QStringLiteral("label")).toString(), QStringLiteral("chestnut vldo2 :"));
        QVERIFY(rows.at(1).toObject().value(QStringLiteral("deviation")).toString().endsWith(QStringLiteral(" %")));
        QVERIFY(rows.at(3).toObject().value(QStringLiteral("deviation")).isNull());
        QCOMPARE(rows.at(3).toObject().value(QStringLiteral("verdict")).toString(), QStringLiteral("none"));
        const QJsonObject extra = run.json.value(QStringLiteral("extra")).toObject();
        QCOMPARE(extra.value(QStringLiteral("lbUC")).toString(), QStringLiteral("U5600"));
        QCOMPARE(extra.value(QStringLiteral("images")).toObject().size(), 5);
    }
};

QTEST_MAIN(TestJudgeChips)
#include "tst_judgechips.moc"
