// The display screen: the exact backlight command of each button, nothing sent while the phone
// is busy or away, captions built per model and language, the chip readout each button opens,
// and a slider that sends one level per release, never over a running exchange.
#include "BoardBench.h"
#include "Displays.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QtTest>

namespace {

template<typename T> T *child(QWidget *w, const QString &name)
{
    return w->findChild<T *>(name);
}

QPushButton *btBl(QWidget *w, int index)
{
    return child<QPushButton>(w, QStringLiteral("btBl_%1").arg(index));
}

} // namespace

class TestDisplays : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QFile::exists(BoardBench::shippedConfig()))
            QSKIP("Config.vkt was not built");
    }

    void commands_data()
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
    void commands()
    {
        QFETCH(int, index);
        QFETCH(QString, command);
        BoardBench bench;
        bench.answers.insert(command.toLatin1(), "backlight done\n");
        Displays screen(bench.context);
        btBl(&screen, index)->click();
        QCOMPARE(bench.commandsWritten(), QStringList{command + u'\r'});
        QCOMPARE(bench.session.screenId(), QStringLiteral("3"));
        bench.finishExchange();
        QVERIFY(child<QPlainTextEdit>(&screen, "txtDados")->toPlainText().contains(QStringLiteral("backlight done")));
        QCOMPARE(bench.session.connectionFlag(), QStringLiteral("1"));
    }

    void notIdle_data()
    {
        QTest::addColumn<QString>("flag");
        QTest::addColumn<QString>("label");
        QTest::newRow("disconnected") << "0" << "Desconectado";
        QTest::newRow("exchange running") << "3" << "Aguarde...";
    }
    void notIdle()
    {
        QFETCH(QString, flag);
        QFETCH(QString, label);
        BoardBench bench;
        Displays screen(bench.context);
        bench.session.setConnectionFlag(flag);
        for (int index = 0; index < 6; ++index)
            btBl(&screen, index)->click();
        child<QSlider>(&screen, "Slider1")->setValue(40);
        QVERIFY(bench.port.written.isEmpty());
        auto *aguarde = child<QLabel>(&screen, "lbAguarde");
        QCOMPARE(aguarde->text(), label);
        QVERIFY(aguarde->isVisibleTo(&screen));
        screen.onTimerAguarde();
        QVERIFY(!aguarde->isVisibleTo(&screen));
        QVERIFY(!screen.timerAguarde().isActive());
    }

    void captions_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("idioma");
        QTest::addColumn<QStringList>("captions");
        QTest::newRow("IP 7 pt") << "IP 7" << 1
            << QStringList{"Testar BackLight", "Desligar BackLight", "Testar Todos Níveis", "Nível  1 Low",
                           "Nível  2 Medium", "Nível  3 Hight", "Tensões Acorn", "Tensões Acorn"};
        QTest::newRow("IP X pt") << "IP X" << 1
            << QStringList{"Testar BackLight", "Desligar BackLight", "Testar Todos Níveis", "Nível  1 Low",
                           "Nível  2 Medium", "Nível  3 Hight", "Tensões Chestnut", "Tensões Acorn"};
        QTest::newRow("IP X en") << "IP X" << 2
            << QStringList{"Test BackLight", "Turn Off BackLight", "Test All Levels", "Level  1 Low",
                           "Level  2 Medium", "Level  3 Hight", "Power Supplies Chestnut", "Power Supplies Acorn"};
        QTest::newRow("IP 8 es") << "IP 8" << 3
            << QStringList{"Probar BackLight", "Apagar BackLight", "Probar Todos los Niveles", "Nivel  1 Low",
                           "Nivel  2 Medium", "Nivel  3 Hight", "Tensiones Acorn", "Tensiones Acorn"};
    }
    void captions()
    {
        QFETCH(QString, model);
        QFETCH(int, idioma);
        QFETCH(QStringList, captions);
        BoardBench bench;
        bench.session.setIdioma(quint8(idioma));
        bench.session.setModelo(model);
        Displays screen(bench.context);
        QStringList shown;
        for (int i = 0; i < Displays::ButtonCount; ++i)
            shown << btBl(&screen, i)->text();
        QCOMPARE(shown, captions);
    }

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
        BoardBench bench;
        bench.session.setIdioma(quint8(idioma));
        bench.session.setModelo(model);
        Displays screen(bench.context);
        QStringList asked;
        screen.setScreenOpener([&asked](const QString &name) { asked << name; });
        btBl(&screen, index)->click();
        QCOMPARE(asked, QStringList{opened});
        QVERIFY(bench.port.written.isEmpty());
    }

    // A readout that the program does not have gets no button.
    void chipScreensMissing()
    {
        BoardBench bench;
        bench.session.setModelo(QStringLiteral("IP X"));
        Displays screen(bench.context);
        QVERIFY(!btBl(&screen, 6)->isVisibleTo(&screen));
        screen.setScreenOpener([](const QString &) {}, [](const QString &name) { return name == QLatin1String("Chestnut"); });
        QVERIFY(btBl(&screen, 6)->isVisibleTo(&screen));
        QVERIFY(!btBl(&screen, 7)->isVisibleTo(&screen));
        screen.setScreenOpener([](const QString &) {}, [](const QString &) { return false; });
        QVERIFY(!btBl(&screen, 6)->isVisibleTo(&screen));
    }

    // Dragging sends nothing until the slider is let go, then exactly the level let go at.
    void sliderDrag()
    {
        BoardBench bench;
        Displays screen(bench.context);
        auto *slider = child<QSlider>(&screen, "Slider1");
        slider->setSliderDown(true);
        for (int level = 0; level <= 100; ++level)
            slider->setSliderPosition(level);
        slider->setSliderPosition(37);
        QVERIFY(bench.port.written.isEmpty());
        QCOMPARE(child<QLabel>(&screen, "lbInfoLevel")->text(), QStringLiteral("37"));
        slider->setSliderDown(false);
        QCOMPARE(bench.commandsWritten(), QStringList{QStringLiteral("bl -p 37\r")});
    }

    // Let go while another exchange runs: nothing goes over it, and the last level let go is
    // sent once that exchange is over.
    void sliderDuringExchange()
    {
        BoardBench bench;
        bench.answers.insert("bl -n", "backlight on\n");
        Displays screen(bench.context);
        auto *slider = child<QSlider>(&screen, "Slider1");
        btBl(&screen, 0)->click();
        QCOMPARE(bench.session.connectionFlag(), QStringLiteral("3"));
        for (const int level : {10, 55, 90}) {
            slider->setSliderDown(true);
            slider->setSliderPosition(level);
            slider->setSliderDown(false);
        }
        QCOMPARE(bench.commandsWritten(), QStringList{QStringLiteral("bl -n\r")});
        QCOMPARE(child<QLabel>(&screen, "lbAguarde")->text(), QStringLiteral("Aguarde..."));
        QCOMPARE(screen.pendingLevel(), std::optional<int>(90));
        bench.finishExchange();
        QCoreApplication::processEvents();
        QCOMPARE(bench.commandsWritten(), (QStringList{QStringLiteral("bl -n\r"), QStringLiteral("bl -p 90\r")}));
        QVERIFY(!screen.pendingLevel());
        bench.finishExchange();
        QCoreApplication::processEvents();
        QCOMPARE(bench.port.written.size(), 2);
    }

    // A level kept for later is dropped when the phone goes away meanwhile.
    void sliderThenDisconnect()
    {
        BoardBench bench;
        Displays screen(bench.context);
        bench.session.setConnectionFlag(QStringLiteral("3"));
        child<QSlider>(&screen, "Slider1")->setValue(20);
        QVERIFY(screen.pendingLevel());
        bench.session.setConnectionFlag(QStringLiteral("0"));
        bench.session.setConnectionFlag(QStringLiteral("1"));
        QCoreApplication::processEvents();
        QVERIFY(bench.port.written.isEmpty());
    }
};

QTEST_MAIN(TestDisplays)
#include "tst_displays.moc"
