#pragma once
// A Config.vkt left by the program before this one is an Access file. It is carried over once
// into a new SQLite Config.vkt with the same tables and rows; the original is kept beside it
// under another name, untouched, so nothing the technician had is ever lost.

#include <QString>
#include <QStringList>

namespace AccessMigration {

struct Result
{
    bool migrated = false;  // a new SQLite file now stands at the path
    QString keptAs;         // where the original Access file lies now
    QString error;          // why nothing was done (the original is then where it was)
    int tables = 0;         // tables carried over
    int rows = 0;           // rows carried over
};

// The name the original is kept under: "Config-access.mdb" beside it, numbered when taken.
QString keptName(const QString &configPath);

// Migrates `configPath` when it is an Access file; otherwise returns at once (migrated false,
// error empty). `requiredTables` must all be in the Access file, so a stray Access file is not
// taken for a configuration; the default is the program's own tables.
Result migrate(const QString &configPath, const QStringList &requiredTables = {});

} // namespace AccessMigration
