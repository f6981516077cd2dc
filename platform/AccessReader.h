#pragma once
// Reads an Access (Jet 3/4) file through libmdb: its tables, their columns, and a table's rows
// as texts picked by column name. It knows nothing of our tables; the import and the migration
// of an old Config.vkt decide what to read. Read-only: the file is never written.

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

class AccessReader
{
public:
    explicit AccessReader(const QString &path);
    ~AccessReader();
    AccessReader(const AccessReader &) = delete;
    AccessReader &operator=(const AccessReader &) = delete;

    // True when the first bytes carry the Jet or ACE signature.
    static bool looksLikeAccess(const QByteArray &firstBytes);

    bool isOpen() const { return m_handle != nullptr; }
    QString lastError() const { return m_lastError; }

    // The user tables, in catalogue order (system tables left out).
    QStringList tables() const;
    // The table's column names in their order; nothing when the table does not exist.
    std::optional<QStringList> columns(const QString &table);
    // Every row of `table`, one text per requested column in the requested order; names match
    // without regard to letter case. Nothing (and lastError) when the table or a column is
    // missing. Dates read "yyyy-mm-dd hh:mm:ss"; an empty field reads as the empty text.
    std::optional<QList<QStringList>> rows(const QString &table, const QStringList &columns);

private:
    void *m_handle = nullptr; // MdbHandle, kept opaque so callers need no glib headers
    QStringList m_tables;
    QString m_lastError;
};
