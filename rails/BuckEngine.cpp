#include "BuckEngine.h"

#include "RailEngine.h"


namespace {

// The target of a buck check goes through the digit-count rule alone (1 to 5 digits before any
// fraction, no sign) and is always shown five characters wide; any other text is shown as it
// stands, cut to the same width, so its line and the device's verdict are never dropped.
QString targetVolts(const QString &target)
{
    const qsizetype point = target.indexOf(u'.');
    const QString digits = point < 0 ? target : target.left(point);
    QString volts;
    switch (digits.size()) {
    case 1: volts = QStringLiteral("0.00") + digits; break;
    case 2: volts = QStringLiteral("0.0") + digits; break;
    case 3: volts = QStringLiteral("0.") + digits; break;
    case 4:
    case 5: volts = digits.left(digits.size() - 3) + u'.' + digits.right(3); break;
    default: volts = target; break;
    }
    return volts.leftJustified(5, u' ', true);
}

// The word that follows a position, skipping blanks and punctuation ("mV : PASS" gives "PASS").
QString nextWord(const QString &text, qsizetype from)
{
    qsizetype i = from;
    while (i < text.size() && !text.at(i).isLetterOrNumber() && text.at(i) != u'\r' && text.at(i) != u'\n')
        ++i;
    qsizetype end = i;
    while (end < text.size() && text.at(end).isLetterOrNumber())
        ++end;
    return text.mid(i, end - i);
}

QString valueBefore(const QString &text, qsizetype from, qsizetype mv)
{
    return text.mid(from, mv - from).trimmed();
}

} // namespace

int primeiroNumeroBuck(const QString &answer)
{
    return answer.contains(QLatin1String("buck0")) ? 0 : 1;
}

QList<BuckLine> ExtraiLeiturasBuck(const QString &answer)
{
    QList<BuckLine> lines;
    if (answer.contains(QLatin1String("measured")))
        return lines; // the answer of a buck check, not of a plain read
    int number = primeiroNumeroBuck(answer);
    qsizetype from = 0;
    while (true) {
        const qsizetype colon = answer.indexOf(u':', from);
        if (colon < 0)
            break;
        const qsizetype mv = answer.indexOf(QLatin1String("mV"), colon);
        if (mv < 0)
            break;
        from = colon + 1;
        // Between ": " and " mV"; a colon elsewhere (the prompt, a heading) gives no number.
        const QString value = answer.mid(colon + 2, mv - colon - 3);
        const auto volts = milivoltsToVolts(value);
        if (!volts)
            continue;
        lines.append({QStringLiteral("   buck") + QString::number(number) + QStringLiteral(" voltage: ") + *volts
                          + QStringLiteral(" V"),
                      true});
        ++number;
    }
    return lines;
}

QList<BuckLine> ExtraiBistBuck(const QString &answer, const BuckWords &words)
{
    QList<BuckLine> lines;
    int number = primeiroNumeroBuck(answer);
    qsizetype from = 0;
    while (true) {
        const qsizetype target = answer.indexOf(QLatin1String("target"), from);
        if (target < 0)
            break;
        const qsizetype targetMv = answer.indexOf(QLatin1String("mV"), target);
        if (targetMv < 0)
            break;
        const qsizetype measured = answer.indexOf(QLatin1String("measured"), targetMv);
        if (measured < 0)
            break;
        const qsizetype measuredMv = answer.indexOf(QLatin1String("mV"), measured);
        if (measuredMv < 0)
            break;
        from = measuredMv + 2;

        const QString targetText = valueBefore(answer, target + 7, targetMv);
        // A measured text the formatter cannot take is shown as the device wrote it.
        const QString measuredText = valueBefore(answer, measured + 9, measuredMv);
        const QString volts = milivoltsToVolts(measuredText).value_or(measuredText);
        const QString verdict = nextWord(answer, measuredMv + 2);
        lines.append({QStringLiteral("   buck") + QString::number(number) + QStringLiteral(": ") + words.referencia
                          + QStringLiteral(": ") + targetVolts(targetText) + QStringLiteral(" V - ") + words.leitura
                          + QStringLiteral(":  ") + volts + QStringLiteral(" V : ") + verdict,
                      verdict == QLatin1String("PASS")});
        ++number;
    }
    return lines;
}
