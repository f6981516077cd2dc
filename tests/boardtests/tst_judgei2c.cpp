// vekto-cli judge i2c and judge ic, run as the program they are, on answers of the simulated
// boards and on answers that went wrong: what support sees when a technician sends one in.
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
QByteArray consoleAnswer(const QString &model, Profile profile, const QString &command)
{
    Board board(AnswerStore(), *SimCatalog::modelByName(model), profile);
    board.receive(command.toUtf8() + '\r');
    QByteArray bytes;
    while (board.hasOutput())
        bytes += board.takeOutput(1 << 20);
    return (QStringLiteral("\r\n") + ConsoleExchange::convertSlice(QString::fromUtf8(bytes))).toUtf8();
}

struct Run
{
    int exitCode = -1;
    QJsonObject report;
    QString errors;
};

Run cli(const QStringList &args)
{
    QProcess p;
    p.start(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli"), args);
    Run r;
    if (!p.waitForFinished(60000))
        return r;
    r.exitCode = p.exitCode();
    r.report = QJsonDocument::fromJson(p.readAllStandardOutput()).object();
    r.errors = QString::fromUtf8(p.readAllStandardError());
    return r;
}

const QString Db = QStringLiteral(VEKTO_BIN_DIR "/Config.vkt");

} // namespace

class TestJudgeI2C : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString save(const QByteArray &answer)
    {
        const QString path = m_dir.filePath(QString::fromUtf8(QTest::currentDataTag()).replace(u' ', u'_') + QStringLiteral(".txt"));
        QFile f(path);
        f.open(QIODevice::WriteOnly);
        f.write(answer);
        return path;
    }

private slots:
    void initTestCase()
    {
        if (!QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli")) || !QFile::exists(Db))
            QSKIP("vekto-cli or Config.vkt was not built");
    }

    void i2c_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("bus");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("verdicts");
        QTest::addColumn<QString>("failures");
        const QString none;
        QTest::newRow("IP 7 bus 2 good") << "IP 7" << 2 << consoleAnswer("IP 7", Profile::Good, "i2c -s 2") << 0 << "pp"
                                         << none;
        QTest::newRow("IP 7 front flex lost a device")
            << "IP 7" << 2 << consoleAnswer("IP 7", Profile::I2cMissing, "i2c -s 2") << 1 << "pf"
            << "I2C 2\nJ4503 - Flex Front Camera and Prox. Sensor Cable \nx39 - Prox ALS Sensor";
        QTest::newRow("silent board: every device fails") << "IP 8" << 0 << QByteArray("\r\n") << 1 << "fff"
                                                          << "I2C 0\nx74 - PMU\nx1b - Hydra\nx75 - Charger Tigris";
        QTest::newRow("no rows for the bus: nothing judged")
            << "IP 7" << 6 << consoleAnswer("IP 7", Profile::Good, "i2c -s 6") << 1 << "" << none;
        QTest::newRow("a megabyte of garbage") << "IP X" << 5 << QByteArray(1 << 20, '\xfe') << 1 << "ff"
                                               << "I2C 5\nx2a - Acorn\nx4e - Face ID Romeo";
    }
    void i2c()
    {
        QFETCH(QString, model);
        QFETCH(int, bus);
        QFETCH(QByteArray, answer);
        QFETCH(int, exitCode);
        QFETCH(QString, verdicts);
        QFETCH(QString, failures);
        const Run r = cli({"judge", "i2c", "--model", model, "--bus", QString::number(bus), "--answer", save(answer),
                           "--db", Db, "--json"});
        QVERIFY2(r.exitCode == exitCode, qPrintable(r.errors));
        QCOMPARE(r.report.value("engine").toString(), QStringLiteral("i2c"));
        QString got;
        for (const QJsonValue &v : r.report.value("rows").toArray()) {
            const QJsonObject row = v.toObject();
            QCOMPARE(row.value("name").toString().size(), 3);
            QVERIFY(row.value("caption").toString().startsWith(row.value("name").toString() + " - "));
            got += row.value("verdict").toString().left(1);
        }
        QCOMPARE(got, verdicts);
        const QJsonObject extra = r.report.value("extra").toObject();
        QCOMPARE(extra.value("failures").toString(), failures);
        QCOMPARE(extra.value("FrameResultadoOK").toBool(), failures.isEmpty());
    }

    void ic_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QJsonValue>("status");
        QTest::addColumn<QString>("chip");
        QTest::newRow("IP 8 Plus data dump") << "IP 8 Plus" << 1 << consoleAnswer("IP 8 Plus", Profile::Good, "tristar -p")
                                             << 0 << QJsonValue("COMUNICAÇÃO OK") << "HYDRA";
        QTest::newRow("200 characters") << "IP 7" << 1 << QByteArray(200, 'a') << 1 << QJsonValue("COMUNICAÇÃO OFF")
                                        << "TRISTAR";
        QTest::newRow("30 characters: never arrived") << "IP 7" << 1 << QByteArray(30, 'a') << 1 << QJsonValue() << "TRISTAR";
        QTest::newRow("kind 6 is not judged") << "IP 7" << 6 << QByteArray(500, 'a') << 1 << QJsonValue() << "TRISTAR";
    }
    void ic()
    {
        QFETCH(QString, model);
        QFETCH(int, mode);
        QFETCH(QByteArray, answer);
        QFETCH(int, exitCode);
        QFETCH(QJsonValue, status);
        QFETCH(QString, chip);
        const Run r = cli({"judge", "ic", "--model", model, "--mode", QString::number(mode), "--answer", save(answer), "--json"});
        QVERIFY2(r.exitCode == exitCode, qPrintable(r.errors));
        QCOMPARE(r.report.value("status"), status);
        QCOMPARE(r.report.value("extra").toObject().value("chip").toString(), chip);
    }

    void badUse_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::newRow("bus 8") << QStringList{"judge", "i2c", "--model", "IP 7", "--bus", "8", "--answer", Db};
        QTest::newRow("answer missing") << QStringList{"judge", "i2c", "--model", "IP 7", "--bus", "0", "--answer",
                                                       "/nonexistent/a.txt"};
        QTest::newRow("database missing") << QStringList{"judge", "i2c", "--model", "IP 7", "--bus", "0", "--answer", Db,
                                                         "--db", "/nonexistent/Config.vkt"};
        QTest::newRow("ic without mode") << QStringList{"judge", "ic", "--model", "IP 7", "--answer", Db};
        QTest::newRow("run without port") << QStringList{"run", "i2c", "--model", "IP 7"};
    }
    void badUse()
    {
        QFETCH(QStringList, args);
        const Run r = cli(args);
        QCOMPARE(r.exitCode, 2);
        QVERIFY(!r.errors.isEmpty());
    }
};

QTEST_MAIN(TestJudgeI2C)
#include "tst_judgei2c.moc"
