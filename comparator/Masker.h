#pragma once
// Hides the parts of an answer that differ from board to board (the texts of table M) behind
// one placeholder, in one pass over the answer with one automaton of all masks. Replacing mask
// after mask over the whole answer cost answers × masks on the window thread, and re-masked the
// placeholders that earlier masks had left: twelve masks "x" never ended. Here every character
// of the answer is masked at most once, so masking always ends, in time and memory bounded by
// the answer and the masks.
//
// The outcome is the one of replacing mask after mask in the given order (each mask ignoring
// letter case, every occurrence left to right) whenever no mask can meet a placeholder: no mask
// lies inside "xxxxx®", contains it, or starts or ends with a piece of it. Where one can, the
// placeholder of an earlier mask is left alone instead of being masked again, and the same mask
// given twice applies once.

#include "TextAutomaton.h"

#include <QString>
#include <QStringList>
#include <QStringView>

class Masker
{
public:
    // What every masked text becomes.
    static constexpr QStringView placeholder() { return u"xxxxx\u00AE"; }

    Masker() = default;
    // `masks` in the order they apply: where occurrences of two masks overlap, the earlier mask
    // wins. Empty masks mask nothing.
    explicit Masker(const QStringList &masks);

    bool masksNothing() const { return m_automaton.findsNothing(); }
    QString mask(QStringView text) const;

    // Whether some mask occurs across the border between `before` and `after` in the joined
    // text; when none does, masking the joined text equals masking each part and joining.
    bool spansBorder(QStringView before, QStringView after) const;

    // Above this many occurrences per character of text, occurrences are collected mask by mask
    // instead of all at once, so memory stays proportional to the text whatever M holds.
    void setOccurrenceBudget(qsizetype perCharacter) { m_budgetPerCharacter = perCharacter; }

private:
    TextAutomaton m_automaton;
    QList<qsizetype> m_length; // per mask; 0 for empty masks and repeats of an earlier mask
    qsizetype m_budgetPerCharacter = 4;
};

// The masked form of a text that grows at its end (the console with "Auto" unchecked): each
// answer is masked once when it arrives, instead of the whole session at every answer.
class GrowingMaskedText
{
public:
    // The masked form of `text`. `revision` names the text's content up to appends: whenever the
    // text was changed in any other way than by appending, the caller passes a new revision.
    // A change of masker starts over as well.
    const QString &update(const Masker &masker, quint64 maskerRevision, QStringView text, quint64 revision);

private:
    QString m_masked;
    qsizetype m_consumed = -1; // characters of the text already masked; -1: nothing yet
    quint64 m_revision = 0;
    quint64 m_maskerRevision = 0;
};
