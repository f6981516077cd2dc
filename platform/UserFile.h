#pragma once
// A previous installation's database ("User.vkt"), opened read-only in whichever format it was
// written: SQLite (this program) or Access (the program before it), told apart by the file's
// first bytes. The import reads its tables as texts by column name and needs no more.

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

class AccessReader;

class UserFile
{
public:
    enum class Format { Missing, Empty, Unknown, SQLite, Access };
    enum class Problem { None, Missing, Empty, NotADatabase, Unreadable, Locked };

    explicit UserFile(const QString &path);
    ~UserFile();
    UserFile(const UserFile &) = delete;
    UserFile &operator=(const UserFile &) = delete;

    // The format by the first bytes; reads nothing beyond them.
    static Format detect(const QString &path);

    Format format() const { return m_format; }
    // Why the file cannot be read at all; None once it is open.
    Problem problem() const { return m_problem; }
    QString lastError() const { return m_lastError; }

    QStringList tables() const;
    // Every row of `table` with the named columns (names match without regard to case); nothing
    // when the table or a column is missing, with lastError naming which.
    std::optional<QList<QStringList>> rows(const QString &table, const QStringList &columns);

private:
    std::optional<QList<QStringList>> sqliteRows(const QString &table, const QStringList &columns);

    QString m_path;
    Format m_format = Format::Missing;
    Problem m_problem = Problem::None;
    QString m_lastError;
    QString m_connectionName;
    std::unique_ptr<AccessReader> m_access;
};
