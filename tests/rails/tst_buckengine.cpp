// The buck self test's two answer forms, their numbering and their verdicts.
#include "BuckEngine.h"

#include <QtTest>

class TestBuckEngine : public QObject
{
    Q_OBJECT

private slots:
    void leituras_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("from buck0")
            << "\r\nbuck\r\r\nbuck0: 850 mV\r\r\nbuck1: 1234 mV\r\r\n[0000001A:0000BEEF] :-) "
            << QStringList{"   buck0 voltage: 0.850 V", "   buck1 voltage: 1.234 V"};
        QTest::newRow("from buck1")
            << "\r\nbuck\r\r\nbuck1: 5 mV\r\r\nbuck2: 0 mV\r\r\nbuck3: 12345 mV\r\r\n[0000001A:0000BEEF] :-) "
            << QStringList{"   buck1 voltage: 0.005 V", "   buck2 voltage: 0.000 V", "   buck3 voltage: 12.345 V"};
        QTest::newRow("heading with a colon")
            << "\r\nbuck\r\r\nBuck outputs:\r\r\nbuck1: 900 mV\r\r\n" << QStringList{"   buck1 voltage: 0.900 V"};
        QTest::newRow("no pairs") << "\r\nbuck\r\r\nCommand \"buck\" not found\r\r\n[0:0] :-) " << QStringList{};
        QTest::newRow("a check answer") << "buck1: target 850 mV measured 851 mV PASS" << QStringList{};
        QTest::newRow("empty") << "" << QStringList{};
    }

    void leituras()
    {
        QFETCH(QString, answer);
        QFETCH(QStringList, lines);
        QStringList got;
        for (const BuckLine &l : ExtraiLeiturasBuck(answer))
            got << l.text;
        QCOMPARE(got, lines);
    }

    void bist_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QList<bool>>("passed");
        QTest::newRow("pass")
            << "\r\nbuckcheck 1\r\r\nbuck1: target 850 mV, measured 851 mV : PASS\r\r\n[0:0] :-) "
            << QStringList{"   buck1: Referência: 0.850 V - Leitura:  0.851 V : PASS"} << QList<bool>{true};
        // The list numbers its own lines: the check of buck 2 is its first line.
        QTest::newRow("fail")
            // The list numbers its own lines: a check of buck 2 is its first line.
            << "\r\nbuckcheck 2\r\r\nbuck2: target 1234 mV, measured 0 mV : FAIL\r\r\n"
            << QStringList{"   buck1: Referência: 1.234 V - Leitura:  0.000 V : FAIL"} << QList<bool>{false};
        QTest::newRow("buck0 numbers from zero")
            << "buck0: target 5 mV, measured 5 mV : PASS\r\nbuck1: target 12345 mV, measured 12345 mV : FAIL\r\n"
            << QStringList{"   buck0: Referência: 0.005 V - Leitura:  0.005 V : PASS",
                           "   buck1: Referência: 12.34 V - Leitura:  12.345 V : FAIL"}
            << QList<bool>{true, false};
        QTest::newRow("no measured") << "buck1: target 850 mV" << QStringList{} << QList<bool>{};
        // Whatever the target looks like, the line and the device's verdict stay.
        QTest::newRow("target with a fraction")
            << "buck5 target 1060.000 mV measured 0.000 mV FAIL\r\n"
            << QStringList{"   buck1: Referência: 1.060 V - Leitura:  0.000 V : FAIL"} << QList<bool>{false};
        QTest::newRow("target of six digits")
            << "buck5 target 123456 mV measured 0 mV FAIL\r\n"
            << QStringList{"   buck1: Referência: 12345 V - Leitura:  0.000 V : FAIL"} << QList<bool>{false};
        QTest::newRow("garbled target")
            << "target x50 mV, measured 851 mV : PASS"
            << QStringList{"   buck1: Referência: 0.x50 V - Leitura:  0.851 V : PASS"} << QList<bool>{true};
        QTest::newRow("garbled measured")
            << "target 850 mV, measured ?? mV : FAIL"
            << QStringList{"   buck1: Referência: 0.850 V - Leitura:  ?? V : FAIL"} << QList<bool>{false};
    }

    void bist()
    {
        QFETCH(QString, answer);
        QFETCH(QStringList, lines);
        QFETCH(QList<bool>, passed);
        QStringList got;
        QList<bool> gotPassed;
        for (const BuckLine &l : ExtraiBistBuck(answer)) {
            got << l.text;
            gotPassed << l.passed;
        }
        QCOMPARE(got, lines);
        QCOMPARE(gotPassed, passed);
    }

    void translatedWords()
    {
        const auto lines = ExtraiBistBuck(QStringLiteral("target 850 mV measured 850 mV PASS"),
                                          {QStringLiteral("Reference"), QStringLiteral("Reading")});
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines[0].text, QStringLiteral("   buck1: Reference: 0.850 V - Reading:  0.850 V : PASS"));
    }
};

QTEST_GUILESS_MAIN(TestBuckEngine)
#include "tst_buckengine.moc"
