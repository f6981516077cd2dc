#include "ChipEngine.h"

#include "NumberRoutines.h"

namespace {

const QString Volts = QStringLiteral(" V");
const QString Milliamps = QStringLiteral(" mA");
const QString Degrees = QStringLiteral(" º");

ChipReading readRow(const ChipDefinition &chip, const ChipRow &row, const QString &answer, const QString &noReading,
                    bool batteryWarning)
{
    ChipReading reading;
    reading.row = row;

    const ChipCut cut = ChipEngine::cutValue(answer, row.label);
    if (cut.state == ChipCut::State::Unfinished)
        return reading; // nothing could be cut: the reading stays as it was reset
    // A console time-out prints a text with "tim" where the value should be.
    const bool timedOut = chip.timTest && cut.text.size() > 3 && cut.text.contains(QLatin1String("tim"));
    if (cut.state == ChipCut::State::Missing || timedOut) {
        reading.state = ChipReading::State::Missing;
        reading.caption = noReading;
        if (chip.missingFails && row.rule != ChipRule::Shown)
            reading.verdict = Verdict::Fail;
        return reading;
    }

    reading.state = ChipReading::State::Read;
    QString unit;
    if (cut.unitLetter == u'V') {
        // A value the formatter cannot read is shown as it came; it cannot pass a bound.
        reading.value = milivoltsToVolts(cut.text).value_or(cut.text);
        unit = Volts;
    } else {
        // The device's last digit of a current is not shown.
        reading.value = cut.text.chopped(cut.text.isEmpty() ? 0 : 1).replace(u'.', u',');
        unit = Milliamps;
    }
    if (row.temperature) {
        reading.value = oneDecimalText(reading.value);
        unit = Degrees;
    }
    reading.caption = reading.value + unit;

    switch (row.rule) {
    case ChipRule::Shown:
        break;
    case ChipRule::Measured:
        reading.verdict = Verdict::Pass;
        break;
    case ChipRule::Judged:
        reading.deviation = CalculaPorcentagem(reading.value, row.reference);
        reading.verdict = ChipEngine::judgeDeviation(row, reading.deviation);
        break;
    case ChipRule::FollowsBaixa3:
        reading.verdict = batteryWarning ? Verdict::None : Verdict::Pass;
        break;
    }
    return reading;
}

} // namespace

std::optional<QString> ChipReading::deviationText() const
{
    if (row.deviationLabel.isEmpty())
        return std::nullopt;
    if (state == State::Read && !row.fixedDeviation.isEmpty())
        return row.fixedDeviation;
    if (deviation)
        return *deviation + QStringLiteral(" %");
    return QStringLiteral("0 %"); // the label's reset text
}

bool ChipResult::anyFailed() const
{
    for (const ChipReading &r : readings)
        if (r.verdict == Verdict::Fail)
            return true;
    return false;
}

QStringList ChipResult::shownWarnings() const
{
    QStringList shown;
    for (const ChipReading &r : readings)
        if (r.verdict == Verdict::Fail && !r.row.warning.isEmpty())
            shown << r.row.warning;
    return shown;
}

const ChipReading *ChipResult::reading(const QString &control) const
{
    for (const ChipReading &r : readings)
        if (r.row.control == control)
            return &r;
    return nullptr;
}

QMap<int, Verdict> ChipResult::images() const
{
    QMap<int, Verdict> shown;
    for (const ChipReading &r : readings) {
        if (r.row.image < 0)
            continue;
        // A failure hides the ok image of its row or rail for good; a pass never hides a no.
        if (r.verdict == Verdict::Fail)
            shown[r.row.image] = Verdict::Fail;
        else if (r.verdict == Verdict::Pass && r.row.okOnPass && shown.value(r.row.image) != Verdict::Fail)
            shown[r.row.image] = Verdict::Pass;
    }
    return shown;
}

ChipCut ChipEngine::cutValue(const QString &answer, const QString &label)
{
    ChipCut cut;
    const qsizetype at = label.isEmpty() ? -1 : answer.indexOf(label); // case-sensitive, first one
    if (at < 0)
        return cut;
    const qsizetype start = at + label.size() + 1;
    const qsizetype blank = start <= answer.size() ? answer.indexOf(u' ', start) : -1;
    if (blank < 0) {
        cut.state = ChipCut::State::Unfinished;
        return cut;
    }
    cut.state = ChipCut::State::Found;
    cut.text = answer.mid(start, blank - start);
    cut.unitLetter = blank + 2 < answer.size() ? answer.at(blank + 2) : QChar();
    return cut;
}

Verdict ChipEngine::judgeDeviation(const ChipRow &row, const std::optional<QString> &deviation)
{
    // A deviation that cannot be computed or read cannot show the reading is in bounds.
    const std::optional<double> d = deviation ? porcentagemValor(*deviation) : std::nullopt;
    if (!d)
        return Verdict::Fail;
    if (row.low && (row.low->inclusive ? *d < row.low->value : *d <= row.low->value))
        return Verdict::Fail;
    if (row.high && (row.high->inclusive ? *d > row.high->value : *d >= row.high->value))
        return Verdict::Fail;
    return Verdict::Pass;
}

ChipResult ChipEngine::CarregaDados(Chip chip, const QString &model, const QString &answer, const QString &noReading)
{
    ChipResult result;
    result.chip = chip;
    result.model = model;
    result.designator = ChipTables::designator(chip, model);
    const ChipDefinition &definition = ChipTables::definition(chip);
    bool batteryWarning = false;
    for (const ChipRow &row : ChipTables::rows(chip, model)) {
        result.readings.append(readRow(definition, row, answer, noReading, batteryWarning));
        const ChipReading &last = result.readings.constLast();
        if (row.warning == QLatin1String("Baixa3") && last.verdict == Verdict::Fail)
            batteryWarning = true;
    }
    return result;
}
