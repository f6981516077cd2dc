// The demo I2C references must stay those of the simulator's good board: for every model and
// bus, the rows Config.vkt gives the I2C screen are the simulator's devices in the same order,
// and the good board's scan passes every one of them.
#include "Board.h"
#include "Database.h"
#include "I2CEngine.h"
#include "SimCatalog.h"

#include <QtTest>

class TestI2CSeed : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt")))
            QSKIP("Config.vkt was not built");
    }

    void seedMatchesSimulator_data()
    {
        QTest::addColumn<QString>("model");
        for (const SimModel &m : SimCatalog::models())
            QTest::newRow(qPrintable(m.name)) << m.name;
    }
    void seedMatchesSimulator()
    {
        QFETCH(QString, model);
        QMap<int, QStringList> expected;
        const QList<QByteArray> lines = AnswerStore().dataFile(QStringLiteral("i2c.tsv")).split('\n');
        for (const QByteArray &line : lines.mid(1)) {
            const QList<QByteArray> c = line.split('\t');
            if (c.size() >= 5 && QString::fromUtf8(c[0]) == model)
                expected[c[1].toInt()] << QString::fromUtf8(c[4]);
        }
        QVERIFY(!expected.isEmpty());

        Database db(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"), Database::Access::ReadOnly);
        Board board(AnswerStore(), *SimCatalog::modelByName(model), Profile::Good);
        for (int bus = 0; bus < I2CEngine::BusCount; ++bus) {
            const QStringList rows = db.i2cTextsStartingWith(model, QString::number(bus));
            QCOMPARE(rows, expected.value(bus));
            const QString answer = QString::fromUtf8(board.answerBody(I2CEngine::command(bus)));
            const I2CBusResult r = I2CEngine::judge(bus, answer, rows);
            QVERIFY2(!r.anyFailed(), qPrintable(model + QStringLiteral(" bus ") + QString::number(bus)));
        }
        // Every bus the automatic run probes has something to check.
        for (int bus : I2CAutoRun::sequence(I2CEngine::busLayout(model)))
            QVERIFY2(expected.contains(bus), qPrintable(model + QStringLiteral(" bus ") + QString::number(bus)));
    }
};

QTEST_MAIN(TestI2CSeed)
#include "tst_i2cseed.moc"
