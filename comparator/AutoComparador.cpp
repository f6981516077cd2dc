#include "AutoComparador.h"

#include <algorithm>

const QString AutoComparador::Placeholder = QStringLiteral("xxxxx\u00AE");
const QString AutoComparador::PromptTail = QStringLiteral("] :-) ");

QStringList AutoComparador::longestFirst(QStringList masks)
{
    // Descending without regard to letter case, as the column's collation sorts it: "ABCD" comes
    // before "abc", so a longer mask is never cut into by its own beginning in another case.
    // Texts equal but for case fall back to code-point order, as the query does.
    std::stable_sort(masks.begin(), masks.end(), [](const QString &a, const QString &b) {
        const int folded = QString::compare(a, b, Qt::CaseInsensitive);
        return folded != 0 ? folded > 0 : QString::compare(a, b) > 0;
    });
    return masks;
}

QString AutoComparador::removeFillerMarks(const QString &mask)
{
    QString cleaned = mask;
    for (const char *filler : {"'jox'", "'nas'", "'ins'"})
        cleaned.remove(QLatin1String(filler), Qt::CaseSensitive);
    return cleaned;
}

Masker AutoComparador::masker(const QStringList &masks, FillerMarks fillerMarks)
{
    QStringList ordered = longestFirst(masks);
    if (fillerMarks == FillerMarks::Remove)
        for (QString &m : ordered)
            m = removeFillerMarks(m);
    return Masker(ordered);
}

QString AutoComparador::mask(const QString &text, const QStringList &masks, FillerMarks fillerMarks)
{
    return masker(masks, fillerMarks).mask(text);
}

AutoComparador::Mark AutoComparador::evaluate(const QString &console, const QString &recorded,
                                              const QStringList &masks, bool longAnswer)
{
    if (longAnswer)
        return Mark::Unchanged;
    return evaluateMasked(mask(console, masks, FillerMarks::Remove), recorded);
}

AutoComparador::Mark AutoComparador::evaluateMasked(QStringView maskedConsole, QStringView recorded)
{
    // Views, not copies: with "Auto" unchecked the console holds the whole session.
    QStringView c = maskedConsole;
    if (c.indexOf(PromptTail) >= 1)
        c.chop(std::min<qsizetype>(PromptLineLength, c.size()));
    c = c.size() > 2 ? c.sliced(2) : QStringView();

    // The recorded text keeps the two leading characters dropped above, so an identical answer
    // is found at the third character; a find at the very first one counts as a mismatch.
    return recorded.indexOf(c, 0, Qt::CaseInsensitive) >= 1 ? Mark::Shown : Mark::Hidden;
}

bool AutoComparador::isLongAnswerCommand(const QString &command)
{
    const QString upper = command.toUpper();
    return upper == QLatin1String("TESTMEMORY --1MB") || upper == QLatin1String("HELP");
}

bool AutoComparador::isButtonTestCommand(const QString &command)
{
    return command.toUpper() == QLatin1String("BUTTONCNT --DQE");
}
