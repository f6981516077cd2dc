// The I2C and IC screens on a real Config.vkt with the simulated boards answering through the
// real exchange; the screens' timers are stepped by hand, so every wait and give-up rule is
// checked without waiting.
#include "Displays.h"
#include "I2C.h"
#include "IC.h"
#include "RFs.h"
#include "ScreenBench.h"

#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>
#include <functional>

namespace {

const QString NoFailure = QStringLiteral("Nenhuma falha detectada em I2C");

// A bench whose phone is the simulated board of `model`.
struct Bench : ScreenBench
{
    explicit Bench(const QString &model, Profile profile = Profile::Good) : ScreenBench(model) { simulate(model, profile); }
};

QStringList items(QWidget *screen)
{
    auto *list = child<QListWidget>(screen, "ListView");
    QStringList out;
    for (int i = 0; i < list->count(); ++i)
        out << list->item(i)->text();
    return out;
}

QString failureList(QWidget *screen)
{
    return child<QPlainTextEdit>(screen, "txtDadosI2C")->toPlainText();
}

QList<int> probedBuses(const QStringList &commands)
{
    QList<int> buses;
    for (const QString &c : commands)
        if (c.startsWith(QLatin1String("i2c -s ")))
            buses << c.mid(7).toInt();
    return buses;
}

// One bus test answered and judged.
void answerBus(I2C &screen, Bench &bench)
{
    bench.finishExchange();
    screen.onTimer1();
}

// The whole automatic run: every tick of the run timer, each bus test answered and judged.
void runAuto(I2C &screen, Bench &bench)
{
    screen.btAutoTeste();
    for (int guard = 0; guard < 60 && screen.timerAuto().isActive(); ++guard) {
        screen.onTimerAuto();
        if (bench.exchange.running())
            answerBus(screen, bench);
    }
}

} // namespace

class TestBoardScreens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QFile::exists(ScreenBench::shippedConfig()))
            QSKIP("Config.vkt was not built");
    }

    void autoRun_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("profile");
        QTest::addColumn<QList<int>>("buses");
        QTest::addColumn<QString>("failures");
        QTest::addColumn<int>("silent");
        const int good = int(Profile::Good), missing = int(Profile::I2cMissing);
        QTest::newRow("IP 6 stops at hidden bus 3") << "IP 6" << good << QList<int>{0, 1, 2} << NoFailure << 0;
        QTest::newRow("IP 7 Plus skips 3") << "IP 7 Plus" << good << QList<int>{0, 1, 2, 4} << NoFailure << 0;
        QTest::newRow("IP X") << "IP X" << good << QList<int>{0, 3, 4, 5, 6, 7} << NoFailure << 0;
        QTest::newRow("IP 7 front flex")
            << "IP 7" << missing << QList<int>{0, 1, 2, 3, 4}
            << "I2C 2\nJ4503 - Flex Front Camera and Prox. Sensor Cable \nx39 - Prox ALS Sensor" << 1;
        QTest::newRow("IP 8 dock") << "IP 8" << missing << QList<int>{0, 1, 2, 3, 4, 6, 7}
                                   << "I2C 1\nDOCK \nx72 - Dock Hydra Sense" << 1;
        QTest::newRow("IP 8 Plus RF") << "IP 8 Plus" << missing << QList<int>{0, 2, 3, 4, 6, 7}
                                      << "I2C 3\n0X51 - RF \nx51 - RF Tuner" << 1;
    }
    void autoRun()
    {
        QFETCH(QString, model);
        QFETCH(int, profile);
        QFETCH(QList<int>, buses);
        QFETCH(QString, failures);
        QFETCH(int, silent);
        Bench bench(model, Profile(profile));
        I2C screen(bench.context, bench.shell);
        runAuto(screen, bench);
        QVERIFY(!screen.timerAuto().isActive());
        QVERIFY(!screen.autoRunning());
        QCOMPARE(probedBuses(bench.sent()), buses);
        QCOMPARE(failureList(&screen), failures);
        QCOMPARE(child(&screen, "FrameResultadoOK")->isHidden(), failures != NoFailure);
        QVERIFY(child(&screen, "ProgressBar")->isHidden());

        // The log: a heading per bus (after a blank line, except on the IP 8 and IP X families),
        // every device line, and the closing line.
        const QStringList log = items(&screen);
        QCOMPARE(log.mid(log.size() - 2), (QStringList{" ", "Teste Finalizados"}));
        const bool blanks = !model.startsWith(QLatin1String("IP 8")) && model != QLatin1String("IP X");
        for (int bus : std::as_const(buses)) {
            const qsizetype heading = log.indexOf(QString::number(bus) + QStringLiteral("  I2C "));
            QVERIFY2(heading >= 0, qPrintable(log.join(u'|')));
            QCOMPARE(log.value(heading - 1) == QLatin1String(" "), blanks);
        }
        QCOMPARE(log.filter(QStringLiteral("COMUNICAÇÃO OFF")).size(), silent);
        QVERIFY(log.filter(QStringLiteral("COMUNICAÇÃO OK")).size() >= buses.size());

        // The run can become the model's list once the technician calls the board good: the
        // silent device is named as leaving, and the same board passes afterwards.
        auto *learn = child<QPushButton>(&screen, "btAprenderI2C");
        QVERIFY(learn->isEnabled());
        learn->click();
        const QString asked = bench.dialogs.shown.value(bench.dialogs.shown.size() - 1);
        QCOMPARE(asked.startsWith(QLatin1String("question:")), silent > 0);
        if (silent > 0) {
            QVERIFY2(asked.contains(failures.section(u'\n', -1).replace(QStringLiteral(" - "), QStringLiteral("-"))),
                     qPrintable(asked));
            runAuto(screen, bench);
            QCOMPARE(failureList(&screen), NoFailure);
        }
    }

    void singleBus_data()
    {
        QTest::addColumn<QString>("board");
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("bus");
        QTest::addColumn<QString>("result");
        QTest::addColumn<QString>("images"); // ok/no pictures shown, row by row
        QTest::newRow("IP 7 bus 2 good") << "IP 7" << "IP 7" << 2
                                         << "x37 - Front Camera - COMUNICAÇÃO OK\nx39 - Prox ALS Sensor - COMUNICAÇÃO OK"
                                         << "++";
        QTest::newRow("IP X bus 0: three rows") << "IP X" << "IP X" << 0
                                                << "x74 - PMU - COMUNICAÇÃO OK\nx1b - Hydra - COMUNICAÇÃO OK\n"
                                                   "x75 - Charger Tigris - COMUNICAÇÃO OK"
                                                << "+++";
        QTest::newRow("bus without rows passes with no line") << "IP 7" << "IP 7" << 6 << "" << "";
        QTest::newRow("a quote in the model changes no query") << "IP 7" << "IP 7' OR '1'='1" << 0 << "" << "";
    }
    void singleBus()
    {
        QFETCH(QString, board);
        QFETCH(QString, model);
        QFETCH(int, bus);
        QFETCH(QString, result);
        QFETCH(QString, images);
        Bench bench(board);
        bench.session.setModelo(model);
        I2C screen(bench.context, bench.shell);
        screen.btI2C(bus);
        QCOMPARE(bench.sent(), QStringList{QStringLiteral("i2c -s ") + QString::number(bus)});
        QVERIFY(screen.timer1().isActive());
        answerBus(screen, bench);
        QVERIFY(!screen.timer1().isActive());
        QCOMPARE(text(&screen, "lbResultado"), result);
        QString pictures;
        for (int i = 0; i < I2C::Images; ++i) {
            const bool ok = !child(&screen, QStringLiteral("ok_%1").arg(i))->isHidden();
            const bool no = !child(&screen, QStringLiteral("no_%1").arg(i))->isHidden();
            QVERIFY(!(ok && no));
            if (ok || no)
                pictures += ok ? u'+' : u'-';
        }
        QCOMPARE(pictures, images);
        QCOMPARE(failureList(&screen), NoFailure);
        QVERIFY(!child(&screen, "FrameResultadoOK")->isHidden());
        // A single test outside a run still writes its heading with the run's counter.
        QCOMPARE(items(&screen).last(), QStringLiteral("-1  I2C "));
    }

    void unreadableDatabaseIsNoPass()
    {
        Bench bench(QStringLiteral("IP 7"));
        QVERIFY(QFile::remove(bench.path) && QDir(bench.dir.path()).mkdir(QStringLiteral("Config.vkt")));
        I2C screen(bench.context, bench.shell);
        screen.btI2C(0);
        answerBus(screen, bench);
        QVERIFY(text(&screen, "lbResultado").contains(QStringLiteral("Config.vkt")));
        QVERIFY(failureList(&screen).isEmpty());
        QVERIFY(child(&screen, "FrameResultadoOK")->isHidden());
    }

    void waitGivesUpOnceInTheScreensLife()
    {
        Bench bench(QStringLiteral("IP 7"));
        I2C screen(bench.context, bench.shell);
        screen.btI2C(0); // the answer is left in the port: nothing reaches txtDados
        for (int i = 1; i < I2C::Timer1TickLimit; ++i)
            screen.onTimer1();
        QVERIFY(screen.timer1().isActive());
        screen.onTimer1();
        QVERIFY(!screen.timer1().isActive());
        QVERIFY(text(&screen, "lbResultado").isEmpty());

        // The count is never reset: a later wait outlasts any number of ticks, and still
        // judges the answer when it finally comes.
        bench.finishExchange();
        bench.session.setConnectionFlag(QStringLiteral("1"));
        screen.btI2C(1);
        for (int i = 0; i < 3 * I2C::Timer1TickLimit; ++i)
            screen.onTimer1();
        QVERIFY(screen.timer1().isActive());
        QVERIFY(text(&screen, "lbResultado").isEmpty());
        child<ConsoleTextEdit>(&screen, "txtDados")->setRawText(QStringLiteral("device answered at 0x36 0x50"));
        screen.onTimer1();
        QVERIFY(!screen.timer1().isActive());
        QVERIFY(text(&screen, "lbResultado").contains(QStringLiteral("x50 - Camera EEPROM - COMUNICAÇÃO OK")));
    }

    void cancelStopsTheRun()
    {
        Bench bench(QStringLiteral("IP 8"));
        I2C screen(bench.context, bench.shell);
        screen.btAutoTeste();
        screen.onTimerAuto();
        QCOMPARE(probedBuses(bench.sent()), QList<int>{0});
        screen.btAutoTeste();
        QVERIFY(!screen.timerAuto().isActive());
        QVERIFY(!screen.timerBarra().isActive());
        // The cancelled run neither claims a pass nor probes on.
        QVERIFY(child(&screen, "FrameResultadoOK")->isHidden());
        // The answer of the bus already under way is still judged, and nothing more is probed.
        answerBus(screen, bench);
        QCOMPARE(probedBuses(bench.sent()), QList<int>{0});
        QVERIFY(items(&screen).contains(QStringLiteral("x74 - PMU - COMUNICAÇÃO OK")));
        QVERIFY(!screen.timerAuto().isActive());
    }

    // A screen asked to send while the phone is away or busy sends nothing and says why, and the
    // waiting notice goes at its timer's next tick.
    void notIdle_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("flag");
        QTest::addColumn<QString>("notice");
        QTest::newRow("display, disconnected") << "Displays" << "btBl_0" << "0" << "Desconectado";
        QTest::newRow("display, exchange running") << "Displays" << "btBl_5" << "3" << "Aguarde...";
        QTest::newRow("RF on, disconnected") << "RFs" << "btOn_2" << "0" << "Desconectado!";
        QTest::newRow("RF off, connecting") << "RFs" << "btOff_2" << "2" << "Aguarde...";
        QTest::newRow("I2C bus, disconnected") << "I2C" << "btI2C_2" << "0" << "Desconectado!";
        QTest::newRow("I2C run, exchange running") << "I2C" << "btAutoTeste" << "3" << "Aguarde...";
        QTest::newRow("IC, disconnected") << "IC" << "btBl_1" << "0" << "Desconectado!";
        QTest::newRow("IC, exchange running") << "IC" << "btBl_2" << "3" << "Aguarde...";
    }
    void notIdle()
    {
        QFETCH(QString, screen);
        QFETCH(QString, button);
        QFETCH(QString, flag);
        QFETCH(QString, notice);
        ScreenBench bench;
        bench.session.setConnectionFlag(flag);
        std::unique_ptr<QWidget> widget;
        std::function<void()> tick;
        if (screen == QLatin1String("Displays")) {
            auto *s = new Displays(bench.context);
            tick = [s] { s->onTimerAguarde(); };
            widget.reset(s);
        } else if (screen == QLatin1String("RFs")) {
            auto *s = new RFs(bench.context);
            tick = [s] { s->onTimerAguarde(); };
            widget.reset(s);
        } else if (screen == QLatin1String("I2C")) {
            auto *s = new I2C(bench.context, bench.shell);
            tick = [s] { s->onTimerAguarde(); };
            widget.reset(s);
        } else {
            auto *s = new IC(bench.context, {});
            tick = [s] { s->onTimerAguarde(); };
            widget.reset(s);
        }
        child<QPushButton>(widget.get(), button)->click();
        QVERIFY(bench.port.written.isEmpty());
        QCOMPARE(text(widget.get(), "lbAguarde"), notice);
        QVERIFY(shown(widget.get(), "lbAguarde"));
        tick();
        QVERIFY(!shown(widget.get(), "lbAguarde"));
        if (auto *i2c = qobject_cast<I2C *>(widget.get()))
            QVERIFY(!i2c->autoRunning() && !i2c->timerAuto().isActive());
    }

    void icCheck_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<bool>("arrived");
        QTest::addColumn<QString>("status");
        QTest::newRow("30: still waiting") << 30 << false << "";
        QTest::newRow("31: arrived, too short") << 31 << true << "COMUNICAÇÃO OFF";
        QTest::newRow("200: OFF") << 200 << true << "COMUNICAÇÃO OFF";
        QTest::newRow("201: OK") << 201 << true << "COMUNICAÇÃO OK";
    }
    void icCheck()
    {
        QFETCH(int, length);
        QFETCH(bool, arrived);
        QFETCH(QString, status);
        Bench bench(QStringLiteral("IP 8 Plus"));
        IC screen(bench.context, {});
        screen.btBl(2);
        QCOMPARE(bench.sent(), QStringList{"tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx"});
        bench.finishExchange();
        child<ConsoleTextEdit>(&screen, "txtDados")->setRawText(QString(length, u'.'));
        screen.onTimerStatus();
        QCOMPARE(screen.timerStatus().isActive(), !arrived);
        QCOMPARE(text(&screen, "lbStatus"), status);
        QCOMPARE(text(&screen, "lbIC"), arrived ? QStringLiteral("HYDRA") : QString());
        QCOMPARE(!child(&screen, "ok")->isHidden(), status == QStringLiteral("COMUNICAÇÃO OK"));
        QCOMPARE(!child(&screen, "no")->isHidden(), status == QStringLiteral("COMUNICAÇÃO OFF"));
        QCOMPARE(!child(&screen, "lbStatus2")->isHidden(), arrived);
    }

    // The chip is named by model, on the buttons and on the result, and the voltages button
    // opens the readout under that name.
    void icThroughTheExchange_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("chip");
        QTest::newRow("IP 7 data dump") << "IP 7" << 1 << "TRISTAR";
        QTest::newRow("IP X register read") << "IP X" << 2 << "HYDRA";
    }
    void icThroughTheExchange()
    {
        QFETCH(QString, model);
        QFETCH(int, kind);
        QFETCH(QString, chip);
        Bench bench(model);
        QList<std::pair<QString, bool>> opened;
        IC screen(bench.context, [&opened](const QString &name, bool hydra) { opened.append({name, hydra}); });
        QVERIFY(child<QPushButton>(&screen, "btTristar")->text().startsWith(chip));
        QVERIFY(child<QPushButton>(&screen, "btBl_1")->text().startsWith(chip));
        screen.btBl(kind);
        QCOMPARE(bench.session.screenId(), QStringLiteral("5"));
        bench.finishExchange();
        screen.onTimerStatus();
        QCOMPARE(text(&screen, "lbStatus"), QStringLiteral("COMUNICAÇÃO OK"));
        QCOMPARE(text(&screen, "lbIC"), chip);
        child<QPushButton>(&screen, "btTristar")->click();
        child<QPushButton>(&screen, "btTigris")->click();
        QCOMPARE(opened, (QList<std::pair<QString, bool>>{{"Tristar", chip == QLatin1String("HYDRA")}, {"Tigris", false}}));
    }

    void icGivesUpOnceInTheScreensLife()
    {
        Bench bench(QStringLiteral("IP 7"));
        IC screen(bench.context, {});
        screen.btBl(1);
        bench.finishExchange();
        auto *dados = child<ConsoleTextEdit>(&screen, "txtDados");
        dados->setRawText(QStringLiteral("\r\n"));
        for (int i = 1; i < IC::TimerStatusTickLimit; ++i)
            screen.onTimerStatus();
        QVERIFY(screen.timerStatus().isActive());
        screen.onTimerStatus();
        QVERIFY(!screen.timerStatus().isActive());
        QVERIFY(text(&screen, "lbStatus").isEmpty());

        screen.btBl(2);
        bench.finishExchange();
        dados->setRawText(QStringLiteral("\r\n"));
        for (int i = 0; i < 3 * IC::TimerStatusTickLimit; ++i)
            screen.onTimerStatus();
        QVERIFY(screen.timerStatus().isActive());
        // While an exchange runs the timer neither judges nor counts.
        bench.session.setConnectionFlag(QStringLiteral("3"));
        dados->setRawText(QString(300, u'x'));
        screen.onTimerStatus();
        QVERIFY(text(&screen, "lbStatus").isEmpty());
        bench.session.setConnectionFlag(QStringLiteral("1"));
        screen.onTimerStatus();
        QCOMPARE(text(&screen, "lbStatus"), QStringLiteral("COMUNICAÇÃO OK"));
    }
};

QTEST_MAIN(TestBoardScreens)
#include "tst_boardscreens.moc"
