// Connecting to a scripted phone on a virtual clock: the model recognition from the first
// answer, the rejected-command retry, the give-up of a silent device, the port-number and
// open-error messages, and a cable pulled while connecting.

#include "ConnectionController.h"
#include "ConsoleExchange.h"
#include "FakeSerialPort.h"
#include "Session.h"

#include <QSignalSpy>
#include <QtTest>
#include <functional>

namespace {

const QByteArray Prompt = "[0000000A:0000BEEF] :-) ";
const QByteArray Rejected = "Command \"syscfg\" not found\n";

// Fires the timers' tick handlers in virtual time, 50 ms at a time, the way the event loop
// would: a timer is due one interval after it was started and then every interval.
class Clock
{
public:
    void add(QTimer &timer, std::function<void()> tick) { m_timers.append({&timer, std::move(tick), -1}); }

    void advance(qint64 ms)
    {
        const qint64 end = m_now + ms;
        while (m_now < end) {
            m_now += 50;
            for (Entry &t : m_timers) {
                sync();
                if (t.due >= 0 && t.due <= m_now) {
                    t.due += t.timer->interval();
                    t.tick();
                }
            }
            sync();
        }
    }

private:
    struct Entry
    {
        QTimer *timer;
        std::function<void()> tick;
        qint64 due;
    };
    void sync()
    {
        for (Entry &t : m_timers) {
            if (!t.timer->isActive())
                t.due = -1;
            else if (t.due < 0)
                t.due = m_now + t.timer->interval();
        }
    }
    QList<Entry> m_timers;
    qint64 m_now = 0;
};

} // namespace

class TestConnection : public QObject
{
    Q_OBJECT

    struct Rig
    {
        Session session{QStringLiteral("unused.vkt")};
        FakeSerialPort port;
        ConsoleExchange exchange{session, port};
        ConnectionController controller{session, exchange, port};
        Clock clock;
        QList<QByteArray> answers; // the device's answer to each command, in turn; silence after
        QStringList messages;      // "KEY|port"
        QStringList recognised;
        QString button, light, label;
        int refills = 0;
        int focus = 0;

        Rig()
        {
            session.setWindowTitle(QStringLiteral("Pelorin Vekto 1.81"));
            controller.setModelLookup([](const QString &number) -> std::optional<QString> {
                const QHash<QString, QString> known{{"A1778", "IP 7"}, {"A1865", "IP X"}};
                return known.contains(number) ? std::optional(known.value(number)) : std::nullopt;
            });
            // The phone echoes the command with its CR, then LF, its output and the prompt.
            port.onWrite = [this](const QByteArray &command) {
                if (!answers.isEmpty())
                    port.arrive({command + '\n' + answers.takeFirst()});
            };
            using C = ConnectionController;
            const auto keep = [this](QString &into) { return [&into](const QString &k) { into = k; }; };
            QObject::connect(&controller, &C::message, &controller, [this](const QString &k, const QString &p) { messages << k + '|' + p; });
            QObject::connect(&controller, &C::modelRecognised, &controller, [this](const QString &m) { recognised << m; });
            QObject::connect(&controller, &C::buttonCaptionChanged, &controller, keep(button));
            QObject::connect(&controller, &C::statusLightChanged, &controller, keep(light));
            QObject::connect(&controller, &C::connectionLabelChanged, &controller, keep(label));
            QObject::connect(&controller, &C::refillPorts, &controller, [this] { ++refills; });
            QObject::connect(&controller, &C::focusModelCombo, &controller, [this] { ++focus; });
            clock.add(exchange.timer1(), [this] { exchange.onTimer1(); });
            clock.add(exchange.timer2(), [this] { exchange.onTimer2(); });
            clock.add(controller.timerValidaPorta(), [this] { controller.onTimerValidaPorta(); });
            clock.add(controller.timerVerificaVersao(), [this] { controller.onTimerVerificaVersao(); });
        }
        void connectTo(const QString &number = QStringLiteral("3"))
        {
            controller.connectClicked(QStringLiteral("/dev/fake") + number, number);
        }
        bool idle()
        {
            return !exchange.running() && !controller.timerValidaPorta().isActive()
                   && !controller.timerVerificaVersao().isActive();
        }
    };

    static QByteArray modelAnswer(const QByteArray &number) { return number + '\n' + Prompt; }

    // Back at rest: nothing open, every caption and the light as before a connect.
    static void expectDisconnected(Rig &rig)
    {
        QVERIFY(!rig.port.isOpen());
        QCOMPARE(rig.session.connectionFlag(), QStringLiteral("0"));
        QCOMPARE(QStringList({rig.label, rig.button, rig.light}), QStringList({"Desconectado", "Conectar", "Branco"}));
        QVERIFY(rig.idle());
    }

private slots:
    // What the first answer leads to.
    void firstAnswer_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("modelNumber");
        QTest::addColumn<QStringList>("messages");
        QTest::newRow("known model") << modelAnswer("A1778") << "IP 7" << "A1778" << QStringList{};
        QTest::newRow("other known model") << modelAnswer("A1865") << "IP X" << "A1865" << QStringList{};
        QTest::newRow("model missing from the table")
            << modelAnswer("A9999") << "" << "A9999" << QStringList{"MSG_SELECIONE_MODELO|3"};
        QTest::newRow("NAND driver missing")
            << QByteArray("SystemConfig Driver is missing!\n") + Prompt << "" << ""
            << QStringList{"MSG_ERRO_NAND|3", "MSG_SELECIONE_MODELO|3"};
        QTest::newRow("number not starting with A") << modelAnswer("B1778") << "" << "" << QStringList{};
        QTest::newRow("no prompt") << QByteArray("A1778 and more text without a prompt\n") << "" << ""
                                   << QStringList{};
        QTest::newRow("quote in the number") << modelAnswer("A17'78") << "" << "A17'78"
                                             << QStringList{"MSG_SELECIONE_MODELO|3"};
    }
    void firstAnswer()
    {
        QFETCH(QByteArray, answer);
        QFETCH(QString, model);
        QFETCH(QString, modelNumber);
        QFETCH(QStringList, messages);
        Rig rig;
        QSignalSpy connected(&rig.controller, &ConnectionController::connected);
        rig.answers = {answer};
        rig.connectTo();
        rig.clock.advance(10000);
        QVERIFY(rig.idle());
        QCOMPARE(connected.count(), 1);
        QCOMPARE(rig.session.connectionFlag(), QStringLiteral("1"));
        QCOMPARE(QStringList({rig.label, rig.button, rig.light}), QStringList({"Conectado", "Desconectar", "Verde"}));
        QCOMPARE(rig.recognised, model.isEmpty() ? QStringList{} : QStringList{model});
        QCOMPARE(rig.controller.modelNumber(), modelNumber);
        QCOMPARE(rig.messages, messages);
        QCOMPARE(rig.focus, messages.isEmpty() ? 0 : 1);
        QCOMPARE(rig.port.written.size(), 1);
        if (!model.isEmpty()) {
            QCOMPARE(rig.session.modelo(), model);
            QVERIFY(rig.exchange.console().isEmpty());
            QVERIFY(rig.exchange.commandField().isEmpty());
            QCOMPARE(rig.controller.validationCount(), 0);
        }
    }

    // The console of the first answer must reach 41 characters (with its leading CR LF).
    void minimumAnswerLength_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<bool>("connects");
        QTest::newRow("40") << 40 << false;
        QTest::newRow("41") << 41 << true;
    }
    void minimumAnswerLength()
    {
        QFETCH(int, length);
        QFETCH(bool, connects);
        Rig rig;
        rig.port.onWrite = {};
        rig.connectTo();
        rig.port.arrive({QByteArray(length - 2, 'x')});
        while (rig.exchange.running())
            rig.exchange.timer1().isActive() ? rig.exchange.onTimer1() : rig.exchange.onTimer2();
        QCOMPARE(rig.exchange.console().size(), length);
        for (int tick = 0; tick < 11 && rig.controller.timerValidaPorta().isActive(); ++tick)
            rig.controller.onTimerValidaPorta();
        QCOMPARE(rig.light, connects ? QStringLiteral("Verde") : QStringLiteral("Branco"));
        QCOMPARE(rig.session.connectionFlag(), connects ? QStringLiteral("1") : QStringLiteral("0"));
    }

    void silentDeviceIsGivenUpOnTheEleventhTick()
    {
        Rig rig;
        rig.connectTo(QStringLiteral("5"));
        // Ticks while the first answer is still collected do not count.
        for (int tick = 0; tick < 20; ++tick)
            rig.controller.onTimerValidaPorta();
        QCOMPARE(rig.controller.validationCount(), 0);
        rig.exchange.onTimer1(); // nothing arrived: one empty line, flag "1"
        QCOMPARE(rig.exchange.console(), QStringLiteral("\r\n"));
        QCOMPARE(rig.session.connectionFlag(), QStringLiteral("1"));

        QSignalSpy caption(&rig.exchange, &ConsoleExchange::captionChanged);
        for (int tick = 0; tick < 10; ++tick)
            rig.controller.onTimerValidaPorta();
        QVERIFY(rig.messages.isEmpty());
        QVERIFY(rig.controller.timerValidaPorta().isActive());

        rig.controller.onTimerValidaPorta();
        QCOMPARE(rig.messages, (QStringList{"MSG_PORTA_NAO_RESPONDE|5", "MSG_PORTA|5"}));
        expectDisconnected(rig);
        QCOMPARE(rig.refills, 1);
        QCOMPARE(rig.controller.validationCount(), 0);
        QVERIFY(rig.exchange.commandField().isEmpty());
        QCOMPARE(caption.last()[0].toString(), QStringLiteral("Pelorin Vekto 1.81"));
    }

    // A rejected first command: the model is asked once more from the start routine and at
    // most once more from the re-identification timer, then left to the user.
    void rejectedCommand_data()
    {
        QTest::addColumn<QList<QByteArray>>("answers");
        QTest::addColumn<bool>("comboVisible");
        QTest::addColumn<int>("sends");
        QTest::addColumn<QString>("model");
        QTest::newRow("always rejected") << QList<QByteArray>{Rejected + Prompt, Rejected + Prompt, Rejected + Prompt,
                                                              Rejected + Prompt}
                                         << true << 3 << "";
        QTest::newRow("accepted when asked again") << QList<QByteArray>{Rejected + Prompt, modelAnswer("A1778")}
                                                   << true << 2 << "IP 7";
        QTest::newRow("accepted on the timer's retry")
            << QList<QByteArray>{Rejected + Prompt, Rejected + Prompt, modelAnswer("A1865")} << true << 3 << "IP X";
        QTest::newRow("silent when asked again") << QList<QByteArray>{Rejected + Prompt} << true << 2 << "";
        QTest::newRow("no visible model list") << QList<QByteArray>{Rejected + Prompt} << false << 1 << "";
    }
    void rejectedCommand()
    {
        QFETCH(QList<QByteArray>, answers);
        QFETCH(bool, comboVisible);
        QFETCH(int, sends);
        QFETCH(QString, model);
        Rig rig;
        rig.controller.setModelComboVisible(comboVisible);
        rig.answers = answers;
        rig.connectTo();
        rig.clock.advance(60000);
        QVERIFY(rig.idle());
        QCOMPARE(rig.port.written.size(), sends);
        for (const QByteArray &w : rig.port.written)
            QCOMPARE(w, QByteArray("syscfg print RMd#\r"));
        QCOMPARE(rig.recognised, model.isEmpty() ? QStringList{} : QStringList{model});
        QVERIFY(rig.messages.isEmpty());
        QCOMPARE(rig.session.connectionFlag(), QStringLiteral("1"));
    }

    // A second connection in the same session gets its own resend from the re-identification
    // timer, however the first one ended.
    void reidentificationAgainAfterReconnect()
    {
        Rig rig;
        rig.answers = {Rejected + Prompt, Rejected + Prompt, Rejected + Prompt};
        rig.connectTo();
        rig.clock.advance(60000);
        QCOMPARE(rig.port.written.size(), 3);
        rig.connectTo(); // disconnect
        QCOMPARE(rig.session.connectionFlag(), QStringLiteral("0"));
        rig.port.written.clear();
        rig.answers = {Rejected + Prompt, Rejected + Prompt, modelAnswer("A1865")};
        rig.connectTo();
        rig.clock.advance(60000);
        QCOMPARE(rig.port.written.size(), 3);
        QCOMPARE(rig.recognised, QStringList{QStringLiteral("IP X")});
    }

    // A click on Connect: opened and asked for the model, or refused before reaching the device
    // (busy, a port number the rule forbids, an open error). Only a COM number above 16 is
    // refused; a device name never is.
    void connectClick_data()
    {
        QTest::addColumn<QString>("flag");
        QTest::addColumn<bool>("rule");
        QTest::addColumn<QString>("number");
        QTest::addColumn<int>("error");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<QStringList>("messages");
        const int none = int(SerialPort::NoError);
        QTest::newRow("opens") << "0" << true << "3" << none << true << QStringList{};
        QTest::newRow("COM16") << "0" << true << "16" << none << true << QStringList{};
        QTest::newRow("device names have no such rule") << "0" << false << "17" << none << true << QStringList{};
        // The busy rows keep their flag; the others stay at "0".
        QTest::newRow("connecting") << "2" << true << "9" << none << false << QStringList{};
        QTest::newRow("exchange running") << "3" << true << "9" << none << false << QStringList{};
        QTest::newRow("COM17") << "0" << true << "17" << none << false << QStringList{"MSG_16|17"};
        QTest::newRow("8005 in use") << "0" << true << "4" << int(SerialPort::PortAlreadyOpen) << false
                                     << QStringList{"MSG_PORTA_EM_USO|4"};
        QTest::newRow("8002 invalid") << "0" << true << "4" << int(SerialPort::InvalidPort) << false
                                      << QStringList{"MSG_PORTA_INVALIDA|4"};
        QTest::newRow("8012 not open") << "0" << true << "4" << int(SerialPort::PortNotOpen) << false
                                       << QStringList{"MSG_PORTA_INVALIDA|4"};
    }
    void connectClick()
    {
        QFETCH(QString, flag);
        QFETCH(bool, rule);
        QFETCH(QString, number);
        QFETCH(int, error);
        QFETCH(bool, opens);
        Rig rig;
        QVERIFY(rig.idle());
        rig.session.setConnectionFlag(flag);
        rig.controller.setComNumberRule(rule);
        rig.port.openError = error;
        rig.connectTo(number);
        QTEST(rig.messages, "messages");
        QCOMPARE(rig.port.isOpen(), opens);
        if (opens) {
            QCOMPARE(rig.port.openedName, QStringLiteral("/dev/fake") + number);
            QCOMPARE(rig.port.written, QList<QByteArray>{"syscfg print RMd#\r"});
            QCOMPARE(rig.session.connectionFlag(), QStringLiteral("2"));
            QCOMPARE(QStringList({rig.label, rig.button, rig.light}), QStringList({"Conectando", "Conectando", "Amarelo"}));
            QVERIFY(rig.controller.timerValidaPorta().isActive());
            return;
        }
        QVERIFY(rig.port.written.isEmpty());
        QCOMPARE(rig.session.connectionFlag(), flag);
        if (flag != QLatin1String("0"))
            QVERIFY(rig.button.isEmpty()); // nothing redrawn either
        if (error != int(SerialPort::NoError)) {
            QCOMPARE(rig.refills, 1);
            QVERIFY(rig.idle());
        }
    }

    // The cable is pulled while the first answer arrives, or later while idle: the connection
    // falls back to disconnected once, with no message, and a new click connects again.
    void cablePulled_data()
    {
        QTest::addColumn<bool>("midAnswer");
        QTest::newRow("mid answer") << true;
        QTest::newRow("connected and idle") << false;
    }
    void cablePulled()
    {
        QFETCH(bool, midAnswer);
        Rig rig;
        QSignalSpy finished(&rig.exchange, &ConsoleExchange::answerFinished);
        rig.port.onWrite = {};
        rig.connectTo();
        const QByteArray arrived = midAnswer ? QByteArray("syscfg print RMd#\r\nA17")
                                             : "syscfg print RMd#\r\n" + modelAnswer("A1778");
        rig.port.arrive({arrived});
        rig.clock.advance(midAnswer ? 600 : 5000);
        QCOMPARE(rig.recognised.size(), midAnswer ? 0 : 1);
        rig.port.pull();
        // The answer under way is delivered with what had arrived; an idle line delivers nothing.
        QCOMPARE(finished.count(), 1);
        if (midAnswer)
            QCOMPARE(finished[0][0].toString(), QStringLiteral("\r\nsyscfg print RMd#\r\r\nA17"));
        expectDisconnected(rig);
        QCOMPARE(rig.refills, 1);
        rig.clock.advance(5000);
        QVERIFY(rig.messages.isEmpty());

        rig.connectTo();
        QVERIFY(rig.port.isOpen());
        QCOMPARE(rig.session.connectionFlag(), QStringLiteral("2"));
    }
};

QTEST_MAIN(TestConnection)
#include "tst_connection.moc"
