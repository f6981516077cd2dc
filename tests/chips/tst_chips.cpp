// The chip readouts. The engine against hand-written answers: how a value is cut and shown, where
// each bound lies (inclusive or strict), and what bad answers do. The four screens with a
// scripted phone behind the real exchange: what each sends, what the hand-over paints on the
// controls a technician reads (found by their names), and the few things each screen does of its
// own (log panel, layout per model, touch, refusals, live copy).

#include "Acorn.h"
#include "Chestnut.h"
#include "ChipEngine.h"
#include "ScreenBench.h"
#include "Tigris.h"
#include "Tristar.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QSqlQueryModel>
#include <QtTest>

namespace {

const QByteArray ReadTigris = "pmuadc --sel tigris --read all";
const QByteArray ReadChestnut = "pmuadc --sel chestnut --read all";
const QByteArray ReadAll = "pmuadc --read all";

QByteArray simAnswer(const QString &relative)
{
    QFile f(QStringLiteral(VEKTO_SOURCE_DIR "/sim/answers/") + relative);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QLabel *labelOf(QWidget *screen, const char *name)
{
    return child<QLabel>(screen, QString::fromLatin1(name));
}

QString colour(QWidget *screen, const char *name)
{
    return ChipScreen::backColor(labelOf(screen, name));
}

// One console line as the phone prints it, framed as the exchange delivers it.
QString line(const QString &label, const QString &value, const QString &unit)
{
    return label + u' ' + value + u' ' + unit + QStringLiteral("\r\n");
}

QString framed(const QString &body)
{
    return QStringLiteral("\r\npmuadc\r\r\n") + body + QStringLiteral("[0000abcd:00000002] :-) ");
}

const ChipReading &readingOf(const ChipResult &result, const QString &control)
{
    const ChipReading *r = result.reading(control);
    if (!r)
        qFatal("no reading for %s", qPrintable(control));
    return *r;
}

} // namespace

class TestChips : public QObject
{
    Q_OBJECT

private slots:
    void cut_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("label");
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("unitLetter");
        using S = ChipCut::State;
        QTest::newRow("millivolts") << "tigris vbus : 5010.991 mV\r\n" << "tigris vbus :" << int(S::Found) << "5010.991" << "V";
        QTest::newRow("milliamps") << "tigris ibus : 410.68 mA\r\n" << "tigris ibus :" << int(S::Found) << "410.68" << "A";
        QTest::newRow("first occurrence wins") << "x : 1.0 mV\r\nx : 2.0 mV\r\n" << "x :" << int(S::Found) << "1.0" << "V";
        QTest::newRow("any separator is skipped") << "x :\t7.0 mV" << "x :" << int(S::Found) << "7.0" << "V";
        QTest::newRow("case matters") << "TIGRIS VBUS : 1.0 mV\r\n" << "tigris vbus :" << int(S::Missing) << "" << "";
        QTest::newRow("absent") << "nothing here" << "tigris vbus :" << int(S::Missing) << "" << "";
        QTest::newRow("value at the very end") << "tigris vbus : 5010.991" << "tigris vbus :" << int(S::Unfinished) << "" << "";
        QTest::newRow("label at the very end") << "tigris vbus :" << "tigris vbus :" << int(S::Unfinished) << "" << "";
        QTest::newRow("unit cut off") << "x : 12 " << "x :" << int(S::Found) << "12" << "";
        QTest::newRow("BIST label without blank") << "BIST ldo7: 2990.228 mV\r\n" << "BIST ldo7:" << int(S::Found) << "2990.228" << "V";
    }
    void cut()
    {
        QFETCH(QString, answer);
        QFETCH(QString, label);
        QFETCH(int, state);
        QFETCH(QString, text);
        QFETCH(QString, unitLetter);
        const ChipCut c = ChipEngine::cutValue(answer, label);
        QCOMPARE(int(c.state), state);
        QCOMPARE(c.text, text);
        QCOMPARE(c.unitLetter.isNull() ? QString() : QString(c.unitLetter), unitLetter);
    }

    // What a value turns into on the screen, by the unit letter and the row's kind.
    void captions_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("caption");
        QTest::newRow("millivolts to volts") << "tigris vbus :" << "5012" << "mV" << "VBus_V" << "5.012 V";
        QTest::newRow("millivolts with fraction") << "tigris vbus :" << "5010.991" << "mV" << "VBus_V" << "5.010 V";
        QTest::newRow("current loses its last digit") << "tigris ibus :" << "1234" << "mA" << "VBus_A" << "123 mA";
        QTest::newRow("current keeps a bare comma") << "tigris ibus :" << "12.5" << "mA" << "VBus_A" << "12, mA";
        QTest::newRow("unknown unit reads as a current") << "tigris ibat :" << "285.16" << "uX" << "VBat_A" << "285,1 mA";
        QTest::newRow("microamps read as a current") << "tigris ibat :" << "3398.78" << "uA" << "VBat_A" << "3398,7 mA";
        QTest::newRow("temperature one decimal") << "tigris die_temp :" << "31.25" << "C" << "Temp" << "31.2 º";
        QTest::newRow("temperature without point") << "tigris die_temp :" << "317" << "C" << "Temp" << "3 º";
        QTest::newRow("negative millivolts") << "tigris vldo :" << "-45.5" << "mV" << "lbVldo" << "-0.045 V";
        QTest::newRow("non-numeric millivolts shown as received") << "tigris vbus :" << "abc" << "mV" << "VBus_V" << "abc V";
        QTest::newRow("time-out") << "tigris vbus :" << "timeout" << "mV" << "VBus_V" << "Sem Medição";
        QTest::newRow("short text with tim is a value") << "tigris vbus :" << "tim" << "mV" << "VBus_V" << "tim V";
    }
    void captions()
    {
        QFETCH(QString, label);
        QFETCH(QString, value);
        QFETCH(QString, unit);
        QFETCH(QString, control);
        QFETCH(QString, caption);
        const ChipResult r = ChipEngine::CarregaDados(Chip::Tigris, QStringLiteral("IP 8"), framed(line(label, value, unit)));
        QCOMPARE(readingOf(r, control).caption, caption);
    }

    // Tigris: VBUS at least 8.0 %, VBAT strictly between -10.0 % and +15.0 %, VDD follows Baixa3.
    void tigrisBounds_data()
    {
        QTest::addColumn<QString>("vbus");
        QTest::addColumn<QString>("vbat");
        QTest::addColumn<QString>("vbusVerdict");
        QTest::addColumn<QString>("vbatVerdict");
        QTest::addColumn<QString>("vddVerdict");
        QTest::addColumn<QStringList>("warnings");
        QTest::newRow("good board") << "5010.991" << "3884.100" << "pass" << "pass" << "pass" << QStringList{};
        QTest::newRow("VBUS exactly 8.0 % above") << "4369.0" << "4000.0" << "pass" << "pass" << "pass" << QStringList{};
        QTest::newRow("VBUS 7.9 % above") << "4368.0" << "4000.0" << "fail" << "pass" << "pass" << QStringList{"Baixa1"};
        QTest::newRow("VBAT exactly -10.0 %") << "5000.0" << "3600.0" << "pass" << "fail" << "none" << QStringList{"Baixa3"};
        QTest::newRow("VBAT -9.9 %") << "5000.0" << "3601.0" << "pass" << "pass" << "pass" << QStringList{};
        QTest::newRow("VBAT exactly +15.0 %") << "5000.0" << "4600.0" << "pass" << "fail" << "none" << QStringList{"Baixa3"};
        QTest::newRow("VBAT +14.9 %") << "5000.0" << "4599.0" << "pass" << "pass" << "pass" << QStringList{};
        QTest::newRow("VBAT within three millivolts") << "5000.0" << "4003.0" << "pass" << "pass" << "pass" << QStringList{};
        QTest::newRow("garbled VBUS fails") << "5O10.991" << "4000.0" << "fail" << "pass" << "pass" << QStringList{"Baixa1"};
        QTest::newRow("both low") << "0.0" << "0.0" << "fail" << "fail" << "none" << QStringList{"Baixa1", "Baixa3"};
    }
    void tigrisBounds()
    {
        QFETCH(QString, vbus);
        QFETCH(QString, vbat);
        QFETCH(QString, vbusVerdict);
        QFETCH(QString, vbatVerdict);
        QFETCH(QString, vddVerdict);
        QFETCH(QStringList, warnings);
        const QString answer = framed(line(QStringLiteral("tigris vbus :"), vbus, QStringLiteral("mV")) +
                                      line(QStringLiteral("tigris vbat :"), vbat, QStringLiteral("mV")) +
                                      line(QStringLiteral("tigris vdd :"), QStringLiteral("3806.3"), QStringLiteral("mV")));
        const ChipResult r = ChipEngine::CarregaDados(Chip::Tigris, QStringLiteral("IP 7"), answer);
        QCOMPARE(verdictText(readingOf(r, QStringLiteral("VBus_V")).verdict), vbusVerdict);
        QCOMPARE(verdictText(readingOf(r, QStringLiteral("VBat_V")).verdict), vbatVerdict);
        QCOMPARE(verdictText(readingOf(r, QStringLiteral("VDD_V")).verdict), vddVerdict);
        QCOMPARE(r.shownWarnings(), warnings);
    }

    // The screens with a 10 % band, the negative references and Tristar's minimum current.
    void bands_data()
    {
        QTest::addColumn<int>("chip");
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("deviation");
        QTest::addColumn<QString>("verdict");
        const int tristar = int(Chip::Tristar), chestnut = int(Chip::Chestnut), acorn = int(Chip::Acorn);
        QTest::newRow("Tristar rail 1 exactly +10.0 %") << tristar << "IP 7" << "BIST ldo7:" << "3300.0" << "mV" << "Malha1_V" << "10 %" << "fail";
        QTest::newRow("Tristar rail 1 +9.9 %") << tristar << "IP 7" << "BIST ldo7:" << "3297.0" << "mV" << "Malha1_V" << "9,9 %" << "pass";
        QTest::newRow("Tristar rail 1 exactly -10.0 %") << tristar << "IP 6" << "BIST ldo3:" << "2700.0" << "mV" << "Malha1_V" << "-10 %" << "fail";
        QTest::newRow("Tristar rail 2 -9.9 %") << tristar << "IP 8" << "BIST buck3:" << "1622.0" << "mV" << "Malha2_V" << "-9,8 %" << "pass";
        QTest::newRow("Tristar current at its minimum") << tristar << "IP 7" << "BIST ildo7:" << "1700.0" << "uA" << "Malha1_A" << "" << "pass";
        QTest::newRow("Tristar current just below") << tristar << "IP 7" << "BIST ildo7:" << "1695.0" << "uA" << "Malha1_A" << "" << "fail";
        QTest::newRow("Tristar IP 8 Plus minimum 3.350") << tristar << "IP 8 Plus" << "BIST ildo7:" << "3000.0" << "uA" << "Malha1_A" << "" << "fail";
        QTest::newRow("Tristar IP X above 3.350") << tristar << "IP X" << "BIST ildo7:" << "3419.78" << "uA" << "Malha1_A" << "" << "pass";
        QTest::newRow("Tristar ACC rail any value") << tristar << "IP 7" << "BIST ldo6:" << "1.0" << "mV" << "Malha3_V" << "ACC" << "pass";
        QTest::newRow("Chestnut vneg exactly 10 % more negative") << chestnut << "IP 7" << "chestnut vneg :" << "-6270.0" << "mV" << "VNEG_V" << "10 %" << "fail";
        QTest::newRow("Chestnut vneg 9.9 % more negative") << chestnut << "IP 7" << "chestnut vneg :" << "-6269.0" << "mV" << "VNEG_V" << "9,9 %" << "pass";
        QTest::newRow("Chestnut vneg 10 % less negative") << chestnut << "IP 7" << "chestnut vneg :" << "-5130.0" << "mV" << "VNEG_V" << "-10 %" << "fail";
        QTest::newRow("Chestnut vneg of the wrong sign") << chestnut << "IP 7" << "chestnut vneg :" << "5700.0" << "mV" << "VNEG_V" << "-200 %" << "fail";
        QTest::newRow("Chestnut vldo3 in band") << chestnut << "IP 6s" << "chestnut vldo3 :" << "5135.669" << "mV" << "iLDO_V(3)" << "0,6 %" << "pass";
        QTest::newRow("Chestnut vboost +10 %") << chestnut << "IP 8" << "chestnut vboost :" << "6600.0" << "mV" << "BOOST_V" << "10 %" << "fail";
        QTest::newRow("Chestnut current not judged") << chestnut << "IP 8" << "chestnut ildo1 :" << "99999.0" << "mA" << "iLDO_A(1)" << "" << "none";
        QTest::newRow("Acorn vn 9.9 % more negative") << acorn << "IP X" << "acorn vn :" << "-7363.0" << "mV" << "M4" << "9,8 %" << "pass";
        QTest::newRow("Acorn vn exactly 10 % more negative") << acorn << "IP X" << "acorn vn :" << "-7370.0" << "mV" << "M4" << "10 %" << "fail";
        QTest::newRow("Acorn vp ten volts") << acorn << "IP X" << "acorn vp :" << "10022.552" << "mV" << "M3" << "0,2 %" << "pass";
        QTest::newRow("Acorn ground any value") << acorn << "IP X" << "acorn ground :" << "700.0" << "mV" << "M0" << "" << "pass";
        QTest::newRow("Acorn keeps a time-out text") << acorn << "IP X" << "acorn vl :" << "timeout" << "mV" << "M6" << "" << "pass";
        QTest::newRow("Acorn time-out on a judged rail") << acorn << "IP X" << "acorn vc :" << "timeout" << "mV" << "M8" << "0 %" << "fail";
    }
    void bands()
    {
        QFETCH(int, chip);
        QFETCH(QString, model);
        QFETCH(QString, label);
        QFETCH(QString, value);
        QFETCH(QString, unit);
        QFETCH(QString, control);
        QFETCH(QString, deviation);
        QFETCH(QString, verdict);
        const ChipResult r = ChipEngine::CarregaDados(Chip(chip), model, framed(line(label, value, unit)));
        const ChipReading &reading = readingOf(r, control);
        QCOMPARE(reading.deviationText().value_or(QString()), deviation);
        QCOMPARE(verdictText(reading.verdict), verdict);
    }

    void ip7ReadsOnlySixEvenWhenMoreAreThere()
    {
        const QString answer = framed(line(QStringLiteral("tigris vbus :"), QStringLiteral("5000.0"), QStringLiteral("mV")) +
                                      line(QStringLiteral("tigris vbus1 :"), QStringLiteral("1.0"), QStringLiteral("mV")));
        const ChipResult r = ChipEngine::CarregaDados(Chip::Tigris, QStringLiteral("IP 7"), answer);
        QCOMPARE(r.readings.size(), 6);
        QVERIFY(!r.reading(QStringLiteral("VBus_V1")));
        QVERIFY(!r.anyFailed());
    }

    // Bad answers: what every row shows and whether anything fails, per chip.
    void badAnswers_data()
    {
        QTest::addColumn<int>("chip");
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("missing");
        QTest::addColumn<int>("failed");
        QTest::addColumn<int>("reset");
        QTest::newRow("Tigris empty: all white") << int(Chip::Tigris) << "IP X" << "" << 10 << 0 << 0;
        QTest::newRow("Tristar empty: judged rows fail") << int(Chip::Tristar) << "IP 7" << "" << 6 << 4 << 0;
        QTest::newRow("Chestnut empty: judged rows fail") << int(Chip::Chestnut) << "IP 7" << "" << 11 << 5 << 0;
        QTest::newRow("Acorn empty: marked rows fail") << int(Chip::Acorn) << "IP X" << "" << 16 << 11 << 0;
        QTest::newRow("Chestnut value at the end stays reset")
            << int(Chip::Chestnut) << "IP 7" << "chestnut vldo1 : 5700.0 mV\r\nchestnut vboost : 6000.0" << 9 << 3 << 1;
        QTest::newRow("Chestnut garbage between lines")
            << int(Chip::Chestnut) << "IP 7"
            << QStringLiteral("\u0001\u00ff junk\r\nchestnut vldo1 : 5700.0 mV\r\n\u001b[0m\r\nchestnut vldo2 : 5700.0 mV\r\n") << 9 << 3 << 0;
        QTest::newRow("Tigris time-out everywhere")
            << int(Chip::Tigris) << "IP 7"
            << "tigris vbus : timeout mV\r\ntigris vbat : timeout mV\r\n" << 6 << 0 << 0;
    }
    void badAnswers()
    {
        QFETCH(int, chip);
        QFETCH(QString, model);
        QFETCH(QString, answer);
        QFETCH(int, missing);
        QFETCH(int, failed);
        QFETCH(int, reset);
        const ChipResult r = ChipEngine::CarregaDados(Chip(chip), model, answer, QStringLiteral("No Measurement"));
        int m = 0, f = 0, z = 0;
        for (const ChipReading &reading : r.readings) {
            m += reading.state == ChipReading::State::Missing;
            z += reading.state == ChipReading::State::Reset;
            f += reading.verdict == Verdict::Fail;
            if (reading.state == ChipReading::State::Missing)
                QCOMPARE(reading.caption, QStringLiteral("No Measurement"));
            if (reading.state == ChipReading::State::Reset) {
                QVERIFY(reading.caption.isEmpty());
                QCOMPARE(reading.verdict, Verdict::None);
            }
        }
        QCOMPARE(m, missing);
        QCOMPARE(f, failed);
        QCOMPARE(z, reset);
    }

    void missingBuck4OnlyFailsItsRow()
    {
        const QString answer = framed(line(QStringLiteral("acorn vp :"), QStringLiteral("10000.0"), QStringLiteral("mV")) +
                                      line(QStringLiteral("BIST buck3_sw2:"), QStringLiteral("1800.0"), QStringLiteral("mV")));
        const ChipResult r = ChipEngine::CarregaDados(Chip::Acorn, QStringLiteral("IP X"), answer);
        QCOMPARE(readingOf(r, QStringLiteral("M9")).caption, QStringLiteral("Sem Medição"));
        QCOMPARE(readingOf(r, QStringLiteral("M9")).verdict, Verdict::Fail);
        QCOMPARE(readingOf(r, QStringLiteral("M3")).verdict, Verdict::Pass);
        QCOMPARE(readingOf(r, QStringLiteral("M10")).verdict, Verdict::Pass);
    }

    void tigrisReadsOnLoadAndPaints()
    {
        ScreenBench b(QStringLiteral("IP 8"));
        b.answers.insert(ReadTigris, simAnswer(QStringLiteral("ip8/tigris.txt")));
        Tigris screen(b.context);
        QCOMPARE(b.sent(), QStringList{ReadTigris});
        auto *read = screen.findChild<QPushButton *>(QStringLiteral("btExecutaLeitura"));
        QVERIFY(!read->isEnabled());
        QCOMPARE(screen.Data1()->query().boundValues(), (QVariantList{QStringLiteral("xxxxx"), QStringLiteral("xxxxxxxx")}));

        b.finishExchange();
        QVERIFY(read->isEnabled());
        QCOMPARE(labelOf(&screen, "VBus_V")->text(), QStringLiteral("5.025 V"));
        QCOMPARE(colour(&screen, "VBus_V"), ChipScreen::Green);
        QCOMPARE(colour(&screen, "VDD_V"), ChipScreen::Green);
        QCOMPARE(colour(&screen, "VBus_A"), ChipScreen::White);
        QCOMPARE(labelOf(&screen, "VBus_A1")->text(), labelOf(&screen, "VBus_A")->text());
        QCOMPARE(labelOf(&screen, "VBus_A2")->text(), QStringLiteral("410,6 mA"));
        QCOMPARE(labelOf(&screen, "Temp")->text(), QStringLiteral("31.2 º"));
        QCOMPARE(labelOf(&screen, "lbUC")->text(), QStringLiteral("U3300"));
        QCOMPARE(labelOf(&screen, "lb_VBus1")->text(), QStringLiteral("VBUS 1"));
        QVERIFY(screen.findChild<QWidget *>(QStringLiteral("TiFrameVbusX"))->isVisibleTo(&screen));
        QVERIFY(shown(&screen, "lb_VBus2"));
        QVERIFY(!shown(&screen, "Baixa1") && !shown(&screen, "Baixa3"));
        QVERIFY(screen.findChild<QPlainTextEdit *>(QStringLiteral("txtDados"))->toPlainText().contains(QStringLiteral("tigris vntc")));
        // The recorded-answers grid now asks for this model and command.
        QCOMPARE(screen.Data1()->query().boundValues(),
                 (QVariantList{QStringLiteral("IP 8"), QStringLiteral("pmuadc --sel tigris --read all")}));
    }

    void tigrisLowBusOnIp7()
    {
        ScreenBench b(QStringLiteral("IP 7"));
        b.answers.insert(ReadTigris, "tigris vbus : 4100.0 mV\ntigris vbat : 3300.0 mV\ntigris vdd : 3800.0 mV\n"
                          "tigris vbus1 : 5000.0 mV\n");
        Tigris screen(b.context);
        b.finishExchange();
        QCOMPARE(labelOf(&screen, "lb_VBus1")->text(), QStringLiteral("VBUS"));
        QVERIFY(!screen.findChild<QWidget *>(QStringLiteral("TiFrameVbusX"))->isVisibleTo(&screen));
        QCOMPARE(colour(&screen, "VBus_V"), ChipScreen::Yellow);
        QCOMPARE(colour(&screen, "VBat_V"), ChipScreen::Yellow);
        QVERIFY(shown(&screen, "Baixa1") && shown(&screen, "Baixa3"));
        QCOMPARE(colour(&screen, "VDD_V"), ChipScreen::White);        // follows the battery warning
        QCOMPARE(labelOf(&screen, "VBus_V1")->text(), QString());     // not read on this model
        QCOMPARE(labelOf(&screen, "Temp")->text(), QStringLiteral("Sem Medição"));
    }

    void lostPhoneFreesTheButton()
    {
        ScreenBench b(QStringLiteral("IP 7"));
        Tristar screen(b.context);
        auto *read = screen.findChild<QPushButton *>(QStringLiteral("btExecutaLeitura"));
        QVERIFY(!read->isEnabled());
        b.session.setConnectionFlag(QStringLiteral("0")); // the cable is pulled before any answer
        QVERIFY(read->isEnabled());
    }

    void logButtonFoldsThePanel()
    {
        ScreenBench b(QStringLiteral("IP 7"));
        b.session.setConnectionFlag(QStringLiteral("0"));
        Tigris screen(b.context);
        QVERIFY(b.port.written.isEmpty()); // nothing is sent while not connected
        screen.findChild<QPushButton *>(QStringLiteral("btExecutaLeitura"))->click();
        QVERIFY(b.port.written.isEmpty());
        auto *log = screen.findChild<QPushButton *>(QStringLiteral("btLog"));
        const QString unfold = log->text();
        QVERIFY(!shown(&screen, "txtDados"));
        log->click();
        QVERIFY(shown(&screen, "txtDados"));
        QVERIFY(log->text() != unfold); // the caption says what the next press does
    }

    void tristarRailsAndStatus_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("rail1");
        QTest::addColumn<QString>("porc1");
        QTest::addColumn<bool>("ok1");
        QTest::addColumn<QString>("statusColour");
        QTest::addColumn<QString>("valueColour");
        QTest::newRow("IP 7 Plus good") << "IP 7 Plus" << simAnswer(QStringLiteral("ip7plus/pmuadc-all.txt"))
                                        << "PP3V0_TRISTAR_ANT_PROX" << ChipScreen::Green << true << ChipScreen::TextGreen << ChipScreen::White;
        QTest::newRow("IP 8 rail 1 high") << "IP 8" << QByteArray("BIST ldo7: 3300.0 mV\nBIST ildo7: 3400.0 uA\n"
                                                                 "BIST buck3: 1800.0 mV\nBIST ldo6: 3000.0 mV\n")
                                          << "PP3V0_S2" << ChipScreen::Yellow << false << ChipScreen::TextBlack << ChipScreen::Yellow;
    }
    void tristarRailsAndStatus()
    {
        QFETCH(QString, model);
        QFETCH(QByteArray, answer);
        QFETCH(QString, rail1);
        QFETCH(QString, porc1);
        QFETCH(bool, ok1);
        QFETCH(QString, statusColour);
        QFETCH(QString, valueColour);
        ScreenBench b(model);
        b.answers.insert(ReadAll, answer);
        Tristar screen(b.context);
        QCOMPARE(b.sent(), QStringList{ReadAll});
        QVERIFY(!shown(&screen, "lbStatus2"));
        b.finishExchange();
        QCOMPARE(labelOf(&screen, "lbNomeMalha1")->text(), rail1);
        QCOMPARE(colour(&screen, "Porc1"), porc1);
        QCOMPARE(colour(&screen, "Malha1_V"), valueColour);
        QCOMPARE(shown(&screen, "ok_1"), ok1);
        QCOMPARE(shown(&screen, "no_1"), !ok1);
        if (answer.contains("BIST ldo6:")) {
            QCOMPARE(labelOf(&screen, "Porc3")->text(), QStringLiteral("ACC"));
            QCOMPARE(colour(&screen, "Porc3"), ChipScreen::Green);
        }
        QCOMPARE(labelOf(&screen, "lbStatus")->text(), QStringLiteral("NORMAL"));
        QCOMPARE(ChipScreen::foreColor(labelOf(&screen, "lbStatus")), statusColour);
        QVERIFY(shown(&screen, "lbStatus2"));
    }

    void hydraTitle()
    {
        ScreenBench b(QStringLiteral("IP 8"));
        b.session.setConnectionFlag(QStringLiteral("0"));
        Tristar screen(b.context);
        QCOMPARE(screen.windowTitle(), QStringLiteral("Tristar - Pelorin Vekto"));
        QVERIFY(screen.setProperty("hydra", true)); // how a screen that only knows the name sets it
        QCOMPARE(screen.windowTitle(), QStringLiteral("Hydra - Pelorin Vekto"));
        screen.retranslate();
        QCOMPARE(screen.windowTitle(), QStringLiteral("Hydra - Pelorin Vekto"));
    }

    void chestnutTouchReadsAgain()
    {
        ScreenBench b(QStringLiteral("IP 8"));
        b.answers.insert(ReadChestnut, simAnswer(QStringLiteral("ip8/chestnut.txt")));
        b.answers.insert("touch --off", "touch off\n");
        Chestnut screen(b.context);
        b.finishExchange();
        QCOMPARE(colour(&screen, "Porc4"), ChipScreen::Green); // the negative rail
        QVERIFY(shown(&screen, "ok_4"));
        QCOMPARE(labelOf(&screen, "iLDO_V_1")->text(), QStringLiteral("5.733 V"));
        QCOMPARE(labelOf(&screen, "lbUC")->text(), QStringLiteral("U5600"));

        auto *touch = screen.findChild<QPushButton *>(QStringLiteral("btTouch"));
        QCOMPARE(touch->text(), QStringLiteral("Touch OFF")); // what the next press does
        touch->click();
        QCOMPARE(b.sent().last(), QStringLiteral("touch --off"));
        QCOMPARE(touch->text(), QStringLiteral("Touch ON"));
        QCOMPARE(labelOf(&screen, "iLDO_V_1")->text(), QString());
        QVERIFY(screen.timer1().isActive());
        screen.onTimer1(); // the touch answer is still coming: wait
        QCOMPARE(b.port.written.size(), 2);
        b.finishExchange();
        screen.onTimer1();
        QVERIFY(!screen.timer1().isActive());
        QCOMPARE(b.sent().last(), QString::fromLatin1(ReadChestnut));
        b.finishExchange();
        QCOMPARE(labelOf(&screen, "iLDO_V_1")->text(), QStringLiteral("5.733 V"));
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("shown");
        QTest::newRow("Chestnut on IP X") << "Chestnut" << "IP X" << "info:IP X!|NOT FOR X!";
        QTest::newRow("Acorn on IP 8 Plus") << "Acorn" << "IP 8 Plus" << "SOMENTE_X";
    }
    void refusals()
    {
        QFETCH(QString, screen);
        QFETCH(QString, model);
        QFETCH(QString, shown);
        ScreenBench b(model);
        std::unique_ptr<ChipScreen> s;
        if (screen == QLatin1String("Chestnut"))
            s = std::make_unique<Chestnut>(b.context);
        else
            s = std::make_unique<Acorn>(b.context);
        QCOMPARE(b.dialogs.shown, QStringList{shown}); // on load, the phone being idle
        s->findChild<QPushButton *>(QStringLiteral("btExecutaLeitura"))->click();
        QCOMPARE(b.dialogs.shown, (QStringList{shown, shown}));
        QVERIFY(b.port.written.isEmpty());
        QCOMPARE(b.session.screenId(), QStringLiteral("0"));
    }

    void acornMirrorsTheConsoleLive()
    {
        ScreenBench b(QStringLiteral("IP X"));
        b.answers.insert(ReadAll, simAnswer(QStringLiteral("ipx/pmuadc-all.txt")));
        Acorn screen(b.context);
        auto *txt = screen.findChild<QPlainTextEdit *>(QStringLiteral("txtDados"));
        QVERIFY(txt->isVisibleTo(&screen));
        b.exchange.onTimer1(); // the first slice, long before the answer ends
        QVERIFY(txt->toPlainText().contains(QStringLiteral("acorn ih :")));
        QVERIFY(!shown(&screen, "lbStatus2"));
        for (int i = 0; i < 60 && b.exchange.running(); ++i)
            b.exchange.onTimer2();
        QCOMPARE(labelOf(&screen, "M4")->text(), QStringLiteral("-6.723 V"));
        QCOMPARE(colour(&screen, "P4"), ChipScreen::Green);
        QVERIFY(shown(&screen, "ok_0"));
        QCOMPARE(labelOf(&screen, "lbStatus2")->text(), QStringLiteral("ANALISE COMPLETA * Beta"));
        QVERIFY(shown(&screen, "lbStatus2"));
        QVERIFY(!b.session.liveEcho());
    }
};

QTEST_MAIN(TestChips)
#include "tst_chips.moc"
