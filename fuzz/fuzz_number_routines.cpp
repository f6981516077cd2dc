// The number routines on any text: millivolts to volts, the per-cent deviation and the one-decimal
// cut never crash, and a deviation they return can always be read back for a verdict.

#include "FuzzInput.h"
#include "NumberRoutines.h"
#include "RailEngine.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const QStringList texts = input.texts();
    const QString a = texts.value(0);
    const QString b = texts.value(1);

    const auto volts = ConverteMilivolts(a);
    FUZZ_CHECK(volts.has_value() == QString(a).remove(0, a.startsWith(u'-') ? 1 : 0).contains(u'.'));
    const auto fromConsole = milivoltsToVolts(a);
    if (fromConsole)
        FUZZ_CHECK(!fromConsole->isEmpty());

    const QString cut = oneDecimalText(a);
    FUZZ_CHECK(cut.size() <= a.size());

    const auto porc = CalculaPorcentagem(a, b);
    if (porc)
        FUZZ_CHECK(porcentagemValor(*porc).has_value());
    porcentagemValor(a);
    return 0;
}
