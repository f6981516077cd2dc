// The RF screen and its reference grid through the exchange with a scripted phone: which
// command goes out, how long the screen waits and for what, what the verdict paints, and which
// rows of table Rf the grid shows for a model and modem choice.
#include "BoardBench.h"
#include "RFs.h"
#include "RFs_Esq.h"
#include "RadioEngine.h"

#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQueryModel>
#include <QSqlRecord>
#include <QTableView>
#include <QtTest>

Q_DECLARE_METATYPE(Verdict)

namespace {

template<typename T> T *child(QWidget *w, const QString &name)
{
    return w->findChild<T *>(name);
}

QColor backgroundOf(QWidget *screen, quint8 radio)
{
    return child<QLabel>(screen, RadioEngine::backgroundLabel(radio))->palette().color(QPalette::Window);
}

} // namespace

class TestRfScreens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QFile::exists(BoardBench::shippedConfig()))
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
        QTest::newRow("baseband dead") << 0 << QByteArray("baseband --on")
                                       << QByteArray("baseband did not respond, timeout\n") << Verdict::Fail;
        QTest::newRow("bluetooth good") << 1 << QByteArray("bluetooth --on") << QByteArray("Bluetooth power on success\n")
                                        << Verdict::Pass;
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
        BoardBench bench;
        bench.session.setIdioma(2);
        bench.answers.insert(command, answer);
        RFs screen(bench.context);
        QCOMPARE(child<QLabel>(&screen, "lbStatus2")->text(), QStringLiteral("ANALYSIS COMPLETE"));

        screen.btOn(index);
        QCOMPARE(bench.commandsWritten(), QStringList{QString::fromLatin1(command + '\r')});
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
    // and hands the screen back; the next test gets its full wait again.
    void silentPhone()
    {
        BoardBench bench;
        RFs screen(bench.context);
        screen.btOn(1);
        bench.finishExchange();
        for (int i = 1; i < RFs::Timer1TickLimit; ++i)
            screen.onTimer1();
        QCOMPARE(screen.timer1Ticks(), RFs::Timer1TickLimit - 1);
        QVERIFY(screen.timer1().isActive());
        QVERIFY(!child<QGroupBox>(&screen, "FrameBotoes")->isEnabled());
        screen.onTimer1();
        QVERIFY(!screen.timer1().isActive());
        QVERIFY(child<QGroupBox>(&screen, "FrameBotoes")->isEnabled());
        QVERIFY(child<QLabel>(&screen, "lbStatus2")->text().isEmpty());
        QVERIFY(!child<QLabel>(&screen, "ok")->isVisibleTo(&screen));
        QVERIFY(!child<QLabel>(&screen, "no")->isVisibleTo(&screen));
        QCOMPARE(backgroundOf(&screen, 1), QColor(Qt::white));

        bench.answers.insert("bluetooth --on", "Bluetooth power on success\n");
        screen.btOn(1);
        QCOMPARE(screen.timer1Ticks(), 0);
        bench.finishExchange();
        screen.onTimer1();
        QCOMPARE(backgroundOf(&screen, 1), QColor(0, 255, 0));
    }

    // An answer that shows up on the very last tick is still judged.
    void answerOnLastTick()
    {
        BoardBench bench;
        RFs screen(bench.context);
        screen.btOn(0);
        bench.finishExchange();
        for (int i = 1; i < RFs::Timer1TickLimit; ++i)
            screen.onTimer1();
        child<QPlainTextEdit>(&screen, "txtDados")->setPlainText(QStringLiteral("BB_HSIC_RDY"));
        screen.onTimer1();
        QCOMPARE(backgroundOf(&screen, 0), QColor(0, 255, 0));
    }

    void notIdle_data()
    {
        QTest::addColumn<QString>("flag");
        QTest::addColumn<QString>("label");
        QTest::newRow("disconnected") << "0" << "Desconectado!";
        QTest::newRow("connecting") << "2" << "Aguarde...";
        QTest::newRow("exchange running") << "3" << "Aguarde...";
    }
    void notIdle()
    {
        QFETCH(QString, flag);
        QFETCH(QString, label);
        BoardBench bench;
        RFs screen(bench.context);
        bench.session.setConnectionFlag(flag);
        for (const bool on : {true, false}) {
            on ? screen.btOn(2) : screen.btOff(2);
            QVERIFY(bench.port.written.isEmpty());
            auto *aguarde = child<QLabel>(&screen, "lbAguarde");
            QCOMPARE(aguarde->text(), label);
            QVERIFY(aguarde->isVisibleTo(&screen));
            QVERIFY(screen.timerAguarde().isActive());
            QCOMPARE(screen.timerAguarde().interval(), 1500);
            QVERIFY(child<QGroupBox>(&screen, "FrameBotoes")->isEnabled());
            screen.onTimerAguarde();
            QVERIFY(!aguarde->isVisibleTo(&screen));
        }
    }

    void wifiOnFirstModel()
    {
        BoardBench bench;
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
        BoardBench bench;
        bench.answers.insert("wifi --on", "Wifi power on success\n");
        bench.answers.insert("wifi --off", "Wifi power off done, OK\n");
        RFs screen(bench.context);
        screen.btOn(3);
        bench.finishExchange();
        screen.onTimer1();
        QCOMPARE(backgroundOf(&screen, 3), QColor(0, 255, 0));

        screen.btOff(3);
        QCOMPARE(bench.commandsWritten().last(), QStringLiteral("wifi --off\r"));
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
        BoardBench bench;
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
        BoardBench bench;
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
        const QSqlRecord record = grid->record();
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

        auto *view = child<QTableView>(&screen, "DBGrid1");
        QStringList shown;
        for (int c = 0; c < record.count(); ++c)
            if (!view->isColumnHidden(c))
                shown << grid->headerData(c, Qt::Horizontal).toString();
        QCOMPARE(shown, (QStringList{"Line", "Component", "Reference"}));
        QCOMPARE(screen.windowTitle(), QStringLiteral("RF Voltage - Pelorin Vekto"));
    }

    // The model combo is the screen's own: choosing another model reloads without touching the
    // main window's choice.
    void ownModelChoice()
    {
        BoardBench bench;
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
};

QTEST_MAIN(TestRfScreens)
#include "tst_rfscreens.moc"
