// The rail engine on any "pmuadc --read all" answer, against a few reference rows of its own
// and rows whose labels and reference values come from the input, with any decimal settings:
// one reading per labelled row, each with a text, and a verdict that can always be given.

#include "FuzzInput.h"
#include "NumberRoutines.h"
#include "RailEngine.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    RailSettings settings;
    settings.voltDecimals = input.control() % 6 - 1; // one beyond the combo's range each way
    settings.ampDecimals = input.control() % 6 - 1;

    QList<RailReference> rows = {
        {QStringLiteral("PP_CPU"), QStringLiteral("vbuck0:"), QStringLiteral("0.900"), QStringLiteral("CPU")},
        {QStringLiteral("I_PP_CPU"), QStringLiteral("ibuck0:"), QStringLiteral("352,4"), QStringLiteral("CPU")},
        {QStringLiteral("PP_GPU"), QStringLiteral("vbuck1:"), QStringLiteral("0"), QStringLiteral("GPU")},
        {QStringLiteral("PP_VAR"), QStringLiteral("vldo8:"), QString(), QStringLiteral("PMU")},
        {QStringLiteral("NONE"), QString(), QStringLiteral("1.800"), QStringLiteral("PMU")},
    };
    // Every field but the last is a row "label<TAB>refv"; the last is the answer.
    QStringList texts = input.texts();
    const QString answer = texts.takeLast();
    for (const QString &row : texts)
        rows.append({QStringLiteral("FUZZ"), row.section(u'\t', 0, 0), row.section(u'\t', 1), QString()});

    qsizetype labelled = 0;
    for (const RailReference &row : rows)
        labelled += row.reft.isEmpty() ? 0 : 1;

    const QList<RailMeasurement> readings = RailEngine::ProcessaLeituras(answer, rows, settings);
    FUZZ_CHECK(readings.size() == (answer.isEmpty() ? 0 : labelled));
    qsizetype i = 0;
    for (const RailReference &row : rows) {
        if (row.reft.isEmpty() || answer.isEmpty())
            continue;
        const RailMeasurement &r = readings.at(i++);
        FUZZ_CHECK(r.malha == row.malha);
        FUZZ_CHECK(!r.leitura.isEmpty());
        FUZZ_CHECK(r.measured || r.leitura == settings.noReading);
        if (r.unit == RailUnit::Volts)
            FUZZ_CHECK(r.leitura.endsWith(QLatin1String(" V")));
        if (r.unit == RailUnit::Milliamps)
            FUZZ_CHECK(r.leitura.endsWith(QLatin1String(" mA")));
        // A deviation shown beside a reading is one the verdict can read back.
        if (!r.porc.isEmpty()) {
            FUZZ_CHECK(r.porc.endsWith(QLatin1String(" %")));
            FUZZ_CHECK(porcentagemValor(r.porc.chopped(2)).has_value());
        }
        const RailVerdict v = RailEngine::verdict(r, row.refv, RailEngine::DefaultTolerancePercent);
        const auto reference = porcentagemValor(QString(row.refv).remove(u'.'));
        if (!reference || *reference == 0)
            FUZZ_CHECK(v == RailVerdict::None);
        else if (!r.measured)
            FUZZ_CHECK(v == RailVerdict::Fail);
        // A pass always rests on a number within the tolerance, whatever the shown text says.
        if (v == RailVerdict::Pass) {
            const auto deviation = desvioPercentual(r.value, row.refv);
            FUZZ_CHECK(r.measured && deviation && std::abs(*deviation) <= RailEngine::DefaultTolerancePercent);
        }
    }
    return 0;
}
