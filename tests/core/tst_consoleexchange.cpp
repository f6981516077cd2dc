// The command/answer exchange stepped tick by tick on a scripted port: when an answer is
// complete, what the console holds, who receives it, and how odd bytes and a pulled cable end.

#include "ConsoleExchange.h"
#include "FakeSerialPort.h"
#include "Session.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

const QByteArray Prompt = "[0000000A:0000BEEF] :-) ";

// Steps the exchange's timers the way the event loop would, until it is idle again.
// Returns the number of ticks it took.
int runToEnd(ConsoleExchange &exchange)
{
    int ticks = 0;
    while (exchange.running() && ticks < 1000) {
        if (exchange.timer1().isActive())
            exchange.onTimer1();
        else
            exchange.onTimer2();
        ++ticks;
    }
    return ticks;
}

} // namespace

class TestConsoleExchange : public QObject
{
    Q_OBJECT

    struct Rig
    {
        Session session{QStringLiteral("unused.vkt")};
        FakeSerialPort port;
        ConsoleExchange exchange{session, port};
        QStringList handedOver;

        Rig()
        {
            session.setWindowTitle(QStringLiteral("Pelorin Vekto 1.81"));
            port.open(QStringLiteral("fake"));
            exchange.registerReceiver(QStringLiteral("9"), nullptr,
                                      {[this](const QString &a) { handedOver << a; }, {}});
        }
        void send(const QString &command, const QString &screen = QStringLiteral("9"))
        {
            session.setScreenId(screen);
            exchange.setCommandField(command);
            exchange.EnviaComando();
        }
    };

private slots:
    void sendWritesCommandWithCarriageReturn()
    {
        Rig rig;
        QSignalSpy caption(&rig.exchange, &ConsoleExchange::captionChanged);
        rig.send(QStringLiteral("pmuadc --read all"));
        QCOMPARE(rig.port.written, QList<QByteArray>{"pmuadc --read all\r"});
        QCOMPARE(rig.session.connectionFlag(), QStringLiteral("3"));
        QVERIFY(rig.exchange.timer1().isActive());
        QCOMPARE(caption.count(), 1);
        QCOMPARE(caption[0][0].toString(), rig.session.Traduz("Comunicando") + "...");
    }

    void emptyCommandSendsNothing()
    {
        Rig rig;
        rig.send(QString());
        QVERIFY(rig.port.written.isEmpty());
        QCOMPARE(rig.session.connectionFlag(), QStringLiteral("0"));
        QVERIFY(!rig.exchange.running());
    }

    // How many slices the device sends and when the answer is complete.
    void answerCompletesOnSilence_data()
    {
        QTest::addColumn<QList<QByteArray>>("arrivals");
        QTest::addColumn<int>("ticks");
        QTest::addColumn<QString>("answer");
        QTest::newRow("silent device") << QList<QByteArray>{} << 1 << "\r\n";
        QTest::newRow("one slice") << QList<QByteArray>{"bl -n\r\nok\n"} << 4
                                   << "\r\nbl -n\r\r\nok\r\n";
        // Silence at the second tick does not end it: at least two slices after the first.
        QTest::newRow("gap after first slice") << QList<QByteArray>{"a\n", "", "", "b\n"} << 5
                                               << "\r\na\r\nb\r\n";
        QTest::newRow("gap after third slice") << QList<QByteArray>{"a", "b", "c", "", "d"} << 4
                                               << "\r\nabc";
    }
    void answerCompletesOnSilence()
    {
        QFETCH(QList<QByteArray>, arrivals);
        QFETCH(int, ticks);
        QFETCH(QString, answer);
        Rig rig;
        rig.port.arrive(arrivals);
        QSignalSpy finished(&rig.exchange, &ConsoleExchange::answerFinished);
        rig.send(QStringLiteral("bl -n"));
        QCOMPARE(runToEnd(rig.exchange), ticks);
        QCOMPARE(rig.handedOver, QStringList{answer});
        QCOMPARE(finished.count(), 1);
        QCOMPARE(rig.session.connectionFlag(), QStringLiteral("1"));
        QCOMPARE(rig.session.screenId(), QStringLiteral("0"));
    }

    void lineFeedsBecomeCarriageReturnLineFeed_data()
    {
        QTest::addColumn<QByteArray>("received");
        QTest::addColumn<QString>("console");
        QTest::newRow("LF") << QByteArray("a\nb") << "\r\na\r\nb";
        QTest::newRow("CR LF keeps its CR") << QByteArray("a\r\nb") << "\r\na\r\r\nb";
        QTest::newRow("lone CR stays") << QByteArray("a\rb") << "\r\na\rb";
        QTest::newRow("two LF") << QByteArray("\n\n") << "\r\n\r\n\r\n";
        QTest::newRow("echo framing") << QByteArray("syscfg print RMd#\r\nA1778\n") + Prompt
                                      << "\r\nsyscfg print RMd#\r\r\nA1778\r\n" + QString::fromLatin1(Prompt);
    }
    void lineFeedsBecomeCarriageReturnLineFeed()
    {
        QFETCH(QByteArray, received);
        QFETCH(QString, console);
        Rig rig;
        rig.port.arrive({received});
        rig.send(QStringLiteral("x"));
        runToEnd(rig.exchange);
        QCOMPARE(rig.exchange.console(), console);
    }

    // Bytes that are not text must never stop the exchange; a character cut between two
    // slices must still come out whole.
    void oddBytesAreDecodedSafely_data()
    {
        QTest::addColumn<QList<QByteArray>>("arrivals");
        QTest::addColumn<QString>("console");
        const QString r(QChar::ReplacementCharacter);
        QTest::newRow("invalid UTF-8") << QList<QByteArray>{"a\xff\xfe" "b"} << "\r\na" + r + r + "b";
        QTest::newRow("NUL") << QList<QByteArray>{QByteArray("a\0b", 3)} << "\r\na" + r + "b";
        QTest::newRow("split two-byte character") << QList<QByteArray>{"Tens\xc3", "\xb5" "es"}
                                                  << QStringLiteral("\r\nTensões");
        QTest::newRow("split three-byte character") << QList<QByteArray>{"\xe2", "\x82", "\xac" "5"}
                                                    << QStringLiteral("\r\n€5");
        QTest::newRow("lone continuation byte") << QList<QByteArray>{"\x80\n"} << "\r\n" + r + "\r\n";
    }
    void oddBytesAreDecodedSafely()
    {
        QFETCH(QList<QByteArray>, arrivals);
        QFETCH(QString, console);
        Rig rig;
        rig.port.arrive(arrivals);
        QStringList appended;
        connect(&rig.exchange, &ConsoleExchange::consoleAppended, &rig.exchange,
                [&](const QString &s) { appended << s; });
        rig.send(QStringLiteral("x"));
        QVERIFY(runToEnd(rig.exchange) < 1000);
        QCOMPARE(rig.exchange.console(), console);
        // The window appends the pieces one after another and must end up with the same text.
        QCOMPARE(appended.join(QString()), console);
    }

    // A device that never stops talking: the answer is cut after the slice cap and the rest
    // stays in the port for the next exchange. The slice read in the finishing tick reaches
    // the console only after the hand-over.
    void sliceCapLeavesTheRestInThePort()
    {
        Rig rig;
        QList<QByteArray> talk;
        for (int i = 0; i < 60; ++i)
            talk << QByteArray::number(i) + ' ';
        rig.port.arrive(talk);
        QStringList events;
        connect(&rig.exchange, &ConsoleExchange::consoleAppended, &rig.exchange,
                [&](const QString &s) { events << "append:" + s; });
        connect(&rig.exchange, &ConsoleExchange::answerFinished, &rig.exchange,
                [&](const QString &) { events << "finished"; });
        rig.send(QStringLiteral("x"));
        QCOMPARE(runToEnd(rig.exchange), 51); // the first look, then 50 slice ticks
        QCOMPARE(rig.port.reads, 51);
        QCOMPARE(rig.port.arrivals.size(), 9);

        QString expected = QStringLiteral("\r\n");
        for (int i = 0; i < 50; ++i)
            expected += QString::number(i) + ' ';
        QCOMPARE(rig.handedOver, QStringList{expected});
        QCOMPARE(rig.exchange.console(), expected + "50 ");
        QCOMPARE(events.mid(events.size() - 2), (QStringList{"finished", "append:50 "}));

        // The next answer starts with what was left.
        rig.handedOver.clear();
        rig.send(QStringLiteral("y"));
        runToEnd(rig.exchange);
        QVERIFY(rig.handedOver.value(0).startsWith("\r\n51 52 "));
    }

    // Only the screen that claimed the identifier gets the answer, and only while it is open.
    void handOverGoesOnlyToTheClaimedIdentifier_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<int>("deliveries");
        QTest::newRow("claimed") << "9" << 1;
        QTest::newRow("nobody claims 7") << "7" << 0;
        QTest::newRow("idle 0") << "0" << 0;
        QTest::newRow("claimed by a screen since closed") << "4" << 0;
        QTest::newRow("claim withdrawn") << "5" << 0;
    }
    void handOverGoesOnlyToTheClaimedIdentifier()
    {
        QFETCH(QString, screen);
        QFETCH(int, deliveries);
        Rig rig;
        auto count = [&rig](const QString &a) { rig.handedOver << a; };
        {
            QObject closed;
            rig.exchange.registerReceiver(QStringLiteral("4"), &closed, {count, {}});
        }
        rig.exchange.registerReceiver(QStringLiteral("5"), &rig.exchange, {count, {}});
        rig.exchange.unregisterReceiver(QStringLiteral("5"));
        rig.port.arrive({"ok\n"});
        rig.send(QStringLiteral("x"), screen);
        runToEnd(rig.exchange);
        QCOMPARE(rig.handedOver.size(), deliveries);
        QCOMPARE(rig.session.screenId(), QStringLiteral("0"));
        QCOMPARE(rig.session.connectionFlag(), QStringLiteral("1"));
    }

    void endRestoresCaptionAndClearsFlags()
    {
        Rig rig;
        QSignalSpy caption(&rig.exchange, &ConsoleExchange::captionChanged);
        rig.session.setLiveEcho(true);
        rig.session.setLongAnswer(true);
        bool longDuringHandOver = false;
        rig.exchange.registerReceiver(QStringLiteral("1"), &rig.exchange,
                                      {[&](const QString &) { longDuringHandOver = rig.session.longAnswer(); }, {}});
        rig.send(QStringLiteral("x"), QStringLiteral("1"));
        runToEnd(rig.exchange);
        QVERIFY(longDuringHandOver);
        QCOMPARE(caption.count(), 2);
        QCOMPARE(caption[1][0].toString(), QStringLiteral("Pelorin Vekto 1.81"));
        QVERIFY(!rig.session.liveEcho());
        QVERIFY(!rig.session.longAnswer());
    }

    // While the live-echo flag is set, the receiving screen sees every change of the console.
    void liveEchoMirrorsEveryChange_data()
    {
        QTest::addColumn<bool>("echo");
        QTest::newRow("on") << true;
        QTest::newRow("off") << false;
    }
    void liveEchoMirrorsEveryChange()
    {
        QFETCH(bool, echo);
        Rig rig;
        QStringList mirrored;
        QStringList handed;
        rig.exchange.registerReceiver(QStringLiteral("1"), nullptr,
                                      {[&](const QString &a) { handed << a; },
                                       [&](const QString &so) { mirrored << so; }});
        rig.port.arrive({"he", "llo\n"});
        rig.session.setLiveEcho(echo);
        rig.send(QStringLiteral("x"), QStringLiteral("1"));
        runToEnd(rig.exchange);
        if (echo)
            QCOMPARE(mirrored, (QStringList{"", "\r\n", "\r\nhe", "\r\nhello\r\n"}));
        else
            QVERIFY(mirrored.isEmpty());
        QCOMPARE(handed, QStringList{"\r\nhello\r\n"});
    }
};

QTEST_MAIN(TestConsoleExchange)
#include "tst_consoleexchange.moc"
