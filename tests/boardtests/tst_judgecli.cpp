// vekto-cli judge on saved console answers, run as the program it is: what support reads when a
// technician sends one in. Answers of the simulated boards and answers that went wrong, for every
// board-test and chip engine: the JSON report, and an exit code that follows the verdict (nothing
// judged is never a pass; bad use is told apart from a failed board).

#include "CliRun.h"
#include "SimAnswer.h"

#include <QJsonArray>
#include <QtTest>

namespace {

const QString Db = QStringLiteral(VEKTO_BIN_DIR "/Config.vkt");
const QJsonValue Unchecked(QJsonValue::Undefined);

QByteArray sim(const QString &model, const QString &command, Profile profile = Profile::Good)
{
    return simConsoleAnswer(model, command, profile).toUtf8();
}

QByteArray console(const QString &command, const QString &lines)
{
    return (QStringLiteral("\r\n") + command + QStringLiteral("\r\r\n") + lines + QStringLiteral("\r\n[0000002a:0000001b] :-) ")).toUtf8();
}

QString chipCommand(const QString &engine)
{
    if (engine == QLatin1String("tigris") || engine == QLatin1String("chestnut"))
        return QStringLiteral("pmuadc --sel ") + engine + QStringLiteral(" --read all");
    return QStringLiteral("pmuadc --read all");
}

} // namespace

class TestJudgeCli : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    // Runs `judge ARGS --answer FILE --json`, FILE holding `answer`; "@" in ARGS is that file too.
    CliRun judge(QStringList args, const QByteArray &answer)
    {
        const QString file = saveAnswer(m_dir, answer);
        args.replaceInStrings(QStringLiteral("@"), file);
        return runCli(QStringList{QStringLiteral("judge")} + args + QStringList{"--answer", file, "--json"});
    }

private slots:
    void initTestCase()
    {
        if (!QFile::exists(cliProgram()) || !QFile::exists(Db))
            QSKIP("vekto-cli or Config.vkt was not built");
    }

    void judge_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("verdicts"); // first letter of each row's verdict; "*": not checked
        QTest::addColumn<QString>("caption");  // of the first row; empty: not checked
        QTest::addColumn<QJsonValue>("status"); // undefined: not checked
        QTest::addColumn<QString>("extra");    // "key=value" of the extra object; empty: not checked
        const QString front = "I2C 2\nJ4503 - Flex Front Camera and Prox. Sensor Cable \nx39 - Prox ALS Sensor";
        const auto i2c = [](const char *model, int bus) {
            return QStringList{"i2c", "--model", model, "--bus", QString::number(bus), "--db", Db};
        };
        QTest::newRow("i2c IP 7 bus 2 good") << i2c("IP 7", 2) << sim("IP 7", "i2c -s 2") << 0 << "pp" << "" << Unchecked
                                             << "failures=";
        QTest::newRow("i2c front flex lost a device") << i2c("IP 7", 2) << sim("IP 7", "i2c -s 2", Profile::I2cMissing) << 1
                                                      << "pf" << "x37 - Front Camera - COMUNICAÇÃO OK" << Unchecked
                                                      << "failures=" + front;
        QTest::newRow("i2c no rows for the bus: nothing judged") << i2c("IP 7", 6) << sim("IP 7", "i2c -s 6") << 1 << ""
                                                                 << "" << Unchecked << "failures=";
        QTest::newRow("i2c a megabyte of garbage") << i2c("IP X", 5) << QByteArray(1 << 20, '\xfe') << 1 << "ff" << ""
                                                   << Unchecked << "failures=I2C 5\nx2a - Acorn\nx4e - Face ID Romeo";

        const auto ic = [](const char *model, int mode) {
            return QStringList{"ic", "--model", model, "--mode", QString::number(mode)};
        };
        QTest::newRow("ic IP 8 Plus data dump") << ic("IP 8 Plus", 1) << sim("IP 8 Plus", "tristar -p") << 0 << "*" << ""
                                                << QJsonValue("COMUNICAÇÃO OK") << "chip=HYDRA";
        QTest::newRow("ic 30 characters: never arrived") << ic("IP 7", 1) << QByteArray(30, 'a') << 1 << "*" << ""
                                                         << QJsonValue() << "";
        QTest::newRow("ic kind 6 is not judged") << ic("IP 7", 6) << QByteArray(500, 'a') << 1 << "*" << ""
                                                 << QJsonValue() << "";

        const auto size = [](const char *model) { return QStringList{"nand-size", "--model", model}; };
        const auto status = [](const char *model, int mode) {
            return QStringList{"nand-status", "--mode", QString::number(mode), "--model", model};
        };
        const auto outros = [](const char *model, int mode) {
            return QStringList{"outros", "--mode", QString::number(mode), "--model", model};
        };
        QTest::newRow("nand size IP 7") << size("IP 7") << sim("IP 7", "nandsize") << 0 << "p" << "NAND 128 GB"
                                        << QJsonValue() << "";
        QTest::newRow("nand size IP 6") << size("IP 6") << sim("IP 6", "nandsize") << 1 << "n"
                                        << "NAND Não disponível para 6/6P" << QJsonValue() << "";
        QTest::newRow("nand uid IP 7") << status("IP 7", 0) << sim("IP 7", "nanduid") << 0 << "" << ""
                                       << QJsonValue("COMUNICAÇÃO OK") << "";
        QTest::newRow("nand info IP 6 Plus: the phone's refusal is named")
            << status("IP 6 Plus", 2) << sim("IP 6 Plus", "nand --getinfo") << 1 << "" << "" << QJsonValue()
            << "replacement=Não disponível para 6/6P";
        QTest::newRow("DRAM IP 7") << outros("IP 7", 5) << sim("IP 7", "testmemory") << 0 << "" << ""
                                   << QJsonValue("COMUNICAÇÃO OK") << "";
        QTest::newRow("DRAM failed") << outros("IP 7", 5) << console("testmemory", "memory test walking-1 FAILED") << 1
                                     << "" << "" << QJsonValue("COMUNICAÇÃO OFF") << "";
        QTest::newRow("Tristar is not judged") << outros("IP 7", 1) << sim("IP 7", "tristar -p") << 1 << "" << ""
                                               << QJsonValue() << "";

        const auto rf = [](const char *model, const char *radio) {
            return QStringList{"rf", "--model", model, "--radio", radio};
        };
        QTest::newRow("rf baseband ready") << rf("IP 7", "0") << QByteArray("\r\nbaseband --on\r\r\nBB_HSIC_RDY\r\r\n") << 0
                                           << "p" << "" << QJsonValue("Baseband\r\nCOMUNICAÇÃO OK") << "";
        QTest::newRow("rf bluetooth by name, failed") << rf("IP X", "Bluetooth") << QByteArray("power on failed") << 1 << "f"
                                                      << "" << QJsonValue("Bluetooth\r\nCOMUNICAÇÃO OFF") << "";
        QTest::newRow("rf blank answer") << rf("IP 7", "3") << QByteArray("\r\n") << 1 << "n" << "" << QJsonValue() << "";
        QTest::newRow("rf wifi on IP 6 says why") << rf("IP 6", "wifi") << QByteArray("Wifi power on success") << 1 << "n"
                                                  << "" << QJsonValue() << "message=MSG_NAO_PARA_IP6";

        QTest::newRow("chestnut refuses IP X") << QStringList{"chestnut", "--model", "IP X"}
                                               << QByteArray("chestnut vldo1 : 5700.0 mV\r\n") << 1 << "" << ""
                                               << QJsonValue("NOT FOR X!") << "";
        QTest::newRow("acorn refuses IP 7") << QStringList{"acorn", "--model", "IP 7"}
                                            << QByteArray("acorn vp : 10000.0 mV\r\n") << 1 << "" << ""
                                            << QJsonValue("Reading available only for the IP X!") << "";
        QTest::newRow("tigris empty answer judges nothing") << QStringList{"tigris", "--model", "IP 7"} << QByteArray()
                                                            << 1 << "nnnnnn" << "" << Unchecked << "";
        QTest::newRow("tristar empty answer fails") << QStringList{"tristar", "--model", "IP 7"} << QByteArray() << 1 << "*"
                                                    << "" << QJsonValue("NORMAL") << "";
    }
    void judge()
    {
        QFETCH(QStringList, args);
        QFETCH(QByteArray, answer);
        QFETCH(QString, verdicts);
        QFETCH(QString, caption);
        QFETCH(QJsonValue, status);
        QFETCH(QString, extra);
        const CliRun run = judge(args, answer);
        QFETCH(int, exitCode);
        QVERIFY2(run.exitCode == exitCode, qPrintable(run.describe()));
        QCOMPARE(run.json.value("engine").toString(), args.first());
        QCOMPARE(run.json.value("model").toString(), args.value(args.indexOf("--model") + 1));
        const QJsonArray rows = run.json.value("rows").toArray();
        QString got;
        for (const QJsonValue &row : rows)
            got += row.toObject().value("verdict").toString().left(1);
        if (verdicts != QLatin1String("*"))
            QCOMPARE(got, verdicts);
        if (!caption.isEmpty())
            QCOMPARE(rows.first().toObject().value("caption").toString(), caption);
        if (!status.isUndefined())
            QCOMPARE(run.json.value("status"), status);
        if (!extra.isEmpty()) {
            const QString key = extra.section(u'=', 0, 0);
            QCOMPARE(run.json.value("extra").toObject().value(key).toString(), extra.section(u'=', 1));
        }
    }

    // Every good board passes each chip it has; the low-rail board fails exactly its one lowered value.
    void simulatedChips_data()
    {
        QTest::addColumn<QString>("engine");
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("profile");
        QTest::addColumn<QStringList>("failing");
        for (const SimModel &m : SimCatalog::models())
            for (const char *engine : {"tigris", "tristar", m.name == QLatin1String("IP X") ? "acorn" : "chestnut"})
                QTest::addRow("%s %s", engine, qPrintable(m.name)) << engine << m.name << int(Profile::Good) << QStringList{};
        QTest::newRow("tigris low rail") << "tigris" << "IP 7" << int(Profile::LowRail) << QStringList{"VBus_V"};
        QTest::newRow("tristar low rail") << "tristar" << "IP 6" << int(Profile::LowRail) << QStringList{"Malha2_V"};
        QTest::newRow("chestnut low rail") << "chestnut" << "IP 8" << int(Profile::LowRail) << QStringList{"iLDO_V(1)"};
        QTest::newRow("acorn low rail") << "acorn" << "IP X" << int(Profile::LowRail) << QStringList{"M3"};
        QTest::newRow("garbled tigris still passes") << "tigris" << "IP 8 Plus" << int(Profile::Garbage) << QStringList{};
    }
    void simulatedChips()
    {
        QFETCH(QString, engine);
        QFETCH(QString, model);
        QFETCH(int, profile);
        QFETCH(QStringList, failing);
        const CliRun run = judge({engine, "--model", model}, sim(model, chipCommand(engine), Profile(profile)));
        QVERIFY2(run.exitCode == (failing.isEmpty() ? 0 : 1), qPrintable(run.describe()));
        QStringList failed;
        for (const QJsonValue &row : run.json.value("rows").toArray()) {
            QVERIFY2(!row.toObject().value("caption").toString().contains("Measurement"), qPrintable(run.text));
            if (row.toObject().value("verdict").toString() == QLatin1String("fail"))
                failed << row.toObject().value("name").toString();
        }
        QCOMPARE(failed, failing);
    }

    // Names of arrays with their index, deviation text or null, the screen's extras.
    void reportShape()
    {
        const CliRun run = judge({"chestnut", "--model", "IP 8"}, sim("IP 8", chipCommand("chestnut")));
        const QJsonArray rows = run.json.value("rows").toArray();
        QCOMPARE(rows.at(1).toObject().value("name").toString(), QStringLiteral("iLDO_V(2)"));
        QCOMPARE(rows.at(1).toObject().value("label").toString(), QStringLiteral("chestnut vldo2 :"));
        QVERIFY(rows.at(1).toObject().value("deviation").toString().endsWith(QStringLiteral(" %")));
        QVERIFY(rows.at(3).toObject().value("deviation").isNull());
        QCOMPARE(rows.at(3).toObject().value("verdict").toString(), QStringLiteral("none"));
        QCOMPARE(run.json.value("extra").toObject().value("lbUC").toString(), QStringLiteral("U5600"));
        QCOMPARE(run.json.value("extra").toObject().value("images").toObject().size(), 5);
    }

    // Bad use exits 2 with a message and prints no report; "@" is a readable answer file.
    void badUse_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::newRow("no model") << QStringList{"judge", "nand-size", "--answer", "@"};
        QTest::newRow("unknown engine") << QStringList{"judge", "hydra", "--model", "IP 7", "--answer", "@"};
        QTest::newRow("answer missing") << QStringList{"judge", "rf", "--model", "IP 7", "--radio", "1", "--answer",
                                                       "/nonexistent/a.txt"};
        QTest::newRow("database missing") << QStringList{"judge", "i2c", "--model", "IP 7", "--bus", "0", "--answer", "@",
                                                         "--db", "/nonexistent/Config.vkt"};
        QTest::newRow("i2c bus 8") << QStringList{"judge", "i2c", "--model", "IP 7", "--bus", "8", "--answer", "@"};
        QTest::newRow("ic without mode") << QStringList{"judge", "ic", "--model", "IP 7", "--answer", "@"};
        QTest::newRow("nand status without a mode") << QStringList{"judge", "nand-status", "--model", "IP 7", "--answer", "@"};
        QTest::newRow("nand status mode 4 sends nothing")
            << QStringList{"judge", "nand-status", "--mode", "4", "--model", "IP 7", "--answer", "@"};
        QTest::newRow("nand size takes no mode")
            << QStringList{"judge", "nand-size", "--mode", "1", "--model", "IP 7", "--answer", "@"};
        QTest::newRow("outros mode 3") << QStringList{"judge", "outros", "--mode", "3", "--model", "IP 7", "--answer", "@"};
        QTest::newRow("rf without a radio") << QStringList{"judge", "rf", "--model", "IP 7", "--answer", "@"};
        QTest::newRow("rf radio 4") << QStringList{"judge", "rf", "--model", "IP 7", "--radio", "4", "--answer", "@"};
        QTest::newRow("rf unknown radio") << QStringList{"judge", "rf", "--model", "IP 7", "--radio", "nfc", "--answer", "@"};
        QTest::newRow("run without a port") << QStringList{"run", "outros", "--mode", "5", "--model", "IP 7"};
    }
    void badUse()
    {
        QFETCH(QStringList, args);
        args.replaceInStrings(QStringLiteral("@"), saveAnswer(m_dir, "OK\r\n"));
        const CliRun run = runCli(args);
        QVERIFY2(run.exitCode == 2, qPrintable(run.describe()));
        QVERIFY(!run.errors.isEmpty());
        QVERIFY(run.json.isEmpty());
    }
};

QTEST_MAIN(TestJudgeCli)
#include "tst_judgecli.moc"
