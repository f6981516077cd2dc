// The serial exchange fed whatever the line delivers, slice by slice, with its tick handlers
// stepped by hand: it must always come to an end, hand each answer over once, and never let a
// NUL reach the console text, whatever the bytes, the slicing or a cable pulled half-way.

#include "ConsoleExchange.h"
#include "FakeSerialPort.h"
#include "FuzzInput.h"
#include "Session.h"

#include <QCoreApplication>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    // The exchange owns timers, which want an application object on the thread.
    static QCoreApplication app(*argc, *argv);
    return 0;
}

namespace {

bool hasNul(const QString &text)
{
    return text.contains(QChar(u'\0'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const uint8_t flags = input.control();
    const uint8_t pullAt = input.control();

    Session session(QStringLiteral("unused.vkt"));
    FakeSerialPort port;
    ConsoleExchange exchange(session, port);
    port.open(QStringLiteral("fake"));

    int handOvers = 0;
    int resends = 0;
    QObject owner;
    AnswerReceiver receiver;
    receiver.handOver = [&](const QString &answer) {
        FUZZ_CHECK(!hasNul(answer));
        ++handOvers;
        // A screen that asks again from inside its hand-over, as the re-identification does.
        if ((flags & 0x08) && resends < 2) {
            ++resends;
            exchange.setCommandField(QStringLiteral("syscfg print RMd#"));
            exchange.EnviaComando();
        }
        if (flags & 0x10)
            exchange.unregisterReceiver(QStringLiteral("9"));
    };
    receiver.liveEcho = [&](const QString &soFar) { FUZZ_CHECK(!hasNul(soFar)); };
    if (flags & 0x01)
        exchange.registerReceiver(QStringLiteral("9"), (flags & 0x02) ? &owner : nullptr, receiver);
    session.setLiveEcho(flags & 0x04);
    session.setScreenId(QStringLiteral("9"));

    // Empty fields are silent slices: they end an answer early or leave a gap in it.
    port.arrive(input.fields());
    exchange.setCommandField(QStringLiteral("pmuadc --read all"));
    exchange.EnviaComando();

    int ticks = 0;
    int answers = 0;
    QObject::connect(&exchange, &ConsoleExchange::answerFinished, [&](const QString &answer) {
        FUZZ_CHECK(!hasNul(answer));
        ++answers;
    });
    // Each send is done within the slice limit plus its first tick; three sends at most.
    const int limit = 3 * (ConsoleExchange::MaxSlices + 2);
    while (exchange.running()) {
        FUZZ_CHECK(ticks < limit);
        if ((flags & 0x20) && ticks == pullAt % 64)
            port.pull();
        else if (exchange.timer1().isActive())
            exchange.onTimer1();
        else
            exchange.onTimer2();
        FUZZ_CHECK(!hasNul(exchange.console()));
        ++ticks;
    }
    FUZZ_CHECK(answers == 1 + resends);
    FUZZ_CHECK(session.connectionFlag() == QLatin1String("1"));
    if (!(flags & 0x01))
        FUZZ_CHECK(handOvers == 0);
    return 0;
}
