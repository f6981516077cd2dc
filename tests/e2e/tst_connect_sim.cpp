// Connecting through the main window, as a technician does, to each simulated phone, and what
// the technician sees when the phone on the other end misbehaves: a phone that never answers,
// one that never stops talking, a cable pulled in the middle of an answer, a first command lost
// on the way. (Bytes that are not text are the console exchange's own tests.)
// The simulated phone, the real serial link and timers, the main window with scripted boxes.

#include "DesktopProgram.h"
#include "SimProcess.h"

#include <QSignalSpy>
#include <QtTest>
#include <memory>
#include <optional>

namespace {

constexpr int Patience = 20000;

} // namespace

class TestConnectSim : public QObject
{
    Q_OBJECT

    std::unique_ptr<ConfigCopy> m_config;
    std::unique_ptr<SimProcess> m_phone;

    // A fresh database copy and a running phone for one test; cleanup() ends both.
    bool startPhone(const QString &model, const QString &profile)
    {
        m_config = std::make_unique<ConfigCopy>();
        m_phone = std::make_unique<SimProcess>();
        if (!m_config->ok()) {
            qWarning("could not copy Config.vkt");
            return false;
        }
        const QString started = m_phone->start(model, profile);
        if (!started.isEmpty())
            qWarning("%s", qPrintable(started));
        return started.isEmpty();
    }

private slots:
    void init()
    {
        if (!SimProcess::available())
            QSKIP("vekto-sim or Config.vkt was not built");
    }

    void cleanup()
    {
        // Also after a failed check: no phone outlives its test.
        m_phone.reset();
        m_config.reset();
    }

    void silentPhoneIsGivenUp()
    {
        QVERIFY(startPhone(QStringLiteral("IP 7"), QStringLiteral("silent")));
        DesktopProgram p(m_config->path());
        QVERIFY(p.selectPort(m_phone->port()));
        p.connectButton()->click();
        QVERIFY(p.port.isOpen());
        QTRY_VERIFY_WITH_TIMEOUT(!p.dialogs.shown.isEmpty(), Patience);
        QCOMPARE(p.dialogs.shown, (QStringList{"MSG_PORTA_NAO_RESPONDE", "MSG_PORTA"}));
        QCOMPARE(p.flag(), QStringLiteral("0"));
        QCOMPARE(p.inicial->status(), QStringLiteral("Branco"));
        QVERIFY(!p.port.isOpen());
        QVERIFY(!p.connection.timerValidaPorta().isActive());
        QVERIFY(p.modelNumberLabel()->text().isEmpty());
        // The port list was refilled and still offers the phone, picked as before.
        QCOMPARE(p.portCombo()->currentData().toString(), m_phone->port());
    }

    void chattyPhoneEndsEachExchangeAtTheCap()
    {
        QVERIFY(startPhone(QStringLiteral("IP 8"), QStringLiteral("chatty")));
        DesktopProgram p(m_config->path());
        // The cap counts slices, not time: shorter slices keep 50 of them bearable. They are
        // still twenty times the simulator's sending rhythm, so even on a busy machine no slice
        // of the endless answer comes back empty.
        p.exchange.timer1().setInterval(200);
        p.exchange.timer2().setInterval(200);
        int slices = 0;
        connect(&p.exchange.timer2(), &QTimer::timeout, &p.exchange, [&slices] { ++slices; });
        QSignalSpy finished(&p.exchange, &ConsoleExchange::answerFinished);

        // A timer of the program's own: it must fire while an endless answer is coming in.
        std::optional<bool> collectingWhenFired;
        QTimer other;
        other.setSingleShot(true);
        other.setInterval(300);
        connect(&other, &QTimer::timeout, &p.exchange, [&] { collectingWhenFired = p.exchange.running(); });

        QVERIFY(p.selectPort(m_phone->port()));
        p.connectButton()->click();
        other.start();
        QTRY_VERIFY_WITH_TIMEOUT(collectingWhenFired.has_value(), Patience);
        QVERIFY(*collectingWhenFired);
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, Patience);
        QCOMPARE(slices, ConsoleExchange::MaxSlices);
        QTRY_COMPARE_WITH_TIMEOUT(p.inicial->status(), QStringLiteral("Verde"), Patience);
        QCOMPARE(p.modelCombo()->currentText(), QStringLiteral("IP 8"));
        QCOMPARE(p.modelNumberLabel()->text(), QStringLiteral("A1863"));

        // The next exchange starts with the chatter left in the line and again stops at the cap.
        slices = 0;
        p.send(QStringLiteral("bl -n"));
        QCOMPARE(p.flag(), QStringLiteral("3"));
        QTRY_COMPARE_WITH_TIMEOUT(p.answers.size(), 1, Patience);
        QCOMPARE(p.flag(), QStringLiteral("1"));
        QCOMPARE(slices, ConsoleExchange::MaxSlices);
        QVERIFY(p.answers.first().contains(QStringLiteral("AppleARMPMU: event")));
        QVERIFY(p.dialogs.shown.isEmpty());

        p.connectButton()->click();
        QCOMPARE(p.flag(), QStringLiteral("0"));
        QCOMPARE(p.inicial->status(), QStringLiteral("Branco"));
    }

    void pulledCableEndsTheAnswerAndTheConnectionOnce()
    {
        QVERIFY(startPhone(QStringLiteral("IP 7"), QStringLiteral("unplug")));
        DesktopProgram p(m_config->path());
        int ticks = 0;
        for (QTimer *t : {&p.exchange.timer1(), &p.exchange.timer2()})
            connect(t, &QTimer::timeout, &p.exchange, [&ticks] { ++ticks; });
        QSignalSpy lost(&p.port, &SerialPort::lost);

        p.preselectOtherModel(QStringLiteral("IP 7"));
        QVERIFY(p.selectPort(m_phone->port()));
        p.connectButton()->click();
        QTRY_COMPARE_WITH_TIMEOUT(p.modelCombo()->currentText(), QStringLiteral("IP 7"), Patience);
        QCOMPARE(p.inicial->status(), QStringLiteral("Verde"));

        // Help is long enough for the cable to go half-way through it.
        p.send(QStringLiteral("Help"));
        QTRY_COMPARE_WITH_TIMEOUT(p.answers.size(), 1, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(p.flag(), QStringLiteral("0"), Patience);
        QCOMPARE(p.inicial->status(), QStringLiteral("Branco"));
        QVERIFY(!p.port.isOpen());
        const QString answer = p.answers.first();
        QVERIFY2(answer.startsWith(QStringLiteral("\r\nHelp\r\r\n")), qPrintable(answer.left(80)));
        QVERIFY2(answer.size() > 100, qPrintable(answer));
        QVERIFY2(!answer.contains(QStringLiteral(":-)")), qPrintable(answer.right(80)));
        QVERIFY(p.dialogs.shown.size() <= 1);
        QCOMPARE(lost.size(), 1);

        // Nothing keeps polling the dead line: no timer runs and no message follows.
        QTRY_VERIFY_WITH_TIMEOUT(!m_phone->running(), Patience);
        const int ticksAtEnd = ticks;
        QVERIFY(ticksAtEnd <= ConsoleExchange::MaxSlices * 2 + 2);
        QTest::qWait(1500);
        QCOMPARE(ticks, ticksAtEnd);
        QVERIFY(!p.exchange.running());
        QVERIFY(!p.connection.timerValidaPorta().isActive());
        QVERIFY(!p.connection.timerVerificaVersao().isActive());
        QVERIFY(p.dialogs.shown.size() <= 1);
        QCOMPARE(lost.size(), 1);
        QCOMPARE(p.answers.size(), 1);
        // The vanished phone drops out of the port list (the path itself may soon belong to
        // another simulator, so its entry is recognised by its description too).
        const auto offered = [&p, this] {
            const int at = p.portCombo()->findData(m_phone->port());
            return at >= 0 && p.portCombo()->itemText(at).contains(QStringLiteral("IP 7 (unplug)"));
        };
        QTRY_VERIFY_WITH_TIMEOUT(!offered(), Patience);
    }

    // Connecting as a technician does, to each of the nine good phones and to one that loses the
    // first command: the port is offered, the light goes yellow then green, the model list
    // follows the phone, a screen's command gets its answer, and disconnecting undoes it all.
    void connectRecogniseExchangeDisconnect_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("profile");
        QTest::addColumn<QString>("modelNumber");
        QTest::addColumn<int>("commandsAtConnect"); // what the phone received while connecting
        const QList<std::pair<const char *, const char *>> good = {
            {"IP 6", "A1549"}, {"IP 6 Plus", "A1522"}, {"IP 6s", "A1633"}, {"IP 6s Plus", "A1634"}, {"IP 7", "A1660"},
            {"IP 7 Plus", "A1661"}, {"IP 8", "A1863"}, {"IP 8 Plus", "A1864"}, {"IP X", "A1865"}};
        for (const auto &[model, number] : good)
            QTest::newRow(model) << model << "good" << number << 1;
        QTest::newRow("reject-once") << "IP 6s" << "reject-once" << "A1633" << 2;
    }

    void connectRecogniseExchangeDisconnect()
    {
        QFETCH(QString, model);
        QFETCH(QString, profile);
        QFETCH(QString, modelNumber);
        QFETCH(int, commandsAtConnect);
        QVERIFY(startPhone(model, profile));
        DesktopProgram p(m_config->path());
        p.preselectOtherModel(model);
        QVERIFY2(p.selectPort(m_phone->port()), qPrintable(m_phone->port() + QStringLiteral(" not offered")));
        QCOMPARE(p.inicial->status(), QStringLiteral("Branco"));
        p.connectButton()->click();
        QCOMPARE(p.inicial->status(), QStringLiteral("Amarelo"));
        QTRY_COMPARE_WITH_TIMEOUT(p.modelCombo()->currentText(), model, Patience);
        QCOMPARE(p.session.modelo(), model);
        QCOMPARE(p.modelNumberLabel()->text(), modelNumber);
        QCOMPARE(p.inicial->status(), QStringLiteral("Verde"));
        QTRY_VERIFY_WITH_TIMEOUT(!p.connection.timerVerificaVersao().isActive(), Patience);
        QTRY_COMPARE_WITH_TIMEOUT(p.flag(), QStringLiteral("1"), Patience);
        QVERIFY2(p.dialogs.shown.isEmpty(), qPrintable(p.dialogs.shown.join(u'\n')));

        // A screen's exchange: its answer reaches the receiver registered under its identifier.
        // The phone's prompt counts the commands it received, so it also tells how many the
        // connect took (a lost first command costs exactly one repeat).
        p.send(QStringLiteral("syscfg print RMd#"));
        QCOMPARE(p.flag(), QStringLiteral("3"));
        QTRY_COMPARE_WITH_TIMEOUT(p.answers.size(), 1, Patience);
        QCOMPARE(p.flag(), QStringLiteral("1"));
        QCOMPARE(p.session.screenId(), QStringLiteral("0"));
        const QString count = QString::number(commandsAtConnect + 1, 16).rightJustified(8, u'0');
        const QString &answer = p.answers.first();
        QVERIFY2(answer.startsWith(QStringLiteral("\r\nsyscfg print RMd#\r\r\n") + modelNumber + "\r\n["), qPrintable(answer));
        QVERIFY2(answer.endsWith(u':' + count + QStringLiteral("] :-) ")), qPrintable(answer));
        QVERIFY(p.console()->toPlainText().contains(modelNumber));

        p.connectButton()->click();
        QCOMPARE(p.flag(), QStringLiteral("0"));
        QCOMPARE(p.inicial->status(), QStringLiteral("Branco"));
        QVERIFY(!p.port.isOpen());
        QVERIFY(p.modelNumberLabel()->text().isEmpty());
        QVERIFY(p.dialogs.shown.isEmpty());
    }
};

QTEST_MAIN(TestConnectSim)
#include "tst_connect_sim.moc"
