#include "UserFile.h"

#include "AccessReader.h"

#include <QAtomicInteger>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

namespace {

bool isLockError(const QSqlError &error)
{
    const QString code = error.nativeErrorCode();
    return code == QLatin1String("5") || code == QLatin1String("6")
        || error.text().contains(QLatin1String("locked"), Qt::CaseInsensitive);
}

QString quoted(const QString &name)
{
    return u'"' + QString(name).replace(u'"', QLatin1String("\"\"")) + u'"';
}

} // namespace

UserFile::Format UserFile::detect(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return QFileInfo::exists(path) ? Format::Unknown : Format::Missing;
    const QByteArray header = file.read(100);
    if (header.isEmpty())
        return Format::Empty;
    if (header.startsWith(QByteArray("SQLite format 3\0", 16)))
        return Format::SQLite;
    if (AccessReader::looksLikeAccess(header))
        return Format::Access;
    return Format::Unknown;
}

UserFile::UserFile(const QString &path) : m_path(path)
{
    m_format = detect(path);
    switch (m_format) {
    case Format::Missing:
        m_problem = Problem::Missing;
        m_lastError = QStringLiteral("%1: file not found").arg(path);
        return;
    case Format::Empty:
        m_problem = Problem::Empty;
        m_lastError = QStringLiteral("%1: the file is empty").arg(path);
        return;
    case Format::Unknown:
        m_problem = Problem::NotADatabase;
        m_lastError = QStringLiteral("%1: not a database").arg(path);
        return;
    case Format::Access:
        m_access = std::make_unique<AccessReader>(path);
        if (!m_access->isOpen()) {
            m_problem = Problem::Unreadable;
            m_lastError = m_access->lastError();
        }
        return;
    case Format::SQLite:
        break;
    }

    static QAtomicInteger<quint64> counter;
    m_connectionName = QStringLiteral("vekto-user-%1").arg(counter.fetchAndAddRelaxed(1));
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName);
    db.setDatabaseName(path);
    db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=0"));
    if (!db.open()) {
        m_problem = isLockError(db.lastError()) ? Problem::Locked : Problem::Unreadable;
        m_lastError = db.lastError().text();
        return;
    }
    // Opening is lazy in SQLite: read the table list now so a damaged or locked file is told at once.
    QSqlQuery probe(db);
    if (!probe.exec(QStringLiteral("SELECT count(*) FROM sqlite_master"))) {
        m_problem = isLockError(probe.lastError()) ? Problem::Locked : Problem::Unreadable;
        m_lastError = probe.lastError().text();
    }
}

UserFile::~UserFile()
{
    if (m_connectionName.isEmpty())
        return;
    {
        QSqlDatabase db = QSqlDatabase::database(m_connectionName, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(m_connectionName);
}

QStringList UserFile::tables() const
{
    if (m_problem != Problem::None)
        return {};
    if (m_access)
        return m_access->tables();
    return QSqlDatabase::database(m_connectionName, false).tables(QSql::Tables);
}

std::optional<QList<QStringList>> UserFile::rows(const QString &table, const QStringList &columns)
{
    if (m_problem != Problem::None)
        return std::nullopt;
    if (m_access) {
        auto result = m_access->rows(table, columns);
        if (!result)
            m_lastError = m_access->lastError();
        return result;
    }
    return sqliteRows(table, columns);
}

std::optional<QList<QStringList>> UserFile::sqliteRows(const QString &table, const QStringList &columns)
{
    const QSqlDatabase db = QSqlDatabase::database(m_connectionName, false);
    QString found;
    for (const QString &name : db.tables(QSql::Tables))
        if (name.compare(table, Qt::CaseInsensitive) == 0)
            found = name;
    if (found.isEmpty()) {
        m_lastError = QStringLiteral("table %1 is missing").arg(table);
        return std::nullopt;
    }
    const QSqlRecord record = db.record(found);
    QStringList selected;
    for (const QString &column : columns) {
        const int index = record.indexOf(column); // QSqlRecord matches names without regard to case
        if (index < 0) {
            m_lastError = QStringLiteral("column %1.%2 is missing").arg(table, column);
            return std::nullopt;
        }
        selected << quoted(record.fieldName(index));
    }
    QSqlQuery query(db);
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT %1 FROM %2").arg(selected.join(QLatin1String(", ")), quoted(found)))) {
        if (isLockError(query.lastError()))
            m_problem = Problem::Locked;
        m_lastError = query.lastError().text();
        return std::nullopt;
    }
    QList<QStringList> result;
    while (query.next()) {
        QStringList row;
        row.reserve(columns.size());
        for (qsizetype n = 0; n < columns.size(); ++n)
            row << query.value(static_cast<int>(n)).toString();
        result << row;
    }
    if (query.lastError().isValid()) {
        m_lastError = query.lastError().text();
        return std::nullopt;
    }
    m_lastError.clear();
    return result;
}
