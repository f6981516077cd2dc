// The buck answers ("buck" and "buckcheck N") cut apart on any text: every line found is one
// buck with a volts reading, and a check line passes exactly when the device said PASS.

#include "BuckEngine.h"
#include "FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString answer = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));

    const int first = primeiroNumeroBuck(answer);
    FUZZ_CHECK(first == 0 || first == 1);

    const QList<BuckLine> plain = ExtraiLeiturasBuck(answer);
    for (const BuckLine &line : plain) {
        FUZZ_CHECK(line.text.startsWith(QLatin1String("   buck")));
        FUZZ_CHECK(line.text.endsWith(QLatin1String(" V")));
        FUZZ_CHECK(line.passed);
    }
    if (answer.contains(QLatin1String("measured")))
        FUZZ_CHECK(plain.isEmpty());

    const QList<BuckLine> check = ExtraiBistBuck(answer);
    for (const BuckLine &line : check) {
        FUZZ_CHECK(line.text.startsWith(QLatin1String("   buck")));
        FUZZ_CHECK(line.passed == line.text.endsWith(QLatin1String(" : PASS")));
    }
    return 0;
}
