// The simulated phone's board on its own: the console framing every answer keeps, commands split
// across writes or typed in another case, the fault profiles that change the framing, answers
// taken from a folder, and the command line's refusals. What the program reads out of the
// answers (I2C devices, radios, rails) is checked where it is read: the engines' tests on the
// simulated boards and the end-to-end tests.
#include "AnswerStore.h"
#include "Board.h"
#include "SimCatalog.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

namespace {
const QRegularExpression kPrompt(QStringLiteral("\\[[0-9a-fA-F]{8}:[0-9a-fA-F]{8}\\] :-\\) $"));

QByteArray exchange(Board &board, const QByteArray &command)
{
    board.receive(command + '\r');
    return board.takeOutput(1 << 24);
}

Board boardFor(const QString &model, Profile profile = Profile::Good)
{
    return Board(AnswerStore(), *SimCatalog::modelByName(model), profile);
}

// What the desktop program's console holds after an exchange: one CR LF first, then the
// received bytes with every LF turned into CR LF.
QByteArray consoleText(const QByteArray &received)
{
    QByteArray t = received;
    t.replace("\n", "\r\n");
    return "\r\n" + t;
}

}

class TestSim : public QObject
{
    Q_OBJECT
private slots:
    void framing_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QByteArray>("command");
        QTest::newRow("syscfg") << "IP 7" << QByteArray("syscfg print RMd#");
        QTest::newRow("pmuadc") << "IP X" << QByteArray("pmuadc --read all");
        QTest::newRow("unknown") << "IP 8" << QByteArray("frobnicate --now");
        QTest::newRow("empty") << "IP 6" << QByteArray();
        QTest::newRow("help") << "IP 6s" << QByteArray("Help");
    }

    void framing()
    {
        QFETCH(QString, model);
        QFETCH(QByteArray, command);
        Board board = boardFor(model);
        const QByteArray out = exchange(board, command);
        QVERIFY2(out.startsWith(command + "\r\n"), out.left(80).constData());
        QVERIFY(QRegularExpression(kPrompt).match(QString::fromLatin1(out)).hasMatch());
        const qsizetype promptAt = out.lastIndexOf('[');
        const QByteArray body = out.mid(command.size() + 2, promptAt - command.size() - 2);
        QVERIFY(body.isEmpty() || body.endsWith('\n'));
        QVERIFY(!body.contains('\r'));
        QCOMPARE(out.count("] :-) "), 1);
    }

    void commandSplitAcrossWrites()
    {
        Board board = boardFor(QStringLiteral("IP 7"));
        board.receive("sysc");
        QVERIFY(!board.hasOutput());
        board.receive("fg print RMd#\r\n");  // a stray LF after the CR is not a second command
        const QByteArray out = board.takeOutput(1 << 20);
        QVERIFY(out.startsWith("syscfg print RMd#\r\nA1660\n["));
        QCOMPARE(out.count("] :-) "), 1);
    }

    void caseInsensitive_data()
    {
        QTest::addColumn<QByteArray>("typed");
        QTest::addColumn<QByteArray>("canonical");
        QTest::newRow("buttons") << QByteArray("buttoncnt --dqe") << QByteArray("BUTTONCNT --DQE");
        QTest::newRow("reset") << QByteArray("RESET") << QByteArray("Reset");
        QTest::newRow("help") << QByteArray("help") << QByteArray("Help");
        QTest::newRow("memory") << QByteArray("testmemory --1MB") << QByteArray("TESTMEMORY --1MB");
        QTest::newRow("blanks") << QByteArray("tristar --read dx1 --read dx2 --read acc1 --read acc2 --read idx --read vdx")
                                << QByteArray("tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx");
    }

    void caseInsensitive()
    {
        QFETCH(QByteArray, typed);
        QFETCH(QByteArray, canonical);
        Board board = boardFor(QStringLiteral("IP 8"));
        const QByteArray a = board.answerBody(QString::fromLatin1(typed));
        QVERIFY(!a.contains("not found"));
        QCOMPARE(a, board.answerBody(QString::fromLatin1(canonical)));
    }

    void unknownAndMissingCommands_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("known");
        QTest::newRow("unknown") << "IP 7" << "xyz" << false;
        for (const char *cmd : {"nanduid", "nandsize", "nand --getinfo"}) {
            QTest::addRow("IP 6 %s", cmd) << "IP 6" << cmd << false;
            QTest::addRow("IP 6 Plus %s", cmd) << "IP 6 Plus" << cmd << false;
            QTest::addRow("IP 6s %s", cmd) << "IP 6s" << cmd << true;
            QTest::addRow("IP X %s", cmd) << "IP X" << cmd << true;
        }
        QTest::newRow("IP 6 syscfg list") << "IP 6" << "syscfg list" << true;
    }

    void unknownAndMissingCommands()
    {
        QFETCH(QString, model);
        QFETCH(QString, command);
        QFETCH(bool, known);
        Board board = boardFor(model);
        const QByteArray body = board.answerBody(command);
        QCOMPARE(body.contains("not found"), !known);
        QCOMPARE(body.contains("Command"), !known);
        if (known && command != QLatin1String("syscfg list"))  // the NAND screen's good answer
            QVERIFY(body.contains("Pass") || body.contains("name:"));
        if (command == QLatin1String("syscfg list"))  // complete only from 7001 console characters
            QVERIFY(consoleText(exchange(board, command.toLatin1())).size() >= 7001);
    }

    void unplugCutsLongAnswer()
    {
        Board board = boardFor(QStringLiteral("IP 7"), Profile::Unplug);
        QVERIFY(exchange(board, "syscfg print RMd#").endsWith("] :-) "));  // short answers come whole
        QVERIFY(!board.pulledPlug());
        board.receive("pmuadc --read all\r");
        QVERIFY(!board.pulledPlug());
        const QByteArray part = board.takeOutput(1 << 20);
        QVERIFY(board.pulledPlug());
        Board good = boardFor(QStringLiteral("IP 7"));
        good.receive("syscfg print RMd#\r");
        good.takeOutput(1 << 20);
        const QByteArray whole = exchange(good, "pmuadc --read all");
        QVERIFY(part.size() > 100 && part.size() < whole.size());
        QVERIFY(whole.startsWith(part));
        QVERIFY(!part.contains(":-)"));
        QVERIFY(exchange(board, "Help").isEmpty());  // the cable is gone
    }

    void garbageKeepsFraming()
    {
        Board board = boardFor(QStringLiteral("IP 7"), Profile::Garbage);
        const QByteArray out = exchange(board, "pmuadc --read all");
        QVERIFY(out.startsWith("pmuadc --read all\r\n"));
        QVERIFY(out.endsWith("] :-) "));
        QVERIFY(out.contains('\0'));
        QVERIFY(out.contains('\x1b'));
        QVERIFY(!QString::fromUtf8(out).toUtf8().contains(out));  // not valid UTF-8
        QVERIFY(out.contains("vbuck3: "));
    }

    void overrideFolder()
    {
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("ip7")));
        QFile index(dir.path() + QStringLiteral("/ip7/index.tsv"));
        QVERIFY(index.open(QIODevice::WriteOnly));
        index.write("# recorded on a bench board\nBattery --Properties\tbattery.txt\n");
        index.close();
        QFile answer(dir.path() + QStringLiteral("/ip7/battery.txt"));
        QVERIFY(answer.open(QIODevice::WriteOnly));
        answer.write("Voltage: 4101 mV\n");
        answer.close();
        Board board(AnswerStore(dir.path()), *SimCatalog::modelByName(QStringLiteral("IP 7")), Profile::Good);
        QCOMPARE(board.answerBody(QStringLiteral("battery --properties")), QByteArray("Voltage: 4101 mV\n"));
        QVERIFY(board.answerBody(QStringLiteral("syscfg print RMd#")).contains("A1660"));  // the rest is built in
        Board other(AnswerStore(dir.path()), *SimCatalog::modelByName(QStringLiteral("IP 8")), Profile::Good);
        QVERIFY(!other.answerBody(QStringLiteral("battery --properties")).contains("4101"));
    }

    void commandLineRefusesUnknownNames()
    {
        for (const QStringList &args : {QStringList{"--model", "IP 9"}, QStringList{"--profile", "flaky"}}) {
            QProcess bad;
            bad.start(QStringLiteral(VEKTO_BIN_DIR "/vekto-sim"), args);
            QVERIFY(bad.waitForFinished(5000));
            QCOMPARE(bad.exitCode(), 2);
            QVERIFY(bad.readAllStandardOutput().isEmpty());
            QVERIFY(!bad.readAllStandardError().isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(TestSim)
#include "tst_sim.moc"
