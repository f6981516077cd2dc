#pragma once
// Decides whether a fresh console answer matches the answer recorded from a known-good board.
// It is kept apart from the console screen so the same rule judges a live answer, a saved answer
// on the command line and the tests' tables; it also owns the masking that hides the parts of an
// answer that differ from board to board (serial numbers, addresses) before two answers meet.

#include "Masker.h"

#include <QString>
#include <QStringList>
#include <QStringView>

class AutoComparador
{
public:
    // What replaces every masked text, in console answers and in recorded ones alike.
    static const QString Placeholder;
    // The console prompt's tail; when found after the first character the prompt line is cut.
    static const QString PromptTail;
    // How many characters the prompt line occupies at the end of an answer (CR LF + prompt).
    static constexpr int PromptLineLength = 26;

    enum class Mark {
        Shown,    // the answer matches the recorded one
        Hidden,   // it does not
        Unchanged // nothing was judged (long answers): the mark keeps its state
    };

    // The console compares with the filler marks "'jox'", "'nas'", "'ins'" removed from each
    // stored mask; the administration screen uses the stored text as it stands.
    enum class FillerMarks { Remove, Keep };

    // Texts of table M in the order they are applied: descending text order, so that a longer
    // text that begins with a shorter one is replaced first.
    static QStringList longestFirst(QStringList masks);

    static QString removeFillerMarks(const QString &mask);

    // The masker of the texts of M: fillers handled as asked, longest first.
    static Masker masker(const QStringList &masks, FillerMarks fillerMarks);

    // Replaces, ignoring letter case, every occurrence of each mask (longest first) by the
    // placeholder. Empty masks (also those that were nothing but filler marks) mask nothing.
    static QString mask(const QString &text, const QStringList &masks, FillerMarks fillerMarks);

    // The console's automatic comparison of console text `console` with recorded text `recorded`.
    static Mark evaluate(const QString &console, const QString &recorded, const QStringList &masks,
                         bool longAnswer);
    // The same comparison for a console text that has been masked already.
    static Mark evaluateMasked(QStringView maskedConsole, QStringView recorded);

    // Commands whose answers are too long to compare ("TESTMEMORY --1MB", "HELP"), any case.
    static bool isLongAnswerCommand(const QString &command);
    // The phone's button test, whose result shows on the phone itself ("BUTTONCNT --DQE").
    static bool isButtonTestCommand(const QString &command);
};
