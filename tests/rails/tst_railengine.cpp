// Reading rails out of a console answer (units, per cents, time-outs, decimals and bad input)
// and the buck self test's two answer forms, their numbering and their verdicts.
#include "BuckEngine.h"
#include "RailEngine.h"

#include <QFile>
#include <QRegularExpression>
#include <QtTest>

namespace {

QString answerWith(const QString &lines)
{
    return QStringLiteral("\r\npmuadc --read all\r\r\n") + lines + QStringLiteral("[0000001A:0000BEEF] :-) ");
}

} // namespace

class TestRailEngine : public QObject
{
    Q_OBJECT

private slots:
    void readRail_data()
    {
        QTest::addColumn<QString>("lines");
        QTest::addColumn<QString>("refv");
        QTest::addColumn<int>("voltDecimals");
        QTest::addColumn<int>("ampDecimals");
        QTest::addColumn<QString>("leitura");
        QTest::addColumn<QString>("porc");
        QTest::addColumn<bool>("measured");

        const QString none = QStringLiteral("Sem Medição*");
        QTest::newRow("850 mV") << "PP_CPU 850 mV\r\r\n" << "0.850" << 3 << 1 << "0.850 V" << "0 %" << true;
        QTest::newRow("5 mV") << "PP_CPU 5 mV\r\r\n" << "" << 3 << 1 << "0.005 V" << "" << true;
        QTest::newRow("negative") << "PP_CPU -12 mV\r\r\n" << "" << 3 << 1 << "-0.012 V" << "" << true;
        QTest::newRow("zero") << "PP_CPU 0 mV\r\r\n" << "" << 3 << 1 << "0 V" << "" << true;
        QTest::newRow("fraction from the device") << "PP_CPU 4998.250 mV\r\r\n" << "5.000" << 3 << 1
                                                  << "4.998 V" << "-0,2 %" << true;
        QTest::newRow("fixed band") << "PP_CPU 853 mV\r\r\n" << "0.850" << 3 << 1 << "0.853 V" << "0,3 %" << true;
        QTest::newRow("cut not rounded") << "PP_CPU 900 mV\r\r\n" << "0.850" << 3 << 1 << "0.900 V" << "5,8 %" << true;
        QTest::newRow("low rail") << "PP_CPU 700 mV\r\r\n" << "0.850" << 3 << 1 << "0.700 V" << "-17,6 %" << true;
        QTest::newRow("two decimals") << "PP_CPU 853 mV\r\r\n" << "0.850" << 2 << 1 << "0.85 V" << "0,3 %" << true;
        QTest::newRow("two decimals to zero") << "PP_CPU 4 mV\r\r\n" << "" << 2 << 1 << "0 V" << "" << true;
        QTest::newRow("one decimal negative") << "PP_CPU -1234 mV\r\r\n" << "" << 1 << 1 << "-1.2 V" << "" << true;
        QTest::newRow("ten volts cut short") << "PP_CPU 12345 mV\r\r\n" << "" << 3 << 1 << "12.34 V" << "" << true;
        QTest::newRow("zero reading against reference") << "PP_CPU 0 mV\r\r\n" << "0.850" << 3 << 1 << "0 V"
                                                        << "-100 %" << true;
        QTest::newRow("refv 0") << "PP_CPU 850 mV\r\r\n" << "0" << 3 << 1 << "0.850 V" << "0 %" << true;
        QTest::newRow("current one decimal") << "PP_CPU 12.34 mA\r\r\n" << "" << 3 << 1 << "12,3 mA" << "" << true;
        QTest::newRow("current no decimal") << "PP_CPU 12.34 mA\r\r\n" << "" << 3 << 0 << "12 mA" << "" << true;
        QTest::newRow("current three decimals") << "PP_CPU 12.3456 mA\r\r\n" << "" << 3 << 3 << "12,345 mA" << ""
                                                << true;
        QTest::newRow("current fewer digits than asked") << "PP_CPU 12.34 mA\r\r\n" << "" << 3 << 3 << "12,3 mA"
                                                         << "" << true;
        QTest::newRow("current refv 0") << "PP_CPU 12.34 mA\r\r\n" << "0" << 3 << 1 << "12,3 mA" << "0 %" << true;
        QTest::newRow("label found twice") << "PP_CPU 850 mV\r\r\nPP_CPU 900 mV\r\r\n" << "0.850" << 3 << 1
                                           << "0.850 V" << "0 %" << true;
        QTest::newRow("case-sensitive") << "pp_cpu 850 mV\r\r\n" << "0.850" << 3 << 1 << none << "0 %" << false;
        QTest::newRow("missing with reference") << "PP_GPU 850 mV\r\r\n" << "0.850" << 3 << 1 << none << "0 %"
                                                << false;
        QTest::newRow("missing without reference") << "PP_GPU 850 mV\r\r\n" << "" << 3 << 1 << none << "" << false;
        QTest::newRow("time-out") << "PP_CPU timeout mV\r\r\n" << "0.850" << 3 << 1 << none << "0 %" << false;
        QTest::newRow("not a number") << "PP_CPU 8x0 mV\r\r\n" << "0.850" << 3 << 1 << none << "0 %" << false;
        QTest::newRow("empty value") << "PP_CPU  mV\r\r\n" << "0.850" << 3 << 1 << none << "0 %" << false;
        QTest::newRow("single digit current") << "PP_CPU 5 mA\r\r\n" << "" << 3 << 1 << none << "" << false;
        // A garbled line of hundreds of digits against a tiny reference: no "inf %" beside it.
        QTest::newRow("reading of hundreds of digits")
            << QString(QStringLiteral("PP_CPU 1") + QString(308, u'0') + QStringLiteral(" mV\r\r\n")) << "0.001" << 3
            << 1 << "10000 V" << "" << true;
    }

    void readRail()
    {
        QFETCH(QString, lines);
        QFETCH(QString, refv);
        QFETCH(int, voltDecimals);
        QFETCH(int, ampDecimals);
        QFETCH(QString, leitura);
        QFETCH(QString, porc);
        QFETCH(bool, measured);

        const RailReference row{QStringLiteral("PP_CPU_NET"), QStringLiteral("PP_CPU"), refv, QStringLiteral("CPU")};
        RailSettings settings;
        settings.voltDecimals = voltDecimals;
        settings.ampDecimals = ampDecimals;
        const RailMeasurement r = RailEngine::readRail(answerWith(lines), row, settings);
        QCOMPARE(r.malha, QStringLiteral("PP_CPU_NET"));
        QCOMPARE(r.leitura, leitura);
        QCOMPARE(r.porc, porc);
        QCOMPARE(r.measured, measured);
    }

    void valueWithNoBlankBehind()
    {
        // The answer ends right after the value: nothing marks its end.
        const RailMeasurement r = RailEngine::readRail(QStringLiteral("PP_CPU 850"),
                                                   {QStringLiteral("N"), QStringLiteral("PP_CPU"), QStringLiteral("0.850"), {}},
                                                   {});
        QCOMPARE(r.leitura, QStringLiteral("Sem Medição*"));
        QVERIFY(!r.measured);
        // A label at the very end of the answer.
        QVERIFY(!RailEngine::readRail(QStringLiteral("x PP_CPU"), {QStringLiteral("N"), QStringLiteral("PP_CPU"), {}, {}}, {})
                     .measured);
    }

    void processaLeituras()
    {
        const QList<RailReference> rows = {
            {QStringLiteral("A"), QStringLiteral("buck0"), QStringLiteral("0.850"), {}},
            {QStringLiteral("B"), QString(), QStringLiteral("1.800"), {}}, // no label: takes no reading
            {QStringLiteral("C"), QStringLiteral("ldo3"), QStringLiteral("1.800"), {}},
            {QStringLiteral("D"), QStringLiteral("buck1"), QStringLiteral("1.100"), {}},
        };
        const QString answer = answerWith(QStringLiteral("buck0 851 mV\r\r\nbuck1 tim mV\r\r\nldo3 1799 mV\r\r\n"));
        const QList<RailMeasurement> out = RailEngine::ProcessaLeituras(answer, rows, {});
        QCOMPARE(out.size(), 3);
        QCOMPARE(out[0].malha, QStringLiteral("A"));
        QCOMPARE(out[0].leitura, QStringLiteral("0.851 V"));
        QCOMPARE(out[0].porc, QStringLiteral("0,1 %"));
        QCOMPARE(out[1].malha, QStringLiteral("C"));
        QCOMPARE(out[1].leitura, QStringLiteral("1.799 V"));
        QCOMPARE(out[2].malha, QStringLiteral("D")); // a bad row does not stop the ones after it
        QCOMPARE(out[2].leitura, QStringLiteral("Sem Medição*"));

        QVERIFY(RailEngine::ProcessaLeituras(QString(), rows, {}).isEmpty());
    }

    // All labels are searched in one pass; each row must still get the first occurrence of its
    // own label, exactly as a search from the start of the answer for that row alone would.
    void labelsInOnePass_data()
    {
        QTest::addColumn<QString>("lines");
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<QStringList>("expected");
        const QString none = QStringLiteral("Sem Medição*");

        QTest::newRow("label found twice: the first counts")
            << QStringLiteral("buck0 851 mV\r\r\nbuck0 900 mV\r\r\n") << QStringList{"buck0"}
            << QStringList{"0.851 V"};
        QTest::newRow("letter case counts")
            << QStringLiteral("BUCK0 900 mV\r\r\nbuck0 851 mV\r\r\n") << QStringList{"buck0", "BUCK0"}
            << QStringList{"0.851 V", "0.900 V"};
        QTest::newRow("a label inside a longer one that comes first")
            << QStringLiteral("xbuck10: 1200 mV\r\r\nbuck1: 851 mV\r\r\n") << QStringList{"buck1:", "buck10:", "uck1"}
            << QStringList{"0.851 V", "1.200 V", none};
        QTest::newRow("the same label on two rows")
            << QStringLiteral("ldo3 1799 mV\r\r\n") << QStringList{"ldo3", "ldo3"} << QStringList{"1.799 V", "1.799 V"};
        QTest::newRow("overlapping labels")
            << QStringLiteral("abc 5 mV\r\r\nbc 7 mV\r\r\n") << QStringList{"bc", "abc", "c 5"}
            << QStringList{"0.005 V", "0.005 V", none};
        QTest::newRow("absent label") << QStringLiteral("ldo3 1799 mV\r\r\n") << QStringList{"ldo4"}
                                      << QStringList{none};
        QString chain;
        QStringList labels, expected;
        for (int i = 1; i <= 9; ++i) {
            const QString label = QStringLiteral("r") + QString(i, u'1');
            chain += label + QStringLiteral(" %1 mV\r\r\n").arg(100 * i);
            labels << label;
            expected << QStringLiteral("0.%1 V").arg(100 * i);
        }
        QTest::newRow("each label begins the next one") << chain << labels << expected;
    }
    void labelsInOnePass()
    {
        QFETCH(QString, lines);
        QFETCH(QStringList, labels);
        QFETCH(QStringList, expected);
        const QString answer = answerWith(lines);
        QList<RailReference> rows;
        for (const QString &label : labels)
            rows.append({label + QStringLiteral("_net"), label, QStringLiteral("1.000"), {}});
        const QList<RailMeasurement> out = RailEngine::ProcessaLeituras(answer, rows, {});
        QCOMPARE(out.size(), rows.size());
        for (qsizetype i = 0; i < rows.size(); ++i) {
            QCOMPARE(out[i].leitura, RailEngine::readRail(answer, rows[i], {}).leitura);
            QCOMPARE(out[i].leitura, expected[i]);
        }
    }

    // Every verdict comes from the numeric deviation of the whole value, whatever the shown text.
    void verdict_data()
    {
        QTest::addColumn<QString>("lines");
        QTest::addColumn<QString>("refv");
        QTest::addColumn<QString>("porc"); // the shown text stays as the routine makes it
        QTest::addColumn<int>("expected");
        const int pass = int(RailVerdict::Pass), fail = int(RailVerdict::Fail), none = int(RailVerdict::None);
        QTest::newRow("exact") << "PP_CPU 850 mV\r\r\n" << "0.850" << "0 %" << pass;
        QTest::newRow("fixed band") << "PP_CPU 853 mV\r\r\n" << "0.850" << "0,3 %" << pass;
        QTest::newRow("at tolerance") << "PP_CPU 1050 mV\r\r\n" << "1.000" << "5,0 %" << pass;
        QTest::newRow("just beyond") << "PP_CPU 1051 mV\r\r\n" << "1.000" << "5,1 %" << fail;
        QTest::newRow("far below") << "PP_CPU 700 mV\r\r\n" << "0.850" << "-17,6 %" << fail;
        QTest::newRow("no reading") << "PP_GPU 850 mV\r\r\n" << "0.850" << "0 %" << fail;
        QTest::newRow("time-out") << "PP_CPU timeout mV\r\r\n" << "0.850" << "0 %" << fail;
        QTest::newRow("no reference") << "PP_CPU 850 mV\r\r\n" << "" << "" << none;
        QTest::newRow("reference 0 is not judged") << "PP_CPU 3000 mV\r\r\n" << "0" << "0 %" << none;
        QTest::newRow("unreadable reference") << "PP_CPU 850 mV\r\r\n" << "n/a" << "" << none;
        // "1,35E+16" cut to six characters reads "1,3": the text must not pass the rail.
        QTest::newRow("absurd reading, short text") << "PP_CPU 135000000000000000 mV\r\r\n" << "1.000" << "1,3 %"
                                                    << fail;
        QTest::newRow("hundreds of digits")
            << QString(QStringLiteral("PP_CPU 1") + QString(308, u'0') + QStringLiteral(" mV\r\r\n")) << "0.001"
            << "" << fail;
        QTest::newRow("beyond any number")
            << QString(QStringLiteral("PP_CPU 1") + QString(400, u'0') + QStringLiteral(" mV\r\r\n")) << "1.000"
            << "" << fail;
        QTest::newRow("current within") << "PP_CPU 12.34 mA\r\r\n" << "12,3" << "0 %" << pass;
    }

    void verdict()
    {
        QFETCH(QString, lines);
        QFETCH(QString, refv);
        QFETCH(QString, porc);
        QFETCH(int, expected);
        const RailReference row{QStringLiteral("N"), QStringLiteral("PP_CPU"), refv, {}};
        const RailMeasurement r = RailEngine::readRail(answerWith(lines), row, {});
        QCOMPARE(r.porc, porc);
        QCOMPARE(int(RailEngine::verdict(r, refv, RailEngine::DefaultTolerancePercent)), expected);
    }

    // The demo references are the simulator's good board: its answer passes every judged rail of
    // every model, so the two cannot drift apart unnoticed (data/make_master_demo.py writes them).
    void goodBoardPassesTheDemoReferences()
    {
        static const QRegularExpression row(QStringLiteral("\\('([^']*)', '([^']*)', '([^']*)', \\d+, '[^']*', '([^']*)', '([^']*)'"));
        QFile seed(QStringLiteral(VEKTO_SOURCE_DIR "/data/seed/30_master_demo.sql"));
        QVERIFY(seed.open(QIODevice::ReadOnly));
        QMap<QString, QList<RailReference>> models;
        for (auto it = row.globalMatch(QString::fromUtf8(seed.readAll())); it.hasNext();) {
            const auto m = it.next();
            models[m.captured(1)].append({m.captured(2), m.captured(4), m.captured(5), m.captured(3)});
        }
        QCOMPARE(models.size(), 9);
        for (auto it = models.cbegin(); it != models.cend(); ++it) {
            QFile answer(QStringLiteral(VEKTO_SOURCE_DIR "/sim/answers/") + QString(it.key()).toLower().remove(u' ')
                         + QStringLiteral("/pmuadc-all.txt"));
            QVERIFY2(answer.open(QIODevice::ReadOnly), qPrintable(answer.fileName()));
            const QList<RailReference> &refs = it.value();
            const auto readings = RailEngine::ProcessaLeituras(QString::fromUtf8(answer.readAll()), refs, {});
            QCOMPARE(readings.size(), refs.size());
            for (int i = 0; i < refs.size(); ++i) {
                // A rail whose reference is "0" (off in diagnostics mode) is shown, not judged.
                const RailVerdict expected = refs[i].refv == QLatin1String("0") ? RailVerdict::None : RailVerdict::Pass;
                QVERIFY2(RailEngine::verdict(readings[i], refs[i].refv, RailEngine::DefaultTolerancePercent) == expected,
                         qPrintable(it.key() + u' ' + readings[i].malha + u' ' + readings[i].leitura));
            }
        }
    }

    // --- the buck self test ---------------------------------------------------------------

    void buckLeituras_data()
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

    void buckLeituras()
    {
        QFETCH(QString, answer);
        QFETCH(QStringList, lines);
        QStringList got;
        for (const BuckLine &l : ExtraiLeiturasBuck(answer))
            got << l.text;
        QCOMPARE(got, lines);
    }

    void buckBist_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QList<bool>>("passed");
        QTest::newRow("pass")
            << "\r\nbuckcheck 1\r\r\nbuck1: target 850 mV, measured 851 mV : PASS\r\r\n[0:0] :-) "
            << QStringList{"   buck1: Referência: 0.850 V - Leitura:  0.851 V : PASS"} << QList<bool>{true};
        // The list numbers its own lines: a check of buck 2 is its first line.
        QTest::newRow("fail")
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

    void buckBist()
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

    void buckTranslatedWords()
    {
        const auto lines = ExtraiBistBuck(QStringLiteral("target 850 mV measured 850 mV PASS"),
                                          {QStringLiteral("Reference"), QStringLiteral("Reading")});
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines[0].text, QStringLiteral("   buck1: Reference: 0.850 V - Reading:  0.850 V : PASS"));
    }
};

QTEST_GUILESS_MAIN(TestRailEngine)
#include "tst_railengine.moc"
