// The I2C and IC screens on a real Config.vkt with the simulated boards answering through the
// real exchange; the screens' timers are stepped by hand, so every wait and give-up rule is
// checked without waiting.
#include "Board.h"
#include "ConsoleExchange.h"
#include "ConsoleTextEdit.h"
#include "FakeDialogs.h"
#include "FakeShell.h"
#include "I2C.h"
#include "IC.h"
#include "SerialPort.h"
#include "Session.h"
#include "SimCatalog.h"

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QtTest>

namespace {

// A simulated board behind the serial interface: whatever is written is a command to it, and
// everything it has to say is there at the next read.
class BoardPort : public SerialPort
{
public:
    explicit BoardPort(Board board) : m_board(std::move(board)) {}
    QStringList commands;
    int open(const QString &) override { return NoError; }
    void close() override {}
    bool isOpen() const override { return true; }
    void write(const QByteArray &data) override
    {
        commands << QString::fromUtf8(data).chopped(1);
        m_board.receive(data);
    }
    QByteArray readAll() override
    {
        QByteArray out;
        while (m_board.hasOutput())
            out += m_board.takeOutput(1 << 20);
        return out;
    }

private:
    Board m_board;
};

struct Bench
{
    QTemporaryDir dir;
    QString path;
    Session session;
    BoardPort port;
    ConsoleExchange exchange;
    FakeDialogs dialogs;
    FakeShell shell;
    ScreenContext context{session, exchange, dialogs};

    // Without a database the session points at a file that does not exist.
    explicit Bench(const QString &model, Profile profile = Profile::Good, bool withDatabase = true)
        : path(dir.filePath(withDatabase ? QStringLiteral("Config.vkt") : QStringLiteral("absent/Config.vkt"))),
          session(path), port(Board(AnswerStore(), *SimCatalog::modelByName(model), profile)), exchange(session, port)
    {
        if (withDatabase) {
            QFile::copy(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"), path);
            QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        }
        session.setModelo(model);
        session.setConnectionFlag(QStringLiteral("1"));
    }

    // Runs the exchange to its end, as the main window's timers would.
    void finishExchange()
    {
        exchange.onTimer1();
        for (int i = 0; i < 60 && exchange.running(); ++i)
            exchange.onTimer2();
    }
};

template <typename T>
T *child(QWidget *screen, const char *name)
{
    T *w = screen->findChild<T *>(QLatin1String(name));
    if (!w)
        qFatal("no control %s", name);
    return w;
}

QStringList items(QListWidget *list)
{
    QStringList out;
    for (int i = 0; i < list->count(); ++i)
        out << list->item(i)->text();
    return out;
}

QList<int> probedBuses(const QStringList &commands)
{
    QList<int> buses;
    for (const QString &c : commands)
        if (c.startsWith(QLatin1String("i2c -s ")))
            buses << c.mid(7).toInt();
    return buses;
}

// The whole automatic run: every tick of the run timer, each bus test answered and judged.
void runAuto(I2C &screen, Bench &bench)
{
    screen.btAutoTeste();
    for (int guard = 0; guard < 60 && screen.timerAuto().isActive(); ++guard) {
        screen.onTimerAuto();
        if (bench.exchange.running()) {
            bench.finishExchange();
            screen.onTimer1();
        }
    }
}

} // namespace

class TestBoardScreens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt")))
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
        const QString none = QStringLiteral("Nenhuma falha detectada em I2C");
        QTest::newRow("IP 6 stops at hidden bus 3") << "IP 6" << good << QList<int>{0, 1, 2} << none << 0;
        QTest::newRow("IP 6 Plus") << "IP 6 Plus" << good << QList<int>{0, 1, 2} << none << 0;
        QTest::newRow("IP 6s") << "IP 6s" << good << QList<int>{0, 1, 2} << none << 0;
        QTest::newRow("IP 6s Plus") << "IP 6s Plus" << good << QList<int>{0, 1, 2} << none << 0;
        QTest::newRow("IP 7") << "IP 7" << good << QList<int>{0, 1, 2, 3, 4} << none << 0;
        QTest::newRow("IP 7 Plus skips 3") << "IP 7 Plus" << good << QList<int>{0, 1, 2, 4} << none << 0;
        QTest::newRow("IP 8") << "IP 8" << good << QList<int>{0, 1, 2, 3, 4, 6, 7} << none << 0;
        QTest::newRow("IP 8 Plus") << "IP 8 Plus" << good << QList<int>{0, 2, 3, 4, 6, 7} << none << 0;
        QTest::newRow("IP X") << "IP X" << good << QList<int>{0, 3, 4, 5, 6, 7} << none << 0;
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
        auto *autoTeste = child<QPushButton>(&screen, "btAutoTeste");
        QCOMPARE(screen.findChild<QVBoxLayout *>(QStringLiteral("busColumn"))->indexOf(autoTeste),
                 I2CEngine::autoTesteRow(model));

        runAuto(screen, bench);
        QVERIFY(!screen.timerAuto().isActive());
        QCOMPARE(probedBuses(bench.port.commands), buses);
        QCOMPARE(child<QPlainTextEdit>(&screen, "txtDadosI2C")->toPlainText(), failures);
        QCOMPARE(child<QWidget>(&screen, "FrameResultadoOK")->isHidden(), failures.startsWith(QLatin1String("I2C")));
        QCOMPARE(autoTeste->text(), QStringLiteral("Auto Teste"));
        QVERIFY(child<QWidget>(&screen, "ProgressBar")->isHidden());
        QVERIFY(!screen.autoRunning());

        // The log: a heading per bus (after a blank line, except on the IP 8 and IP X families),
        // every device line, and the closing line.
        const QStringList log = items(child<QListWidget>(&screen, "ListView"));
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
            QCOMPARE(child<QPlainTextEdit>(&screen, "txtDadosI2C")->toPlainText(), QStringLiteral("Nenhuma falha detectada em I2C"));
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
        QCOMPARE(bench.port.commands, QStringList{QStringLiteral("i2c -s ") + QString::number(bus)});
        QVERIFY(screen.timer1().isActive());
        bench.finishExchange();
        screen.onTimer1();
        QVERIFY(!screen.timer1().isActive());
        QCOMPARE(child<QLabel>(&screen, "lbResultado")->text(), result);
        QString shown;
        for (int i = 0; i < I2C::Images; ++i) {
            const bool ok = !child<QLabel>(&screen, qPrintable(QStringLiteral("ok_%1").arg(i)))->isHidden();
            const bool no = !child<QLabel>(&screen, qPrintable(QStringLiteral("no_%1").arg(i)))->isHidden();
            QVERIFY(!(ok && no));
            if (ok || no)
                shown += ok ? u'+' : u'-';
        }
        QCOMPARE(shown, images);
        QCOMPARE(child<QPlainTextEdit>(&screen, "txtDadosI2C")->toPlainText(), QStringLiteral("Nenhuma falha detectada em I2C"));
        QVERIFY(!child<QWidget>(&screen, "FrameResultadoOK")->isHidden());
        QVERIFY(child<QWidget>(&screen, "ProgressBar")->isHidden());
        // A single test outside a run still writes its heading with the run's counter.
        const QStringList log = items(child<QListWidget>(&screen, "ListView"));
        QCOMPARE(log.last(), QStringLiteral("-1  I2C "));
    }

    void unreadableDatabaseIsNoPass()
    {
        Bench bench(QStringLiteral("IP 7"), Profile::Good, false);
        I2C screen(bench.context, bench.shell);
        screen.btI2C(0);
        bench.finishExchange();
        screen.onTimer1();
        QVERIFY(child<QLabel>(&screen, "lbResultado")->text().contains(QStringLiteral("Config.vkt")));
        QVERIFY(child<QPlainTextEdit>(&screen, "txtDadosI2C")->toPlainText().isEmpty());
        QVERIFY(child<QWidget>(&screen, "FrameResultadoOK")->isHidden());
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
        QVERIFY(child<QLabel>(&screen, "lbResultado")->text().isEmpty());

        // The count is never reset: a later wait outlasts any number of ticks, and still
        // judges the answer when it finally comes.
        bench.finishExchange();
        bench.session.setConnectionFlag(QStringLiteral("1"));
        screen.btI2C(1);
        for (int i = 0; i < 3 * I2C::Timer1TickLimit; ++i)
            screen.onTimer1();
        QVERIFY(screen.timer1().isActive());
        QVERIFY(child<QLabel>(&screen, "lbResultado")->text().isEmpty());
        child<ConsoleTextEdit>(&screen, "txtDados")->setRawText(QStringLiteral("device answered at 0x36 0x50"));
        screen.onTimer1();
        QVERIFY(!screen.timer1().isActive());
        QVERIFY(child<QLabel>(&screen, "lbResultado")->text().contains(QStringLiteral("x50 - Camera EEPROM - COMUNICAÇÃO OK")));
    }

    void cancelStopsTheRun()
    {
        Bench bench(QStringLiteral("IP 8"));
        I2C screen(bench.context, bench.shell);
        auto *autoTeste = child<QPushButton>(&screen, "btAutoTeste");
        screen.btAutoTeste();
        QCOMPARE(autoTeste->text(), QStringLiteral("Cancelar"));
        screen.onTimerAuto();
        QCOMPARE(probedBuses(bench.port.commands), QList<int>{0});
        screen.btAutoTeste();
        QVERIFY(!screen.timerAuto().isActive());
        QVERIFY(!screen.timerBarra().isActive());
        QCOMPARE(autoTeste->text(), QStringLiteral("Auto Teste"));
        // The cancelled run neither claims a pass nor probes on.
        QVERIFY(child<QWidget>(&screen, "FrameResultadoOK")->isHidden());
        // The answer of the bus already under way is still judged, and nothing more is probed.
        bench.finishExchange();
        screen.onTimer1();
        QCOMPARE(probedBuses(bench.port.commands), QList<int>{0});
        QVERIFY(items(child<QListWidget>(&screen, "ListView")).contains(QStringLiteral("x74 - PMU - COMUNICAÇÃO OK")));
        QVERIFY(!screen.timerAuto().isActive());
    }

    void notConnected_data()
    {
        QTest::addColumn<QString>("flag");
        QTest::addColumn<quint8>("idioma");
        QTest::addColumn<QString>("notice");
        QTest::newRow("disconnected") << "0" << quint8(1) << "Desconectado!";
        QTest::newRow("disconnected, English") << "0" << quint8(2) << "Disconnected!";
        QTest::newRow("exchange running") << "3" << quint8(1) << "Aguarde...";
        QTest::newRow("connecting, Spanish") << "2" << quint8(3) << "Espere...";
    }
    void notConnected()
    {
        QFETCH(QString, flag);
        QFETCH(quint8, idioma);
        QFETCH(QString, notice);
        Bench bench(QStringLiteral("IP 7"));
        bench.session.setIdioma(idioma);
        bench.session.setConnectionFlag(flag);
        I2C i2c(bench.context, bench.shell);
        IC ic(bench.context, {});
        i2c.btI2C(2);
        i2c.btAutoTeste();
        ic.btBl(1);
        QVERIFY(bench.port.commands.isEmpty());
        QVERIFY(!i2c.autoRunning() && !i2c.timerAuto().isActive() && !ic.timerStatus().isActive());
        for (QWidget *screen : {static_cast<QWidget *>(&i2c), static_cast<QWidget *>(&ic)}) {
            auto *aguarde = child<QLabel>(screen, "lbAguarde");
            QCOMPARE(aguarde->text(), notice);
            QVERIFY(!aguarde->isHidden());
        }
        i2c.onTimerAguarde();
        ic.onTimerAguarde();
        QVERIFY(child<QLabel>(&i2c, "lbAguarde")->isHidden());
        QVERIFY(child<QLabel>(&ic, "lbAguarde")->isHidden());
        QVERIFY(!i2c.timerAguarde().isActive());
    }

    void pdf_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<bool>("present");
        QTest::newRow("IP 6s extract beside the program") << "IP 6s" << true;
        QTest::newRow("IP 8 Plus extract missing") << "IP 8 Plus" << false;
    }
    void pdf()
    {
        QFETCH(QString, model);
        QFETCH(bool, present);
        Bench bench(model);
        const QString file = QFileInfo(bench.path).absoluteDir().filePath(I2CEngine::pdfName(model));
        if (present) {
            QFile f(file);
            QVERIFY(f.open(QIODevice::WriteOnly));
        }
        I2C screen(bench.context, bench.shell);
        child<QPushButton>(&screen, "btPdf")->click();
        QCOMPARE(bench.shell.opened, present ? QStringList{file} : QStringList{});
        QCOMPARE(bench.dialogs.shown.size(), present ? 0 : 1);
        if (!present)
            QVERIFY(bench.dialogs.shown.first().startsWith(QStringLiteral("critical:Arquivo ausente|")));
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
        QCOMPARE(bench.port.commands,
                 QStringList{"tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx"});
        bench.finishExchange();
        child<ConsoleTextEdit>(&screen, "txtDados")->setRawText(QString(length, u'.'));
        screen.onTimerStatus();
        QCOMPARE(screen.timerStatus().isActive(), !arrived);
        QCOMPARE(child<QLabel>(&screen, "lbStatus")->text(), status);
        QCOMPARE(child<QLabel>(&screen, "lbIC")->text(), arrived ? QStringLiteral("HYDRA") : QString());
        QCOMPARE(!child<QLabel>(&screen, "ok")->isHidden(), status == QStringLiteral("COMUNICAÇÃO OK"));
        QCOMPARE(!child<QLabel>(&screen, "no")->isHidden(), status == QStringLiteral("COMUNICAÇÃO OFF"));
        QCOMPARE(!child<QLabel>(&screen, "lbStatus2")->isHidden(), arrived);
    }

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
        QCOMPARE(child<QPushButton>(&screen, "btTristar")->text(), chip + QStringLiteral(" Tensões"));
        QCOMPARE(child<QPushButton>(&screen, "btBl_1")->text(), chip + QStringLiteral(" Dados"));
        QCOMPARE(child<QPushButton>(&screen, "btTigris")->text(), QStringLiteral("TIGRIS Tensões"));
        screen.btBl(kind);
        QCOMPARE(bench.session.screenId(), QStringLiteral("5"));
        bench.finishExchange();
        screen.onTimerStatus();
        QCOMPARE(child<QLabel>(&screen, "lbStatus")->text(), QStringLiteral("COMUNICAÇÃO OK"));
        QCOMPARE(child<QLabel>(&screen, "lbIC")->text(), chip);

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
        QVERIFY(child<QLabel>(&screen, "lbStatus")->text().isEmpty());

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
        QVERIFY(child<QLabel>(&screen, "lbStatus")->text().isEmpty());
        bench.session.setConnectionFlag(QStringLiteral("1"));
        screen.onTimerStatus();
        QCOMPARE(child<QLabel>(&screen, "lbStatus")->text(), QStringLiteral("COMUNICAÇÃO OK"));
    }
};

QTEST_MAIN(TestBoardScreens)
#include "tst_boardscreens.moc"
