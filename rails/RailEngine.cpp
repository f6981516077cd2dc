#include "RailEngine.h"

#include "NumberRoutines.h"
#include "TextAutomaton.h"

#include <QRegularExpression>
#include <cmath>

namespace {

bool isDecimalNumber(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("^-?\\d+(\\.\\d*)?$"));
    return number.match(text).hasMatch();
}

// The deviation text of a value against its reference; "0 %" for a zero reference, which is
// never divided by, and empty when the reference is missing or cannot be read.
QString deviation(const QString &value, const QString &refv)
{
    if (refv.isEmpty())
        return {};
    if (refv == QLatin1String("0"))
        return QStringLiteral("0 %");
    const auto p = CalculaPorcentagem(value, refv);
    return p ? *p + QStringLiteral(" %") : QString();
}

// Volts keep one integer digit, the point and `decimals` digits; a cut that leaves only zeros is "0 V".
QString cutVolts(const QString &volts, int decimals)
{
    const QString cut = volts.left(volts.startsWith(u'-') ? decimals + 3 : decimals + 2);
    QString digits = cut;
    digits.remove(u'0').remove(u'.');
    if (digits.isEmpty() || digits == QLatin1String("-"))
        return QStringLiteral("0 V");
    return cut + QStringLiteral(" V");
}

// Milliamps keep `decimals` digits after the comma; with none, the comma goes as well.
QString cutMilliamps(const QString &value, int decimals)
{
    const qsizetype comma = value.indexOf(u',');
    QString cut = value;
    if (comma >= 0)
        cut = decimals <= 0 ? value.left(comma) : value.left(comma + 1 + decimals);
    return cut + QStringLiteral(" mA");
}

} // namespace

RailMeasurement RailEngine::readRail(const QString &answer, const RailReference &row, const RailSettings &settings)
{
    return readRailAt(answer, row, settings, row.reft.isEmpty() ? -1 : answer.indexOf(row.reft));
}

RailMeasurement RailEngine::readRailAt(const QString &answer, const RailReference &row, const RailSettings &settings,
                                       qsizetype label)
{
    RailMeasurement reading;
    reading.malha = row.malha;
    if (row.reft.isEmpty())
        return reading;

    // A rail the answer does not give ranks with the exact ones when it has a reference.
    auto noReading = [&] {
        reading.leitura = settings.noReading;
        reading.porc = row.refv.isEmpty() ? QString() : QStringLiteral("0 %");
        reading.unit = RailUnit::None;
        reading.measured = false;
        return reading;
    };

    if (label < 0)
        return noReading();
    const qsizetype start = label + row.reft.size() + 1; // one separator follows the label
    const qsizetype blank = answer.indexOf(u' ', start);
    if (start > answer.size() || blank < 0)
        return noReading();
    const QString value = answer.mid(start, blank - start);
    if (value.contains(QLatin1String("tim"))) // the device reports a time-out
        return noReading();

    // "mV" behind the blank: whole millivolts; anything else ("mA"): a current.
    if (blank + 2 < answer.size() && answer.at(blank + 2) == u'V') {
        const auto volts = milivoltsToVolts(value);
        if (!volts)
            return noReading();
        reading.unit = RailUnit::Volts;
        reading.value = *volts;
        reading.porc = deviation(*volts, row.refv);
        reading.leitura = cutVolts(*volts, settings.voltDecimals);
    } else {
        if (!isDecimalNumber(value))
            return noReading();
        QString current = value.chopped(1); // the device's last digit is not shown
        if (current.isEmpty() || current == QLatin1String("-"))
            return noReading();
        current.replace(u'.', u',');
        reading.unit = RailUnit::Milliamps;
        reading.value = current;
        reading.porc = deviation(current, row.refv);
        reading.leitura = cutMilliamps(current, settings.ampDecimals);
    }
    reading.measured = true;
    return reading;
}

QList<RailMeasurement> RailEngine::ProcessaLeituras(const QString &answer, const QList<RailReference> &rows,
                                                const RailSettings &settings)
{
    QList<RailMeasurement> readings;
    if (answer.isEmpty())
        return readings;
    // Every label's first occurrence (case-sensitive) in one pass over the answer: searching
    // from the start for each row made thousands of rails cost rows × answer.
    QStringList labels;
    for (const RailReference &row : rows)
        if (!row.reft.isEmpty())
            labels << row.reft;
    const QList<qsizetype> found = TextAutomaton(labels, Qt::CaseSensitive).firstOccurrences(answer);
    qsizetype next = 0;
    for (const RailReference &row : rows) {
        if (!row.reft.isEmpty())
            readings.append(readRailAt(answer, row, settings, found.at(next++)));
    }
    return readings;
}

RailVerdict RailEngine::verdict(const RailMeasurement &reading, const QString &refv, double tolerancePercent)
{
    // A zero reference is never divided by (its rows show "0 %"): like a missing one, there is
    // nothing to judge against.
    const auto reference = porcentagemValor(QString(refv).remove(u'.'));
    if (!reference || *reference == 0)
        return RailVerdict::None;

    QString value = reading.value;
    if (value.isEmpty()) {
        value = reading.leitura.trimmed();
        if (value.endsWith(QLatin1String(" mA"))) {
            value.chop(3);
        } else if (value.endsWith(QLatin1String(" V"))) {
            value.chop(2);
            // Volts cut to fewer decimals still count in millivolts: "0.85" is 850, not 85.
            const qsizetype point = value.indexOf(u'.');
            if (point >= 0)
                value += QString(qMax<qsizetype>(0, 3 - (value.size() - point - 1)), u'0');
        }
    }
    if (!isDecimalNumber(QString(value).replace(u',', u'.')))
        return RailVerdict::Fail; // no reading, a time-out or garbage where a number belongs
    const auto deviation = desvioPercentual(value, refv);
    if (!deviation)
        return RailVerdict::Fail; // a value too long to be a reading
    return std::abs(*deviation) <= tolerancePercent ? RailVerdict::Pass : RailVerdict::Fail;
}
