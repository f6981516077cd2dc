#include "Database.h"

#include <QAtomicInteger>
#include <QFileInfo>
#include <QSqlError>
#include <QVariant>

namespace {

QString nextConnectionName()
{
    static QAtomicInteger<quint64> counter;
    return QStringLiteral("vekto-db-%1").arg(counter.fetchAndAddRelaxed(1));
}

} // namespace

Database::Database(const QString &path)
    : Database(path, Access::ReadWrite)
{
}

Database::Database(const QString &path, Access access)
    : m_path(path)
    , m_connectionName(nextConnectionName())
{
    // The SQLite driver would create a missing file; a missing database must stay missing.
    if (!QFileInfo(path).isFile()) {
        fail(QStringLiteral("Database file not found: %1").arg(path));
        return;
    }
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName);
    db.setDatabaseName(path);
    // A file locked by another program fails at once instead of freezing the window.
    QString options = QStringLiteral("QSQLITE_BUSY_TIMEOUT=0");
    if (access == Access::ReadOnly)
        options += QStringLiteral(";QSQLITE_OPEN_READONLY");
    db.setConnectOptions(options);
    if (!db.open())
        fail(db.lastError().text());
}

Database::~Database()
{
    {
        QSqlDatabase db = QSqlDatabase::database(m_connectionName, false);
        if (db.isValid())
            db.close();
    }
    if (QSqlDatabase::contains(m_connectionName))
        QSqlDatabase::removeDatabase(m_connectionName);
}

bool Database::isOpen() const
{
    return QSqlDatabase::database(m_connectionName, false).isOpen();
}

QSqlDatabase Database::connection() const
{
    return QSqlDatabase::database(m_connectionName, false);
}

bool Database::ready()
{
    if (isOpen())
        return true;
    if (m_lastError.isEmpty())
        fail(QStringLiteral("Database not open: %1").arg(m_path));
    return false;
}

QSqlQuery Database::prepare(const QString &sql, const QVariantList &values)
{
    QSqlQuery query(connection());
    if (!ready())
        return query;
    if (!query.prepare(sql)) {
        fail(query.lastError().text());
        return query;
    }
    for (const QVariant &value : values) {
        // A null QString would be bound as SQL NULL; text columns hold the empty text instead.
        if (value.metaType().id() == QMetaType::QString && value.toString().isNull())
            query.addBindValue(QString(QLatin1String("")));
        else
            query.addBindValue(value);
    }
    return query;
}

bool Database::exec(QSqlQuery &query)
{
    if (!ready())
        return false;
    // A query that failed to prepare keeps that reason ("no such table: M", "file is not a
    // database"); running it anyway would only say "No query Unable to fetch row".
    if (query.lastError().isValid()) {
        fail(query.lastError().text());
        return false;
    }
    if (!query.exec()) {
        const QSqlError error = query.lastError();
        if (error.isValid() && !error.text().trimmed().isEmpty())
            fail(error.text());
        else if (m_lastError.isEmpty())
            fail(QStringLiteral("Query failed"));
        return false;
    }
    m_lastError.clear();
    return true;
}

bool Database::execute(const QString &sql, const QVariantList &values)
{
    if (!ready())
        return false;
    QSqlQuery query = prepare(sql, values);
    return exec(query);
}

bool Database::inTransaction(const std::function<bool()> &work)
{
    if (!ready())
        return false;
    if (m_transactionDepth > 0) {
        // Inside an outer transaction: a failure here makes the outer one roll back.
        ++m_transactionDepth;
        const bool ok = work();
        --m_transactionDepth;
        return ok;
    }
    QSqlDatabase db = connection();
    if (!db.transaction()) {
        fail(db.lastError().text());
        return false;
    }
    ++m_transactionDepth;
    const bool worked = work();
    --m_transactionDepth;
    if (worked && db.commit()) {
        m_lastError.clear();
        ++m_commits;
        return true;
    }
    // Keep the first reason: the rollback's own message would hide it.
    QString reason = m_lastError.isEmpty() ? db.lastError().text() : m_lastError;
    db.rollback();
    if (reason.isEmpty())
        reason = QStringLiteral("The change could not be saved");
    fail(reason);
    return false;
}

quint64 Database::dataVersion()
{
    // SQLite's data_version moves with every commit of another connection, never with this
    // connection's own, so those are counted here.
    bool found = false;
    const QString pragma = firstRowValue(QStringLiteral("PRAGMA data_version"), &found);
    return (pragma.toULongLong() << 32) + m_commits;
}

QString Database::firstRowValue(const QString &sql, bool *found)
{
    *found = false;
    if (!ready())
        return {};
    QSqlQuery query = prepare(sql);
    query.setForwardOnly(true);
    if (!exec(query))
        return {};
    if (!query.next())
        return {};
    *found = true;
    return query.value(0).toString();
}

std::optional<QString> Database::firstRowText(const QString &sql)
{
    bool found = false;
    const QString value = firstRowValue(sql, &found);
    if (!found)
        return std::nullopt;
    return value;
}

QStringList Database::firstColumn(const QString &sql, const QVariantList &values)
{
    QStringList texts;
    QSqlQuery query = prepare(sql, values);
    query.setForwardOnly(true);
    if (!exec(query))
        return texts;
    while (query.next())
        texts.append(query.value(0).toString());
    return texts;
}

bool Database::setSingleRowColumn(const QString &table, const QString &column, const QString &value)
{
    // Settings tables hold one row; a file that lost it gets it back rather than refusing.
    return inTransaction([&] {
        QSqlQuery count = prepare(QStringLiteral("SELECT count(*) FROM %1").arg(table));
        if (!exec(count) || !count.next())
            return false;
        if (count.value(0).toInt() == 0)
            return execute(QStringLiteral("INSERT INTO %1 (%2) VALUES (?)").arg(table, column),
                           {value});
        return execute(QStringLiteral("UPDATE %1 SET %2 = ? WHERE rowid = (SELECT min(rowid) FROM %1)")
                           .arg(table, column),
                       {value});
    });
}

QString Database::escapeLike(const QString &text)
{
    QString escaped;
    escaped.reserve(text.size());
    for (const QChar c : text) {
        if (c == u'\\' || c == u'%' || c == u'_')
            escaped += u'\\';
        escaped += c;
    }
    return escaped;
}
