#pragma once
// Turns the readable sources in data/ (schema and seed rows as SQL text) into a database file.
// The build runs it to produce Config.vkt and the tests run it to get a fresh copy; the file
// appears only when every statement succeeded, so a failed run never leaves half a database.

#include <QString>
#include <QStringList>

class DatabaseBuilder
{
public:
    // Every *.sql file of `directory`, in name order (plain character order).
    static QStringList seedFiles(const QString &directory);

    // Splits an SQL script into statements at the semicolons outside quotes and comments;
    // statements that hold only comments or blanks are dropped.
    static QStringList splitStatements(const QString &script);

    // Builds `target` from the schema followed by the seed files. Writes a temporary file beside
    // it and renames it over `target` at the end; on failure `target` is left untouched.
    static bool build(const QString &schemaFile, const QStringList &seedFiles, const QString &target,
                      QString *error = nullptr);
};
