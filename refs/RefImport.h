#pragma once
// Brings a reference file from another bench into Config.vkt. Per reference: a new one is added;
// an equal one is left alone; a different one replaces the local one only when its origin is
// newer (demo data always gives way); otherwise it is a conflict, listed and not written. Masks
// are added when missing. One transaction: a refused file or a failed write changes nothing.

#include "RefFile.h"

#include <QList>
#include <QString>

class Database;

namespace RefImport {

enum class Problem {
    None,
    File,        // the file could not be read as references (see fileProblem)
    UnknownModel,
    ConfigFailed,
};

struct Conflict
{
    QString kind;  // "rail", "i2c", "dados"
    QString model;
    QString item;  // net, "bus list", command
    QString local;
    QString incoming;
};

struct Count
{
    int added = 0;
    int replaced = 0;
    int same = 0;
};

struct Report
{
    Problem problem = Problem::None;
    RefFile::Problem fileProblem = RefFile::Problem::None;
    QString detail;
    Count rails;
    Count i2c; // whole lists of a model
    Count dados;
    int masksAdded = 0;
    QList<Conflict> conflicts;

    bool ok() const { return problem == Problem::None; }
    QString messageKey() const;
};

// `fileName` and the moment are what the imported rows' origins will name.
Report run(Database &db, const RefBundle &bundle, const QString &fileName);
Report runFile(Database &db, const QString &path);

} // namespace RefImport
