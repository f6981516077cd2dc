#pragma once
// Turns the readings a technician recorded from known-good boards (slots G1 to G3 of table
// Master) into rail references: each rail's reference becomes the median of the slots that hold
// a reading, in the form the grid compares against (volts with three decimals, currents with a
// decimal comma). The learning is one transaction and keeps what it replaced, so the last one
// of a model can be undone exactly.

#include "DatabaseRecords.h"

#include <QList>
#include <QString>
#include <optional>

class Database;

namespace RailLearning {

enum class Unit { Volts, Milliamps };

// A recorded slot read as a number, kept in thousandths so no rounding creeps in.
struct SlotReading
{
    Unit unit = Unit::Volts;
    qint64 thousandths = 0;
    int decimals = 0; // as written in the slot
};

// "0.900 V", "0.85 V", "0 V", "352,4 mA"; nothing for an empty slot, the no-reading text of any
// language ("… *") or anything else that is not a reading.
std::optional<SlotReading> readSlot(const QString &slot);

enum class Outcome {
    Learned,
    NoReading,  // no slot holds a reading: the reference stays
    MixedUnits, // volts in one slot, milliamps in another: the reference stays
};

struct RailPlan
{
    QString malha;
    QString oldRefv;
    QString newRefv;
    int readings = 0;
    Outcome outcome = Outcome::NoReading;
};

// The median of the readings among `slots`, as a reference text; the outcome says why not.
RailPlan planRail(const MasterRow &row);

struct Plan
{
    QString model;
    QList<RailPlan> rails;
    int learnable() const;
};

Plan plan(const QString &model, const QList<MasterRow> &rows);

// Who learns: when, which program, and the boards' serial numbers where known.
struct Context
{
    QString at;
    QString version;
    QString serials;
};

// Writes the learnable rails' references and origins and keeps what they replace, all in one
// transaction. False (with the database's reason in `error`) when nothing was written.
bool learn(Database &db, const Plan &plan, const Context &context, QString *error = nullptr);

// Whether the model has a learning to undo.
bool canUndo(Database &db, const QString &model);
// Puts back the references and origins the model's last learning replaced, in one transaction.
bool undo(Database &db, const QString &model, QString *error = nullptr);

} // namespace RailLearning
