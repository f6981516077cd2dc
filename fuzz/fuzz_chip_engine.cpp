// The chip readout engine on any answer, for every chip and model: one reading per row the
// model reads, a caption that says what happened, and no pass that a number did not earn.

#include "ChipEngine.h"
#include "FuzzInput.h"
#include "NumberRoutines.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QStringList models = {QStringLiteral("IP 6"),  QStringLiteral("IP 6 Plus"), QStringLiteral("IP 6s"),
                                       QStringLiteral("IP 6s Plus"), QStringLiteral("IP 7"), QStringLiteral("IP 7 Plus"),
                                       QStringLiteral("IP 8"),  QStringLiteral("IP 8 Plus"), QStringLiteral("IP X")};
    FuzzInput input(data, size);
    const uint8_t control = input.control();
    const Chip chip = Chip(control % 4);
    const QString model = models.at((control / 4) % models.size());
    const QString answer = input.texts().join(QString());
    const QString noReading = QStringLiteral("Sem Medição");

    const ChipResult result = ChipEngine::CarregaDados(chip, model, answer, noReading);
    FUZZ_CHECK(result.readings.size() == ChipTables::rows(chip, model).size());
    for (const ChipReading &r : result.readings) {
        switch (r.state) {
        case ChipReading::State::Reset:
            FUZZ_CHECK(r.caption.isEmpty() && r.verdict == Verdict::None);
            break;
        case ChipReading::State::Missing:
            FUZZ_CHECK(r.caption == noReading);
            // Only Tigris leaves a missing judged value unjudged; everywhere else it fails.
            if (chip == Chip::Tigris || r.row.rule == ChipRule::Shown)
                FUZZ_CHECK(r.verdict == Verdict::None);
            else
                FUZZ_CHECK(r.verdict == Verdict::Fail);
            break;
        case ChipReading::State::Read:
            FUZZ_CHECK(r.caption.endsWith(QLatin1String(" V")) || r.caption.endsWith(QLatin1String(" mA")) ||
                       r.caption.endsWith(QStringLiteral(" º")));
            break;
        }
        // A judged pass always rests on a deviation that reads back as a number.
        if (r.row.rule == ChipRule::Judged && r.verdict == Verdict::Pass)
            FUZZ_CHECK(r.deviation && porcentagemValor(*r.deviation).has_value());
        if (r.row.rule == ChipRule::Shown)
            FUZZ_CHECK(r.verdict == Verdict::None);
        if (const auto text = r.deviationText(); text && *text != r.row.fixedDeviation)
            FUZZ_CHECK(text->endsWith(QLatin1String(" %")) && porcentagemValor(text->chopped(2)).has_value());
    }
    // An image shows the no mark only for a row that failed.
    const QMap<int, Verdict> images = result.images();
    for (auto it = images.cbegin(); it != images.cend(); ++it) {
        bool failed = false;
        for (const ChipReading &r : result.readings)
            failed |= r.row.image == it.key() && r.verdict == Verdict::Fail;
        FUZZ_CHECK((it.value() == Verdict::Fail) == failed);
    }
    return 0;
}
