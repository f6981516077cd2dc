// The RF and display screens through the exchange with a scripted phone. RF: which command goes
// out, how long the screen waits and for what, what the verdict paints, and which rows of table
// Rf the grid shows for a model and modem choice. Display: the exact backlight command of each
// button, the chip readout each button opens per model, and a slider that sends one level per
// release, never over a running exchange.
#include "Displays.h"
#include "RFs.h"
#include "RFs_Esq.h"
#include "RadioEngine.h"
#include "ScreenBench.h"

#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QSqlQueryModel>
#include <QSqlRecord>
#include <QtTest>

Q_DECLARE_METATYPE(Verdict)

namespace {

QColor backgroundOf(QWidget *screen, quint8 radio)
{
    return child<QLabel>(screen, RadioEngine::backgroundLabel(radio))->palette().color(QPalette::Window);
}

QPushButton *btBl(QWidget *w, int index)
{
    return child<QPushButton>(w, QStringLiteral("btBl_%1").arg(index));
}

} // namespace

class TestRfScreens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QFile::exists(ScreenBench::shippedConfig()))
            QSKIP("Config.vkt was not built");
    }

    void switchOn_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<Verdict>("verdict");
        QTest::newRow("baseband good") << 0 << QByteArray("baseband --on")
                                       << QByteArray("Powering on baseband\nBB_HSIC_RDY asserted\n") << Verdict::Pass;
        QTest::newRow("gps good") << 2 << QByteArray("wifi --on")
                                  << QByteArray("Wifi power on success\nGPS is already on\n") << Verdict::Pass;
        QTest::newRow("wifi dead") << 3 << QByteArray("wifi --on") << QByteArray("Wifi power on failed\n")
                                   << Verdict::Fail;
    }

    void switchOn()
    {
        QFETCH(int, index);
        QFETCH(QByteArray, command);
        QFETCH(QByteArray, answer);
        QFETCH(Verdict, verdict);
        ScreenBench bench;
        bench.session.setIdioma(2);
        bench.answers.insert(command, answer);
        RFs screen(bench.context);

        screen.btOn(index);
        QCOMPARE(bench.sent(), QStringList{QString::fromLatin1(command)});
        QCOMPARE(bench.session.screenId(), QStringLiteral("2"));
        QVERIFY(!child<QGroupBox>(&screen, "FrameBotoes")->isEnabled());
        QVERIFY(!child<QFrame>(&screen, "FrameVCore")->isHidden());
        QVERIFY(screen.timer1().isActive());

        // While the answer is still coming, the wait does not run down.
        screen.onTimer1();
        QCOMPARE(screen.timer1Ticks(), 0);
        bench.finishExchange();
        screen.onTimer1();

        const bool pass = verdict == Verdict::Pass;
        QVERIFY(!screen.timer1().isActive());
        QCOMPARE(child<QLabel>(&screen, "lbStatus2")->text(),
                 RadioEngine::name(quint8(index)) + (pass ? QStringLiteral("\r\nCOMMUNICATION OK")
                                                          : QStringLiteral("\r\nCOMMUNICATION OFF")));
        QCOMPARE(backgroundOf(&screen, quint8(index)), pass ? QColor(0, 255, 0) : QColor(128, 128, 128));
        QCOMPARE(child<QLabel>(&screen, "ok")->isVisibleTo(&screen), pass);
        QCOMPARE(child<QLabel>(&screen, "no")->isVisibleTo(&screen), !pass);
        const QString dados = child<QPlainTextEdit>(&screen, "txtDados")->toPlainText();
        QVERIFY2(dados.contains(QString::fromLatin1(answer.left(12))), qPrintable(dados));
        QCOMPARE(dados.endsWith(QStringLiteral("REPEAT PROCESS")), !pass);
        QVERIFY(child<QGroupBox>(&screen, "FrameBotoes")->isEnabled());
        QVERIFY(child<QFrame>(&screen, "FrameVCore")->isHidden());
        // The other radios keep their colour.
        for (quint8 r = 0; r < RadioEngine::RadioCount; ++r)
            if (r != index)
                QCOMPARE(backgroundOf(&screen, r), QColor(Qt::white));
    }

    // A phone that says nothing: 29 idle ticks still wait, the 30th gives up without a verdict
    // and hands the screen back; an answer that shows up on that very tick is still judged.
    void lastTick_data()
    {
        QTest::addColumn<QString>("lateAnswer");
        QTest::newRow("silent phone") << "";
        QTest::newRow("answer on the last tick") << "BB_HSIC_RDY";
    }
    void lastTick()
    {
        QFETCH(QString, lateAnswer);
        ScreenBench bench;
        RFs screen(bench.context);
        screen.btOn(0);
        bench.finishExchange();
        for (int i = 1; i < RFs::Timer1TickLimit; ++i)
            screen.onTimer1();
        QCOMPARE(screen.timer1Ticks(), RFs::Timer1TickLimit - 1);
        QVERIFY(screen.timer1().isActive());
        QVERIFY(!child<QGroupBox>(&screen, "FrameBotoes")->isEnabled());
        if (!lateAnswer.isEmpty())
            child<QPlainTextEdit>(&screen, "txtDados")->setPlainText(lateAnswer);
        screen.onTimer1();
        QVERIFY(!screen.timer1().isActive());
        QVERIFY(child<QGroupBox>(&screen, "FrameBotoes")->isEnabled());
        QCOMPARE(backgroundOf(&screen, 0), lateAnswer.isEmpty() ? QColor(Qt::white) : QColor(0, 255, 0));
        QCOMPARE(text(&screen, "lbStatus2").isEmpty(), lateAnswer.isEmpty());
        QCOMPARE(shown(&screen, "ok"), !lateAnswer.isEmpty());
        QVERIFY(!shown(&screen, "no"));
        // The next test gets its full wait again.
        screen.btOn(1);
        QCOMPARE(screen.timer1Ticks(), 0);
    }

    void wifiOnFirstModel()
    {
        ScreenBench bench;
        bench.session.setModelo(QStringLiteral("IP 6"));
        RFs screen(bench.context);
        screen.btOn(3);
        screen.btOff(3);
        QVERIFY(bench.port.written.isEmpty());
        QCOMPARE(bench.dialogs.shown, (QStringList{"MSG_NAO_PARA_IP6", "MSG_NAO_PARA_IP6"}));
        QVERIFY(child<QGroupBox>(&screen, "FrameBotoes")->isEnabled());
        QVERIFY(child<QFrame>(&screen, "FrameVCore")->isHidden());
        QVERIFY(!screen.timer1().isActive());
    }

    // Switching off is sent and shown, never judged, and whitens the radio's label.
    void switchOff()
    {
        ScreenBench bench;
        bench.answers.insert("wifi --on", "Wifi power on success\n");
        bench.answers.insert("wifi --off", "Wifi power off done, OK\n");
        RFs screen(bench.context);
        screen.btOn(3);
        bench.finishExchange();
        screen.onTimer1();
        QCOMPARE(backgroundOf(&screen, 3), QColor(0, 255, 0));

        screen.btOff(3);
        QCOMPARE(bench.sent().last(), QStringLiteral("wifi --off"));
        QCOMPARE(backgroundOf(&screen, 3), QColor(Qt::white));
        QVERIFY(!screen.timer1().isActive());
        bench.finishExchange();
        QVERIFY(child<QPlainTextEdit>(&screen, "txtDados")->toPlainText().contains(QStringLiteral("off done")));
        QVERIFY(child<QLabel>(&screen, "lbStatus2")->text().isEmpty());
        QVERIFY(!child<QLabel>(&screen, "ok")->isVisibleTo(&screen));
        QCOMPARE(backgroundOf(&screen, 3), QColor(Qt::white));
    }

    // A cable pulled while waiting: no verdict on the radio, the screen usable at once.
    void cablePulled()
    {
        ScreenBench bench;
        bench.answers.insert("baseband --on", "Powering on baseband\n");
        RFs screen(bench.context);
        screen.btOn(0);
        bench.exchange.endNow();
        bench.session.setConnectionFlag(QStringLiteral("0"));
        screen.onTimer1();
        QVERIFY(!screen.timer1().isActive());
        QVERIFY(child<QGroupBox>(&screen, "FrameBotoes")->isEnabled());
        QCOMPARE(backgroundOf(&screen, 0), QColor(Qt::white));
        QCOMPARE(child<QLabel>(&screen, "lbStatius")->text(), QStringLiteral("Desconectado!"));
    }

    void referenceGrid_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("botao");
        QTest::addColumn<QString>("tipo");
        QTest::newRow("IP 6 Plus, second modem") << "IP 6 Plus" << 2 << "T";
        QTest::newRow("IP 6s") << "IP 6s" << 1 << "T";
        QTest::newRow("IP 7 first modem") << "IP 7" << 1 << "I";
        QTest::newRow("IP 7 second modem") << "IP 7" << 2 << "Q";
        QTest::newRow("IP X second modem") << "IP X" << 2 << "Q";
    }
    void referenceGrid()
    {
        QFETCH(QString, model);
        QFETCH(int, botao);
        QFETCH(QString, tipo);
        ScreenBench bench;
        bench.session.setIdioma(2);
        bench.session.setModelo(model);
        RFs_Esq screen(bench.context);
        QCOMPARE(child<QComboBox>(&screen, "ComboAparelhos")->currentText(), model);
        QCOMPARE(screen.tipo(), tipo == QLatin1String("T") ? QStringLiteral("T") : QStringLiteral("I"));
        child<QPushButton>(&screen, botao == 2 ? "Botao2" : "Botao1")->click();
        if (tipo == QLatin1String("T"))
            screen.escolheBaseband(botao); // the buttons are idle on these models; the choice still changes nothing
        QCOMPARE(screen.tipo(), tipo);

        QSqlQueryModel *grid = screen.Data1();
        QVERIFY2(grid->rowCount() > 0, qPrintable(model + u' ' + tipo));
        QStringList malhas;
        for (int row = 0; row < grid->rowCount(); ++row) {
            QCOMPARE(grid->record(row).value(QStringLiteral("Modelo")).toString(), model);
            QCOMPARE(grid->record(row).value(QStringLiteral("Tipo")).toString(), tipo);
            malhas << grid->record(row).value(QStringLiteral("Malha")).toString();
        }
        QStringList sorted = malhas;
        // The grid keeps the order of the query: by Malha, letter case ignored (SQLite folds
        // A-Z to a-z, so "_" sorts before "I").
        std::stable_sort(sorted.begin(), sorted.end(),
                         [](const QString &a, const QString &b) { return a.toLower() < b.toLower(); });
        QCOMPARE(malhas, sorted);

    }

    // The model combo is the screen's own: choosing another model reloads without touching the
    // main window's choice.
    void ownModelChoice()
    {
        ScreenBench bench;
        RFs_Esq screen(bench.context);
        child<QPushButton>(&screen, "Botao2")->click();
        child<QComboBox>(&screen, "ComboAparelhos")->setCurrentText(QStringLiteral("IP 8 Plus"));
        QCOMPARE(screen.tipo(), QStringLiteral("Q"));
        QVERIFY(screen.Data1()->rowCount() > 0);
        QCOMPARE(screen.Data1()->record(0).value(QStringLiteral("Modelo")).toString(), QStringLiteral("IP 8 Plus"));
        QCOMPARE(bench.session.modelo(), QStringLiteral("IP 7"));
        child<QComboBox>(&screen, "ComboAparelhos")->setCurrentText(QStringLiteral("IP 6"));
        QCOMPARE(screen.tipo(), QStringLiteral("T"));
        QVERIFY(screen.Data1()->rowCount() > 0);
    }

    void backlightCommands_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("command");
        QTest::newRow("on") << 0 << "bl -n";
        QTest::newRow("off") << 1 << "bl --off";
        QTest::newRow("all levels") << 2 << "bl -r";
        QTest::newRow("low") << 3 << "bl -l";
        QTest::newRow("medium") << 4 << "bl -m";
        QTest::newRow("high") << 5 << "bl -h";
    }
    void backlightCommands()
    {
        QFETCH(int, index);
        QFETCH(QString, command);
        ScreenBench bench;
        bench.answers.insert(command.toLatin1(), "backlight done\n");
        Displays screen(bench.context);
        btBl(&screen, index)->click();
        QCOMPARE(bench.sent(), QStringList{command});
        QCOMPARE(bench.session.screenId(), QStringLiteral("3"));
        bench.finishExchange();
        QVERIFY(child<QPlainTextEdit>(&screen, "txtDados")->toPlainText().contains(QStringLiteral("backlight done")));
        QCOMPARE(bench.session.connectionFlag(), QStringLiteral("1"));
    }

    // Button 6 opens Chestnut only on the IP X (and says so); every other readout button opens Acorn.
    void chipScreens_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("idioma");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("opened");
        QTest::newRow("IP X, 6") << "IP X" << 1 << 6 << "Chestnut";
        QTest::newRow("IP X, 6, English") << "IP X" << 2 << 6 << "Chestnut";
        QTest::newRow("IP X, 7") << "IP X" << 1 << 7 << "Acorn";
        QTest::newRow("IP 8 Plus, 6") << "IP 8 Plus" << 3 << 6 << "Acorn";
        QTest::newRow("IP 6, 7") << "IP 6" << 1 << 7 << "Acorn";
    }
    void chipScreens()
    {
        QFETCH(QString, model);
        QFETCH(int, idioma);
        QFETCH(int, index);
        QFETCH(QString, opened);
        ScreenBench bench(model);
        bench.session.setIdioma(quint8(idioma));
        Displays screen(bench.context);
        QStringList asked;
        screen.setScreenOpener([&asked](const QString &name) { asked << name; });
        QVERIFY2(btBl(&screen, index)->text().endsWith(opened), qPrintable(btBl(&screen, index)->text()));
        btBl(&screen, index)->click();
        QCOMPARE(asked, QStringList{opened});
        QVERIFY(bench.port.written.isEmpty());
    }

    // A readout that the program does not have gets no button.
    void chipScreensMissing()
    {
        ScreenBench bench(QStringLiteral("IP X"));
        Displays screen(bench.context);
        QVERIFY(!btBl(&screen, 6)->isVisibleTo(&screen));
        screen.setScreenOpener([](const QString &) {}, [](const QString &name) { return name == QLatin1String("Chestnut"); });
        QVERIFY(btBl(&screen, 6)->isVisibleTo(&screen));
        QVERIFY(!btBl(&screen, 7)->isVisibleTo(&screen));
    }

    // Dragging sends nothing until the slider is let go, then exactly the level let go at.
    void sliderDrag()
    {
        ScreenBench bench;
        Displays screen(bench.context);
        auto *slider = child<QSlider>(&screen, "Slider1");
        slider->setSliderDown(true);
        for (int level = 0; level <= 100; ++level)
            slider->setSliderPosition(level);
        slider->setSliderPosition(37);
        QVERIFY(bench.port.written.isEmpty());
        QCOMPARE(text(&screen, "lbInfoLevel"), QStringLiteral("37"));
        slider->setSliderDown(false);
        QCOMPARE(bench.sent(), QStringList{QStringLiteral("bl -p 37")});
    }

    // Let go while another exchange runs: nothing goes over it, and the last level let go is
    // sent once that exchange is over; a level kept for later is dropped when the phone goes away.
    void sliderDuringExchange_data()
    {
        QTest::addColumn<bool>("phoneLost");
        QTest::newRow("sent after the exchange") << false;
        QTest::newRow("dropped on a disconnect") << true;
    }
    void sliderDuringExchange()
    {
        QFETCH(bool, phoneLost);
        ScreenBench bench;
        bench.answers.insert("bl -n", "backlight on\n");
        Displays screen(bench.context);
        auto *slider = child<QSlider>(&screen, "Slider1");
        if (phoneLost)
            bench.session.setConnectionFlag(QStringLiteral("3"));
        else
            btBl(&screen, 0)->click();
        QCOMPARE(bench.session.connectionFlag(), QStringLiteral("3"));
        for (const int level : {10, 55, 90}) {
            slider->setSliderDown(true);
            slider->setSliderPosition(level);
            slider->setSliderDown(false);
        }
        const QStringList before = phoneLost ? QStringList{} : QStringList{QStringLiteral("bl -n")};
        QCOMPARE(bench.sent(), before);
        QCOMPARE(text(&screen, "lbAguarde"), QStringLiteral("Aguarde..."));
        QCOMPARE(screen.pendingLevel(), std::optional<int>(90));
        if (phoneLost) {
            bench.session.setConnectionFlag(QStringLiteral("0"));
            bench.session.setConnectionFlag(QStringLiteral("1"));
        } else {
            bench.finishExchange();
        }
        QCoreApplication::processEvents();
        QCOMPARE(bench.sent(), phoneLost ? before : before + QStringList{QStringLiteral("bl -p 90")});
        if (!phoneLost) {
            bench.finishExchange();
            QCoreApplication::processEvents();
            QCOMPARE(bench.sent().size(), 2); // sent once only
        }
    }
};

QTEST_MAIN(TestRfScreens)
#include "tst_rfscreens.moc"
