#pragma once
// Reads one chip's analogue channels out of a console answer and judges them: the value after
// each label, its unit, its deviation from the row's reference and the verdict by the row's
// bounds. No widgets: the four chip screens paint what it returns and the command line prints
// it, so a reading looks and judges the same everywhere.

#include "ChipTables.h"
#include "Verdict.h"

#include <QList>
#include <QMap>
#include <QString>
#include <optional>

// The value that follows a label in the answer.
struct ChipCut
{
    enum class State {
        Missing,    // the label is not in the answer
        Unfinished, // the value runs to the end of the text with no blank after it
        Found,
    };
    State state = State::Missing;
    QString text;       // the characters between the blank after the label and the next blank
    QChar unitLetter;   // the second character after that blank: "V" of mV, "A" of mA
};

struct ChipReading
{
    ChipRow row;
    // Reset: the value could not be cut and the reading keeps its state before the parsing.
    enum class State { Reset, Missing, Read } state = State::Reset;
    QString value;                    // the shown value without its unit
    QString caption;                  // value and unit, the no-reading text, or empty
    std::optional<QString> deviation; // per-cent text with the decimal comma, without " %"
    Verdict verdict = Verdict::None;

    // What the row's deviation label shows ("2,3 %", "ACC", "0 %"); nothing when it has none.
    std::optional<QString> deviationText() const;
};

struct ChipResult
{
    Chip chip = Chip::Tigris;
    QString model;
    QString designator;
    QList<ChipReading> readings;

    bool anyFailed() const;
    // The warning labels a failure shows ("Baixa1").
    QStringList shownWarnings() const;
    const ChipReading *reading(const QString &control) const;
    // Per image index, which of its two images shows: Pass the ok image, Fail the no image.
    // Indexes not in the map show neither.
    QMap<int, Verdict> images() const;
};

class ChipEngine
{
public:
    // Parses and judges every row the model reads. `noReading` is the translated "Sem Medição".
    static ChipResult CarregaDados(Chip chip, const QString &model, const QString &answer,
                                   const QString &noReading = QStringLiteral("Sem Medição"));

    // The first occurrence of `label`; one character after it is skipped, the value ends before
    // the next blank.
    static ChipCut cutValue(const QString &answer, const QString &label);

    // A deviation text read as a number against the row's bounds.
    static Verdict judgeDeviation(const ChipRow &row, const std::optional<QString> &deviation);
};
