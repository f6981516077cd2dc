#pragma once
// Carries the technician's own data from a previous installation's database ("User.vkt", SQLite
// or Access) into Config.vkt: recorded rail readings, recorded answers, added commands and the
// saved option choices. Shipped reference data is never overwritten except where the
// technician's recording must win. The whole import is one transaction: it lands whole or
// Config.vkt stays exactly as it was; running it twice gives the result of running it once.

#include <QString>

namespace UserImport {

enum class Problem {
    None,
    Missing,     // no file at the path
    Empty,       // a file of zero bytes
    NotADatabase,
    Unreadable,  // damaged, truncated, or not readable
    Locked,      // another program holds the file
    OtherSchema, // a table or column the import needs is not there
    SameFile,    // User.vkt is Config.vkt itself
    ConfigFailed // Config.vkt could not be written; nothing was changed
};

struct Report
{
    Problem problem = Problem::None;
    QString detail;                  // the technical reason, shown under the message
    int masterCopied = 0;            // Master rows whose G1..G3 were copied
    int masterWithoutCounterpart = 0;
    int dadosAdded = 0;
    int dadosReplaced = 0;
    int comandosAdded = 0;
    int comandosKept = 0;            // already present: the shipped texts stay
    bool combosCopied = false;

    bool ok() const { return problem == Problem::None; }
    // The dictionary key of the problem's message; empty when the import went through.
    QString messageKey() const;
};

// Imports `userPath` into `configPath`.
Report run(const QString &userPath, const QString &configPath);

} // namespace UserImport
