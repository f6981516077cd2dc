#include "NumberRoutines.h"

#include <QRegularExpression>

#include <cmath>

std::optional<QString> ConverteMilivolts(const QString &milivolts)
{
    QString text = milivolts;
    const bool negative = text.startsWith(u'-');
    if (negative)
        text.remove(0, 1);
    const qsizetype point = text.indexOf(u'.');
    if (point < 0)
        return std::nullopt;
    text.truncate(point);

    const qsizetype n = text.size();
    QString volts;
    if (n == 1)
        volts = QStringLiteral("0.00") + text;
    else if (n == 2)
        volts = QStringLiteral("0.0") + text;
    else if (n == 3)
        volts = QStringLiteral("0.") + text;
    else if (n >= 4 && n <= 6)
        volts = text.left(n - 3) + u'.' + text.right(3);
    else
        volts = text; // seven digits or more stay as they are
    return negative ? u'-' + volts : volts;
}

std::optional<QString> milivoltsToVolts(const QString &milivolts)
{
    static const QRegularExpression number(QStringLiteral("^-?\\d+(\\.\\d*)?$"));
    if (!number.match(milivolts).hasMatch())
        return std::nullopt;
    // The console prints whole millivolts; the formatter wants the fraction point to find them.
    return ConverteMilivolts(milivolts.contains(u'.') ? milivolts : milivolts + QStringLiteral(".0"));
}

QString oneDecimalText(const QString &text)
{
    QString t = text;
    t.replace(u',', u'.').replace(u' ', u'.');
    const qsizetype point = t.indexOf(u'.');
    // Deliberately the point's 1-based position plus one characters: with no point, one character.
    return t.left(point < 0 ? 1 : point + 2);
}

namespace {

// A number as the routines read it: optional sign, digits, optional decimal comma and digits.
std::optional<double> readNumber(const QString &text)
{
    QString t = text.trimmed();
    if (t.isEmpty())
        return std::nullopt;
    t.replace(u',', u'.');
    bool ok = false;
    const double value = t.toDouble(&ok); // QString::toDouble always reads the C locale
    if (!ok || !std::isfinite(value))
        return std::nullopt;
    return value;
}

// The platform's number-to-text conversion with the decimal comma: up to 15 significant digits.
QString numberWithComma(double value)
{
    QString s = QString::number(value, 'g', 15);
    s.replace(u'.', u',');
    s.replace(u'e', u'E');
    return s;
}

} // namespace

namespace {

// The difference in units of the last digit and the per-cent deviation it stands for: the fixed
// tenths for up to three units, otherwise 100 × d ÷ F. Nothing for a text that is not a number
// or a deviation that cannot be computed (a zero reference, a reading too long to be a number).
struct Deviation
{
    double units = 0;
    double percent = 0;
};

std::optional<Deviation> deviationOf(const QString &leitura, const QString &referencia)
{
    const auto r = readNumber(QString(leitura).remove(u'.'));
    const auto f = readNumber(QString(referencia).remove(u'.'));
    if (!r || !f)
        return std::nullopt;
    const double d = *r - *f;
    if (d >= -3 && d <= 3) {
        const double tenths = d == 0 ? 0 : std::ceil(std::abs(d)) / 10;
        return Deviation{d, d < 0 ? -tenths : tenths};
    }
    if (*f == 0)
        return std::nullopt; // the division fails; callers keep their previous text
    const double p = d / (*f * 100) * 10000;
    if (!std::isfinite(p))
        return std::nullopt; // a garbled reading of hundreds of digits: no deviation to show
    return Deviation{d, p};
}

} // namespace

std::optional<QString> CalculaPorcentagem(const QString &leitura, const QString &referencia)
{
    const auto deviation = deviationOf(leitura, referencia);
    if (!deviation)
        return std::nullopt;
    const double d = deviation->units;
    if (d > 2 && d <= 3) return QStringLiteral("0,3");
    if (d > 1 && d <= 2) return QStringLiteral("0,2");
    if (d > 0 && d <= 1) return QStringLiteral("0,1");
    if (d == 0) return QStringLiteral("0");
    if (d >= -1 && d < 0) return QStringLiteral("-0,1");
    if (d >= -2 && d < -1) return QStringLiteral("-0,2");
    if (d >= -3 && d < -2) return QStringLiteral("-0,3");

    QString s = numberWithComma(deviation->percent).left(6);
    const qsizetype comma = s.indexOf(u',');
    if (comma >= 0)
        s.truncate(comma + 2);

    if (s.size() == 1 && s != QLatin1String("0"))
        s += QStringLiteral(",0");
    else if (s.size() == 2 && s.startsWith(u'-'))
        s += QStringLiteral(",0");
    else if (s == QLatin1String("0.0") || s == QLatin1String("0,0"))
        s = QStringLiteral("0");
    return s;
}

std::optional<double> desvioPercentual(const QString &leitura, const QString &referencia)
{
    const auto deviation = deviationOf(leitura, referencia);
    if (!deviation)
        return std::nullopt;
    return deviation->percent;
}

std::optional<double> porcentagemValor(const QString &porcentagem)
{
    return readNumber(porcentagem);
}
