// A fresh connection validated on whatever the phone answered first: the model number is cut
// out of the console text between the "#" and the "[" of the prompt, so any text, any order and
// any length of those marks must give a model number or nothing, never a crash.

#include "ConnectionController.h"
#include "ConsoleExchange.h"
#include "FakeSerialPort.h"
#include "FuzzInput.h"
#include "Session.h"

#include <QCoreApplication>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication app(*argc, *argv);
    return 0;
}

namespace {

// Steps the exchange the way the event loop would until the answer is handed over.
void runToEnd(ConsoleExchange &exchange)
{
    int ticks = 0;
    while (exchange.running()) {
        FUZZ_CHECK(ticks++ < ConsoleExchange::MaxSlices + 2);
        if (exchange.timer1().isActive())
            exchange.onTimer1();
        else
            exchange.onTimer2();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const uint8_t flags = input.control();
    const QByteArrayList fields = input.fields();

    Session session(QStringLiteral("unused.vkt"));
    FakeSerialPort port;
    ConsoleExchange exchange(session, port);
    ConnectionController controller(session, exchange, port);
    controller.setModelComboVisible(flags & 0x01);
    if (flags & 0x02) {
        controller.setModelLookup([](const QString &number) -> std::optional<QString> {
            if (number == QLatin1String("A1778") || number == QLatin1String("A1660"))
                return QStringLiteral("IP 7");
            if (number.startsWith(QLatin1String("A19")))
                return QStringLiteral("IP X");
            return std::nullopt;
        });
    }

    // The first field is the first answer; the second, if any, the answer to asking again.
    port.arrive({fields.value(0)});
    controller.connectClicked(QStringLiteral("fake"), QStringLiteral("3"));
    FUZZ_CHECK(port.isOpen());
    runToEnd(exchange);

    for (int tick = 0; tick <= ConnectionController::GiveUpAfterTicks && controller.timerValidaPorta().isActive();
         ++tick)
        controller.onTimerValidaPorta();

    if (controller.timerVerificaVersao().isActive()) {
        // Once with the first answer still there (the resend path), then with the second one.
        controller.onTimerVerificaVersao();
        port.arrive({fields.value(1)});
        runToEnd(exchange);
        for (int tick = 0; tick < 20 && controller.timerVerificaVersao().isActive(); ++tick) {
            controller.onTimerVerificaVersao();
            runToEnd(exchange);
        }
        FUZZ_CHECK(!controller.timerVerificaVersao().isActive());
    }

    // A model number is either the waiting dots or something cut from an answer that starts with A.
    const QString number = controller.modelNumber();
    FUZZ_CHECK(number.isEmpty() || number == QLatin1String("...") || number.startsWith(u'A'));
    return 0;
}
