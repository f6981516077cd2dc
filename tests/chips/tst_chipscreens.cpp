// The four chip screens with a scripted phone behind the real exchange: what each sends, what
// the hand-over paints on the controls a technician reads (found by their names), and the few
// things each screen does of its own (log panel, layout per model, touch, refusals, live copy).

#include "Acorn.h"
#include "Chestnut.h"
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

} // namespace

class TestChipScreens : public QObject
{
    Q_OBJECT

private slots:
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

QTEST_MAIN(TestChipScreens)
#include "tst_chipscreens.moc"
