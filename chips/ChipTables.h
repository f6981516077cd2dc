#pragma once
// What each chip readout reads and how it judges it, as data: per chip its command, screen
// identifier and reading table (label, result control, unit, reference, bounds, marks), per
// model the rows read and the chip's board designator. The engine and the four screens only
// walk these tables, so a bound or a label is changed in exactly one place.

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

enum class Chip { Tigris, Tristar, Chestnut, Acorn };

// How a reading turns into a verdict.
enum class ChipRule {
    Shown,         // value and unit only, never judged
    Judged,        // the deviation from the reference must lie within the row's bounds
    Measured,      // passes whenever the answer gave a value
    FollowsBaixa3, // green while the battery warning is hidden, white while it shows
};

// Which label takes the verdict colour besides the deviation label.
enum class ValuePaint { Never, Always, OnFailure };

// One bound on the deviation in per cent; `inclusive` means "at least"/"at most".
struct ChipBound
{
    double value = 0;
    bool inclusive = false;
};

struct ChipRow
{
    QString label;            // searched in the answer: "tigris vbus :", "BIST ldo7:"
    QString control;          // result control: "VBus_V"; one of an array: "iLDO_V(2)"
    QString unit;             // what the caption shows for the usual answer
    QString reference;        // deviation reference ("4.045", "-5.700"); empty when none
    ChipRule rule = ChipRule::Shown;
    std::optional<ChipBound> low;   // the deviation must be above (or at least) this
    std::optional<ChipBound> high;  // the deviation must be below (or at most) this
    QString deviationLabel;   // the row's own "Porc"/"P" label; empty when none
    QString fixedDeviation;   // a text the deviation label shows instead of a number ("ACC")
    QString warning;          // warning label shown on failure ("Baixa1")
    QStringList failLabels;   // further labels painted yellow on failure
    ValuePaint valuePaint = ValuePaint::Never;
    int image = -1;           // index of the row's ok/no images; -1 when it has none
    bool okOnPass = true;     // a pass shows the ok image (a rail's current only ever hides it)
    int rail = 0;             // rail (1 to 3) whose name label this row fills
    QString railName;         // net name written into that rail's name label
    QStringList copies;       // controls that repeat this row's caption
    bool temperature = false; // one decimal and " º"
};

struct ChipDefinition
{
    Chip chip;
    QString name;      // screen name: "Tigris"
    QString engine;    // command-line engine name: "tigris"
    QString command;   // console command of one reading
    QString screenId;  // screen identifier of the exchange
    bool timTest = true;      // a value holding "tim" is a console time-out
    bool missingFails = true; // a judged row without a value is marked failed
    bool comparator = false;  // the screen has the recorded-answers grid Data1
    bool log = false;         // the screen has btLog
};

namespace ChipTables {

const QList<ChipDefinition> &definitions();
const ChipDefinition &definition(Chip chip);
std::optional<Chip> byEngine(const QString &engine);
std::optional<Chip> byName(const QString &name);

// The rows read for `model`, in reading order (only the model's count of leading rows).
QList<ChipRow> rows(Chip chip, const QString &model);

// The chip's board designator on `model`; empty for a model the table does not list.
QString designator(Chip chip, const QString &model);

// True when the screen refuses to read on `model` ("IP X" on Chestnut, all but "IP X" on Acorn).
bool refuses(Chip chip, const QString &model);

// Tigris: the second VBUS frame exists on these models.
bool hasSecondVbus(const QString &model);

// Control names split: "iLDO_V(2)" -> {"iLDO_V", 2}; "VBus_V" -> {"VBus_V", -1}.
std::pair<QString, int> splitControl(const QString &control);
// The widget object name of a control: "iLDO_V(2)" -> "iLDO_V_2".
QString objectName(const QString &control);

} // namespace ChipTables
