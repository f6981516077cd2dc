#include "AccessMigration.h"

#include "AccessReader.h"
#include "Database.h"
#include "DatabaseBuilder.h"
#include "UserFile.h"

#include <QAtomicInteger>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

namespace AccessMigration {

namespace {

QString quoted(const QString &name)
{
    return u'"' + QString(name).replace(u'"', QLatin1String("\"\"")) + u'"';
}

QString schemaText()
{
    // The same schema the build creates Config.vkt from, compiled in.
    QFile file(QStringLiteral(":/schema/schema.sql"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll());
}

// Copies every table of `access` into the open SQLite `db`: tables of the schema into their own
// columns, any other table into a new table of text columns.
bool copyTables(AccessReader &access, QSqlDatabase &db, Result &result)
{
    const QStringList ours = db.tables(QSql::Tables);
    for (const QString &table : access.tables()) {
        const auto accessColumns = access.columns(table);
        if (!accessColumns) {
            result.error = access.lastError();
            return false;
        }
        QString target;
        for (const QString &name : ours)
            if (name.compare(table, Qt::CaseInsensitive) == 0)
                target = name;
        QStringList from;
        QStringList to;
        if (target.isEmpty()) {
            target = table;
            QStringList definitions;
            for (const QString &column : *accessColumns)
                definitions << quoted(column) + QStringLiteral(" TEXT");
            QSqlQuery create(db);
            if (!create.exec(QStringLiteral("CREATE TABLE %1 (%2)").arg(quoted(table), definitions.join(QLatin1String(", "))))) {
                result.error = create.lastError().text();
                return false;
            }
            from = to = *accessColumns;
        } else {
            const QSqlRecord record = db.record(target);
            for (const QString &column : *accessColumns) {
                const int index = record.indexOf(column);
                if (index >= 0) {
                    from << column;
                    to << record.fieldName(index);
                }
            }
        }
        if (from.isEmpty())
            continue;
        const auto rows = access.rows(table, from);
        if (!rows) {
            result.error = access.lastError();
            return false;
        }
        QStringList names;
        for (const QString &column : to)
            names << quoted(column);
        QSqlQuery insert(db);
        if (!insert.prepare(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                                .arg(quoted(target), names.join(QLatin1String(", ")),
                                     QStringList(to.size(), QStringLiteral("?")).join(QLatin1String(", "))))) {
            result.error = insert.lastError().text();
            return false;
        }
        for (const QStringList &row : *rows) {
            for (qsizetype n = 0; n < row.size(); ++n)
                insert.bindValue(static_cast<int>(n), row.at(n));
            if (!insert.exec()) {
                result.error = insert.lastError().text();
                return false;
            }
            ++result.rows;
        }
        ++result.tables;
    }
    return true;
}

bool buildCopy(AccessReader &access, const QString &target, Result &result)
{
    const QStringList statements = DatabaseBuilder::splitStatements(schemaText());
    if (statements.isEmpty()) {
        result.error = QStringLiteral("the schema is not compiled into the program");
        return false;
    }
    static QAtomicInteger<quint64> counter;
    const QString name = QStringLiteral("vekto-migrate-%1").arg(counter.fetchAndAddRelaxed(1));
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(target);
        if (!db.open() || !db.transaction()) {
            result.error = db.lastError().text();
        } else {
            ok = true;
            for (const QString &statement : statements) {
                QSqlQuery query(db);
                if (!query.exec(statement)) {
                    result.error = query.lastError().text();
                    ok = false;
                    break;
                }
            }
            ok = ok && copyTables(access, db, result);
            if (ok && !db.commit()) {
                result.error = db.lastError().text();
                ok = false;
            }
            if (!ok)
                db.rollback();
        }
        db.close();
    }
    QSqlDatabase::removeDatabase(name);
    return ok;
}

} // namespace

QString keptName(const QString &configPath)
{
    const QDir dir = QFileInfo(configPath).absoluteDir();
    QString candidate = dir.filePath(QStringLiteral("Config-access.mdb"));
    for (int n = 2; QFileInfo::exists(candidate); ++n)
        candidate = dir.filePath(QStringLiteral("Config-access-%1.mdb").arg(n));
    return candidate;
}

Result migrate(const QString &configPath, const QStringList &requiredTables)
{
    Result result;
    if (UserFile::detect(configPath) != UserFile::Format::Access)
        return result;

    AccessReader access(configPath);
    if (!access.isOpen()) {
        result.error = access.lastError();
        return result;
    }
    QStringList required = requiredTables;
    if (required.isEmpty())
        for (const auto &table : Database::requiredSchema())
            required << table.first;
    const QStringList present = access.tables();
    for (const QString &table : required) {
        if (!present.contains(table, Qt::CaseInsensitive)) {
            result.error = QStringLiteral("table %1 is missing").arg(table);
            return result;
        }
    }

    const QString partial = configPath + QStringLiteral(".migrating");
    QFile::remove(partial);
    if (!buildCopy(access, partial, result)) {
        QFile::remove(partial);
        return result;
    }
    // The original moves aside first; should the new file then fail to take its place, the
    // original comes back, so the folder never ends without a Config.vkt.
    const QString kept = keptName(configPath);
    if (!QFile::rename(configPath, kept)) {
        QFile::remove(partial);
        result.error = QStringLiteral("%1 cannot be renamed (is the folder read-only?)").arg(configPath);
        return result;
    }
    if (!QFile::rename(partial, configPath)) {
        QFile::rename(kept, configPath);
        QFile::remove(partial);
        result.error = QStringLiteral("the new %1 cannot be put in place").arg(configPath);
        return result;
    }
    result.migrated = true;
    result.keptAs = kept;
    return result;
}

} // namespace AccessMigration
