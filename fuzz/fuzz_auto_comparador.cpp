// The console's automatic comparison on any answer, recorded answer and masks: it always gives
// a mark, long answers are never judged, and masking with nothing to mask changes nothing.

#include "AutoComparador.h"
#include "FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const bool longAnswer = input.control() & 0x01;
    // console, recorded, then any number of masks
    QStringList texts = input.texts();
    const QString console = texts.value(0);
    const QString recorded = texts.value(1);
    const QStringList masks = texts.mid(2);

    const AutoComparador::Mark mark = AutoComparador::evaluate(console, recorded, masks, longAnswer);
    FUZZ_CHECK(longAnswer == (mark == AutoComparador::Mark::Unchanged));

    FUZZ_CHECK(AutoComparador::mask(console, {}, AutoComparador::FillerMarks::Remove) == console);
    // Masking only ever adds placeholders; it never leaves a text with nothing in it.
    const QString kept = AutoComparador::mask(recorded, masks, AutoComparador::FillerMarks::Keep);
    FUZZ_CHECK(kept.isEmpty() == recorded.isEmpty());
    AutoComparador::mask(recorded, masks, AutoComparador::FillerMarks::Remove);
    FUZZ_CHECK(AutoComparador::longestFirst(masks).size() == masks.size());

    return 0;
}
