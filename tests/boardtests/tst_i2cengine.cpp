// The I2C judging rules without a screen: which buses each model offers, how a bus answer is
// judged device by device, and how the failure list grows.
#include "I2CEngine.h"

#include <QtTest>

namespace {

const QString Prompt = QStringLiteral("[0000001A:0000BEEF] :-) ");

QString scan(int bus, const QStringList &addresses)
{
    QString text = QStringLiteral("\r\ni2c -s %1\r\r\nScanning I2C bus %1\r\n").arg(bus);
    for (const QString &a : addresses)
        text += QStringLiteral("  device answered at 0") + a + QStringLiteral("\r\n");
    return text + Prompt;
}

QString mask(const I2CEngine::BusLayout &layout, bool I2CBusState::*field, bool want)
{
    QString buses;
    for (int b = 0; b < I2CEngine::BusCount; ++b)
        if (layout[b].*field == want)
            buses += QString::number(b);
    return buses;
}

} // namespace

class TestI2CEngine : public QObject
{
    Q_OBJECT

private slots:
    void busLayout_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("disabled");
        QTest::addColumn<QString>("hidden");
        QTest::addColumn<int>("autoRow");
        QTest::newRow("IP 6") << "IP 6" << "3" << "34567" << 3;
        QTest::newRow("IP 6 Plus") << "IP 6 Plus" << "3" << "34567" << 3;
        QTest::newRow("IP 6s") << "IP 6s" << "3" << "34567" << 3;
        QTest::newRow("IP 6s Plus") << "IP 6s Plus" << "3" << "34567" << 3;
        QTest::newRow("IP 7") << "IP 7" << "5" << "67" << 5;
        QTest::newRow("IP 7 Plus") << "IP 7 Plus" << "35" << "67" << 5;
        QTest::newRow("IP 8") << "IP 8" << "5" << "" << 8;
        QTest::newRow("IP 8 Plus") << "IP 8 Plus" << "15" << "" << 8;
        QTest::newRow("IP X") << "IP X" << "12" << "" << 8;
        QTest::newRow("unknown model offers every bus") << "IP 11" << "" << "" << 8;
        QTest::newRow("quote in the model") << "IP 7'; --" << "5" << "67" << 5;
    }
    void busLayout()
    {
        QFETCH(QString, model);
        QFETCH(QString, disabled);
        QFETCH(QString, hidden);
        QFETCH(int, autoRow);
        const I2CEngine::BusLayout layout = I2CEngine::busLayout(model);
        QCOMPARE(mask(layout, &I2CBusState::enabled, false), disabled);
        QCOMPARE(mask(layout, &I2CBusState::visible, false), hidden);
        QCOMPARE(I2CEngine::autoTesteRow(model), autoRow);
    }

    void judge_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("verdicts"); // one letter per row: P pass, F fail, N not judged
        QTest::addColumn<QStringList>("lines");
        const QStringList bus2 = {"2x37-Front Camera", "2x39-Prox ALS Sensor"};
        QTest::newRow("both answer") << scan(2, {"x37", "x39"}) << bus2 << "PP"
                                     << QStringList{"x37 - Front Camera - COMUNICAÇÃO OK",
                                                    "x39 - Prox ALS Sensor - COMUNICAÇÃO OK"};
        QTest::newRow("one silent") << scan(2, {"x37"}) << bus2 << "PF"
                                    << QStringList{"x37 - Front Camera - COMUNICAÇÃO OK",
                                                   "x39 - Prox ALS Sensor - COMUNICAÇÃO OFF"};
        QTest::newRow("both silent") << scan(2, {}) << bus2 << "FF"
                                     << QStringList{"x37 - Front Camera - COMUNICAÇÃO OFF",
                                                    "x39 - Prox ALS Sensor - COMUNICAÇÃO OFF"};
        QTest::newRow("address inside an unrelated token")
            << QStringLiteral("error 0x3915 on bus\r\n") + Prompt << QStringList{"2x39-Prox"} << "P"
            << QStringList{"x39 - Prox - COMUNICAÇÃO OK"};
        QTest::newRow("letter case of the address counts") << scan(0, {"x1A"}) << QStringList{"0x1a-Tristar"} << "F"
                                                           << QStringList{"x1a - Tristar - COMUNICAÇÃO OFF"};
        QTest::newRow("no rows: no line") << scan(5, {"x2a"}) << QStringList{} << "" << QStringList{};
        QTest::newRow("description after the first dash only")
            << scan(0, {"x74"}) << QStringList{"0x74-PMU - main"} << "P" << QStringList{"x74 - PMU - main - COMUNICAÇÃO OK"};
        QTest::newRow("no dash: the text after the address")
            << scan(0, {"x74"}) << QStringList{"0x74PMU"} << "P" << QStringList{"x74 - PMU - COMUNICAÇÃO OK"};
        QTest::newRow("row too short is never passed") << scan(0, {"x74"}) << QStringList{"0x", ""} << "NN"
                                                       << QStringList{"0x - Referência inválida", " - Referência inválida"};
        QTest::newRow("garbage answer") << QStringLiteral("\xFFFD\x1b[0m\x07") + QString(1 << 20, u'?')
                                        << QStringList{"0x74-PMU"} << "F" << QStringList{"x74 - PMU - COMUNICAÇÃO OFF"};
    }
    void judge()
    {
        QFETCH(QString, answer);
        QFETCH(QStringList, entries);
        QFETCH(QString, verdicts);
        QFETCH(QStringList, lines);
        const I2CBusResult r = I2CEngine::judge(2, answer, entries);
        QString got;
        QStringList gotLines;
        for (const I2CDeviceResult &d : r.devices) {
            got += d.verdict == Verdict::Pass ? u'P' : d.verdict == Verdict::Fail ? u'F' : u'N';
            gotLines << d.line;
        }
        QCOMPARE(got, verdicts);
        QCOMPARE(gotLines, lines);
        QCOMPARE(r.anyFailed(), verdicts.contains(u'F'));
    }

    void failureList_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("bus");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("after");
        QTest::newRow("nothing failed leaves the list") << "IP 7" << "" << 2 << scan(2, {"x37", "x39"}) << "";
        QTest::newRow("one failing device with its connector")
            << "IP 7" << "" << 2 << scan(2, {"x37"})
            << "I2C 2\nJ4503 - Flex Front Camera and Prox. Sensor Cable \nx39 - Prox ALS Sensor";
        QTest::newRow("two failing devices, one heading")
            << "IP 7" << "" << 2 << scan(2, {})
            << "I2C 2\nJ4503 - Flex Front Camera and Prox. Sensor Cable \nx37 - Front Camera\nx39 - Prox ALS Sensor";
        QTest::newRow("IP 7 Plus words in their own order")
            << "IP 7 Plus" << "" << 2 << scan(2, {"x37"})
            << "I2C 2\nJ4503 - Flex Front Camera and Sensor Prox. Cable \nx39 - Prox ALS Sensor";
        QTest::newRow("bus without a connector text") << "IP 6s" << "" << 2 << scan(2, {"x37"})
                                                      << "I2C 2\nx39 - Prox ALS Sensor";
        QTest::newRow("second bus after a blank line")
            << "IP 8 Plus" << "I2C 0\nx74 - PMU" << 3 << scan(3, {})
            << "I2C 0\nx74 - PMU\n\nI2C 3\n0X51 - RF \nx37 - Front Camera\nx39 - Prox ALS Sensor";
        QTest::newRow("a description naming the bus is no heading")
            << "IP 8" << "I2C 1\nDOCK \nx72 - see I2C 3" << 3 << scan(3, {})
            << "I2C 1\nDOCK \nx72 - see I2C 3\n\nI2C 3\nDOCK \nx37 - Front Camera\nx39 - Prox ALS Sensor";
        QTest::newRow("heading already there: devices only")
            << "IP 7" << "I2C 2\nJ4503 - Flex Front Camera and Prox. Sensor Cable \nx37 - Front Camera" << 2
            << scan(2, {"x37"})
            << "I2C 2\nJ4503 - Flex Front Camera and Prox. Sensor Cable \nx37 - Front Camera\nx39 - Prox ALS Sensor";
    }
    void failureList()
    {
        QFETCH(QString, model);
        QFETCH(QString, before);
        QFETCH(int, bus);
        QFETCH(QString, answer);
        QFETCH(QString, after);
        // The rows of the bus under test, whatever its number.
        QStringList entries;
        for (const QString &e : {QStringLiteral("x37-Front Camera"), QStringLiteral("x39-Prox ALS Sensor")})
            entries << QString::number(bus) + e;
        const I2CBusResult r = I2CEngine::judge(bus, answer, entries);
        QCOMPARE(I2CEngine::appendFailures(before, r, model), after);
    }
};

QTEST_MAIN(TestI2CEngine)
#include "tst_i2cengine.moc"
