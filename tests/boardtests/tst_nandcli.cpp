// vekto-cli judge nand-size, nand-status and outros, run as the program it is, on saved console
// answers of the simulated boards and on answers that go wrong: the JSON report and the exit code
// a support script reads.

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

const QString Cli = QStringLiteral(VEKTO_BIN_DIR "/vekto-cli");

// The console text the tool shows after sending `command` to a fresh good simulated board.
QString simAnswer(const QString &model, const QString &command)
{
    Board board(AnswerStore(), *SimCatalog::modelByName(model), Profile::Good);
    board.receive(command.toUtf8() + '\r');
    QByteArray bytes;
    while (board.hasOutput())
        bytes += board.takeOutput(1 << 20);
    return QStringLiteral("\r\n") + ConsoleExchange::convertSlice(QString::fromUtf8(bytes));
}

QString console(const QString &command, const QString &lines)
{
    return QStringLiteral("\r\n") + command + QStringLiteral("\r\r\n") + lines + QStringLiteral("\r\n[0000002a:0000001b] :-) ");
}

struct Run
{
    int exitCode = -1;
    QJsonObject json;
    QString errors;
};

Run runCli(const QStringList &args)
{
    QProcess cli;
    cli.start(Cli, args);
    Run run;
    if (!cli.waitForFinished(30000)) {
        cli.kill();
        cli.waitForFinished();
        return run;
    }
    run.exitCode = cli.exitStatus() == QProcess::NormalExit ? cli.exitCode() : -1;
    run.json = QJsonDocument::fromJson(cli.readAllStandardOutput()).object();
    run.errors = QString::fromUtf8(cli.readAllStandardError());
    return run;
}

} // namespace

class TestNandCli : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString save(const QString &answer)
    {
        const QString path = m_dir.filePath(QString::fromUtf8(QTest::currentDataTag()) + QStringLiteral(".txt"));
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(answer.toUtf8());
        return path;
    }

private slots:
    void initTestCase()
    {
        if (!QFile::exists(Cli))
            QSKIP("vekto-cli was not built");
    }

    void judge_data()
    {
        QTest::addColumn<QStringList>("engine"); // engine and its --mode, if any
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("caption"); // of the one row; empty: no rows
        QTest::addColumn<QString>("verdict");
        QTest::addColumn<QString>("status");  // empty: null
        const QStringList size{"nand-size"};
        const auto status = [](int mode) { return QStringList{"nand-status", "--mode", QString::number(mode)}; };
        const auto outros = [](int mode) { return QStringList{"outros", "--mode", QString::number(mode)}; };
        QTest::newRow("size IP 7") << size << "IP 7" << simAnswer("IP 7", "nandsize") << 0 << "NAND 128 GB" << "pass" << "";
        QTest::newRow("size IP 6") << size << "IP 6" << simAnswer("IP 6", "nandsize") << 1
                                   << "NAND Não disponível para 6/6P" << "none" << "";
        QTest::newRow("size between classes") << size << "IP 7" << console("nandsize", "size in KiB:3B9ACA") << 1
                                              << "NAND 3 GB APROX." << "fail" << "";
        QTest::newRow("uid IP 7") << status(0) << "IP 7" << simAnswer("IP 7", "nanduid") << 0 << "" << "" << "COMUNICAÇÃO OK";
        QTest::newRow("syscfg list IP X") << status(3) << "IP X" << simAnswer("IP X", "syscfg list") << 0 << "" << ""
                                          << "COMUNICAÇÃO OK";
        QTest::newRow("uid IP 6") << status(0) << "IP 6" << simAnswer("IP 6", "nanduid") << 1 << "" << "" << "";
        QTest::newRow("DRAM IP 7") << outros(5) << "IP 7" << simAnswer("IP 7", "testmemory") << 0 << "" << ""
                                   << "COMUNICAÇÃO OK";
        QTest::newRow("DRAM failed") << outros(5) << "IP 7" << console("testmemory", "memory test walking-1 FAILED")
                                     << 1 << "" << "" << "COMUNICAÇÃO OFF";
        QTest::newRow("Tristar is not judged") << outros(1) << "IP 7" << simAnswer("IP 7", "tristar -p") << 1 << "" << ""
                                               << "";
    }
    void judge()
    {
        QFETCH(QStringList, engine);
        QFETCH(QString, model);
        QFETCH(QString, answer);
        QFETCH(int, exitCode);
        QFETCH(QString, caption);
        QFETCH(QString, verdict);
        QFETCH(QString, status);
        const QStringList args = QStringList{"judge"} + engine
                                 + QStringList{"--model", model, "--answer", save(answer), "--json"};
        const Run run = runCli(args);
        QVERIFY2(run.exitCode == exitCode, qPrintable(QString::number(run.exitCode) + u' ' + run.errors));
        QCOMPARE(run.json.value("engine").toString(), engine.first());
        QCOMPARE(run.json.value("model").toString(), model);
        const QJsonArray rows = run.json.value("rows").toArray();
        QCOMPARE(rows.size(), caption.isEmpty() ? 0 : 1);
        if (!caption.isEmpty()) {
            QCOMPARE(rows.first().toObject().value("name").toString(), QStringLiteral("lbNand"));
            QCOMPARE(rows.first().toObject().value("caption").toString(), caption);
            QCOMPARE(rows.first().toObject().value("verdict").toString(), verdict);
        }
        QCOMPARE(run.json.value("status").isNull(), status.isEmpty());
        QCOMPARE(run.json.value("status").toString(), status);
    }

    // The phone's answer to a command it lacks is named in the report, not passed over.
    void replacementInExtra()
    {
        const Run run = runCli({"judge", "nand-status", "--mode", "2", "--model", "IP 6 Plus", "--answer",
                                save(simAnswer("IP 6 Plus", "nand --getinfo")), "--json"});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.json.value("extra").toObject().value("replacement").toString(),
                 QStringLiteral("Não disponível para 6/6P"));
    }

    void badUse_data()
    {
        QTest::addColumn<QStringList>("args");
        const QString answer = m_dir.filePath("any.txt");
        QFile file(answer);
        if (file.open(QIODevice::WriteOnly))
            file.write("\r\n");
        file.close();
        QTest::newRow("status without a mode") << QStringList{"judge", "nand-status", "--model", "IP 7", "--answer", answer};
        QTest::newRow("mode 4 sends nothing") << QStringList{"judge", "nand-status", "--mode", "4", "--model", "IP 7",
                                                             "--answer", answer};
        QTest::newRow("outros mode 3") << QStringList{"judge", "outros", "--mode", "3", "--model", "IP 7", "--answer", answer};
        QTest::newRow("size takes no mode") << QStringList{"judge", "nand-size", "--mode", "1", "--model", "IP 7",
                                                           "--answer", answer};
        QTest::newRow("no model") << QStringList{"judge", "nand-size", "--answer", answer};
        QTest::newRow("unreadable answer") << QStringList{"judge", "nand-size", "--model", "IP 7", "--answer",
                                                          m_dir.filePath("missing.txt")};
        QTest::newRow("run without a port") << QStringList{"run", "outros", "--mode", "5", "--model", "IP 7"};
    }
    void badUse()
    {
        QFETCH(QStringList, args);
        const Run run = runCli(args);
        QCOMPARE(run.exitCode, 2);
        QVERIFY(!run.errors.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestNandCli)
#include "tst_nandcli.moc"
