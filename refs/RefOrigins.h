#pragma once
// Where a reference came from, told the way the technician reads it: the rail grids' hover
// text, the demo marking and `vekto-cli refs show`. Also the one rule that decides whether a
// reference from another bench may replace the one already here. No widgets, no database.

#include "DatabaseRecords.h"

#include <QDateTime>
#include <QString>
#include <optional>

namespace RefOrigins {

inline const QString Rail = QStringLiteral("rail");
inline const QString I2c = QStringLiteral("i2c");
inline const QString Dados = QStringLiteral("dados");

inline const QString Demo = QStringLiteral("demo");
inline const QString Learned = QStringLiteral("learned");
inline const QString Imported = QStringLiteral("imported");

enum class State {
    Unknown, // no origin row: a file from before origins were kept
    Demo,    // shipped with the program
    Learned, // median of recorded good boards
    Imported,
    Changed, // the reference no longer equals the value its origin vouched for
};

State state(const std::optional<RefOrigin> &origin, const QString &current);
// "unknown", "demo", "learned", "imported", "changed": the word the command line prints.
QString stateName(State state);

// One or two lines in the session language (1 Portuguese, 2 English, 3 Spanish).
QString describe(const std::optional<RefOrigin> &origin, const QString &current, quint8 idioma);

// A moment as the origin rows keep it: UTC, ISO 8601 to the second.
QString stamp(const QDateTime &moment);

// Whether a reference carried in by a file replaces the local one that differs from it. Demo
// data always gives way; a local reference of unknown or hand-changed origin never does (that
// is a conflict for the technician); otherwise the newer moment wins.
bool incomingWins(const std::optional<RefOrigin> &local, const QString &localValue, const RefOrigin &incoming);
// The same rule for a local reference whose state and moment are already known (a whole list).
bool incomingWins(State local, const QString &localAt, const RefOrigin &incoming);

} // namespace RefOrigins
