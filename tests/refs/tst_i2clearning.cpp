// An I2C device list learned from an automatic run on a good board: which entries stay, go and
// come, and that the buses the run never probed keep their rows and origins.
#include "Database.h"
#include "I2CEngine.h"
#include "I2CLearning.h"
#include "RefOrigins.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using Answers = QMap<int, QString>;
Q_DECLARE_METATYPE(Answers)

namespace {

QString scan(int bus, const QStringList &addresses)
{
    QString text = QStringLiteral("i2c -s %1\r\r\nScanning I2C bus %1\r\n").arg(bus);
    for (const QString &a : addresses)
        text += QStringLiteral("  device answered at %1\r\n").arg(a);
    return text + QStringLiteral("[0000001A:0000BEEF] :-) ");
}

} // namespace

class TestI2CLearning : public QObject
{
    Q_OBJECT

private slots:
    void plan_data()
    {
        QTest::addColumn<QStringList>("current");
        QTest::addColumn<Answers>("answers");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<QStringList>("removed");

        const QStringList ip7 = {"0x74-PMU", "2x37-Front Camera", "2x39-Prox ALS Sensor", "3x33-Audio Codec"};
        QTest::newRow("all answered") << ip7 << Answers{{0, scan(0, {"0x74"})}, {2, scan(2, {"0x37", "0x39"})}}
                                      << ip7 << QStringList{} << QStringList{};
        QTest::newRow("silent one goes, new one comes")
            << ip7 << Answers{{2, scan(2, {"0x39", "0x4A"})}}
            << QStringList{"0x74-PMU", "2x39-Prox ALS Sensor", "3x33-Audio Codec", "2x4A-"}
            << QStringList{"2x4A-"} << QStringList{"2x37-Front Camera"};
        QTest::newRow("an address said twice comes once")
            << QStringList{} << Answers{{5, scan(5, {"0x10", "0x10"})}} << QStringList{"5x10-"} << QStringList{"5x10-"}
            << QStringList{};
        QTest::newRow("a silent bus empties") << ip7 << Answers{{3, scan(3, {})}}
                                              << QStringList{"0x74-PMU", "2x37-Front Camera", "2x39-Prox ALS Sensor"}
                                              << QStringList{} << QStringList{"3x33-Audio Codec"};
        QTest::newRow("not addresses: heading, prompt, 0x123")
            << QStringList{} << Answers{{1, QStringLiteral("Scanning I2C bus 1\r\nreg 0x123 [0000001A:0000BEEF]")}}
            << QStringList{} << QStringList{} << QStringList{};
    }

    void plan()
    {
        QFETCH(QStringList, current);
        QFETCH(Answers, answers);
        QFETCH(QStringList, entries);
        QFETCH(QStringList, added);
        QFETCH(QStringList, removed);
        const I2CLearning::Plan p = I2CLearning::plan(QStringLiteral("IP 7"), current, answers);
        QCOMPARE(p.entries, entries);
        QCOMPARE(p.added, added);
        QCOMPARE(p.removed, removed);
        // What was learned passes the judge on the very answers it came from.
        for (auto it = answers.begin(); it != answers.end(); ++it) {
            QStringList onBus;
            for (const QString &e : p.entries)
                if (e.startsWith(QString::number(it.key())))
                    onBus << e;
            QVERIFY(!I2CEngine::judge(it.key(), it.value(), onBus).anyFailed());
        }
    }

    void learnKeepsUnprobedOrigins()
    {
        if (!QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt")))
            QSKIP("Config.vkt is not built");
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("Config.vkt"));
        QVERIFY(QFile::copy(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"), path));
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        Database db(path);
        const QString model = QStringLiteral("IP 7");
        const I2CLearning::Plan p = I2CLearning::plan(model, db.i2cEntries(model), {{2, scan(2, {"0x39", "0x4a"})}});
        QVERIFY(p.changes());
        QVERIFY(I2CLearning::learn(db, p, QStringLiteral("2026-04-01T09:00:00Z"), QStringLiteral("1.81")));
        QCOMPARE(db.i2cEntries(model), p.entries);
        QCOMPARE(RefOrigins::state(db.refOrigin(RefOrigins::I2c, model, QStringLiteral("2x4a-")), QStringLiteral("2x4a-")),
                 RefOrigins::State::Learned);
        QCOMPARE(RefOrigins::state(db.refOrigin(RefOrigins::I2c, model, QStringLiteral("0x74-PMU")), QStringLiteral("0x74-PMU")),
                 RefOrigins::State::Demo);
        QCOMPARE(db.refOrigin(RefOrigins::I2c, model, QStringLiteral("2x37-Front Camera")), std::nullopt);
    }
};

QTEST_MAIN(TestI2CLearning)
#include "tst_i2clearning.moc"
