// The start-up check: tells what is wrong with a database file before anything relies on it,
// reading only. The one exception is the lock probe, a write lock taken and released at once
// with nothing written, because only an attempt reveals another program's lock. Beside it, the
// one upgrade a usable file may need: key columns that ignore letter case.
#include "Database.h"

#include <QAtomicInteger>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QSqlError>
#include <QVariant>
#include <algorithm>

namespace {

class ScopedConnection
{
public:
    ScopedConnection(const QString &path, const QString &options)
    {
        static QAtomicInteger<quint64> counter;
        m_name = QStringLiteral("vekto-check-%1").arg(counter.fetchAndAddRelaxed(1));
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
        db.setDatabaseName(path);
        db.setConnectOptions(options);
        m_opened = db.open();
        if (!m_opened)
            m_error = db.lastError();
    }
    ~ScopedConnection()
    {
        {
            QSqlDatabase db = QSqlDatabase::database(m_name, false);
            db.close();
        }
        QSqlDatabase::removeDatabase(m_name);
    }
    ScopedConnection(const ScopedConnection &) = delete;
    ScopedConnection &operator=(const ScopedConnection &) = delete;

    bool opened() const { return m_opened; }
    QSqlError openError() const { return m_error; }
    QSqlDatabase db() const { return QSqlDatabase::database(m_name, false); }

private:
    QString m_name;
    bool m_opened = false;
    QSqlError m_error;
};

bool isLockError(const QSqlError &error)
{
    // SQLITE_BUSY (5) and SQLITE_LOCKED (6).
    const QString code = error.nativeErrorCode();
    return code == QLatin1String("5") || code == QLatin1String("6")
        || error.text().contains(QLatin1String("locked"), Qt::CaseInsensitive);
}

DatabaseProblem report(DatabaseProblem problem, QString *detail, const QString &text)
{
    if (detail)
        *detail = text;
    return problem;
}

} // namespace

const QList<QPair<QString, QStringList>> &Database::requiredSchema()
{
    static const QList<QPair<QString, QStringList>> schema = {
        {QStringLiteral("Comandos"), {QStringLiteral("Comando"), QStringLiteral("Info"), QStringLiteral("Info2"), QStringLiteral("Info3")}},
        {QStringLiteral("Dados"), {QStringLiteral("Aparelho"), QStringLiteral("Comando"), QStringLiteral("Dados"), QStringLiteral("Info"), QStringLiteral("Info2"), QStringLiteral("Info3")}},
        {QStringLiteral("M"), {QStringLiteral("String")}},
        {QStringLiteral("Master"), {QStringLiteral("Modelo"), QStringLiteral("Malha"), QStringLiteral("Ci"), QStringLiteral("TIPO"), QStringLiteral("Orig"), QStringLiteral("Reft"), QStringLiteral("refv"), QStringLiteral("Leitura"), QStringLiteral("Porc"), QStringLiteral("G1"), QStringLiteral("G2"), QStringLiteral("G3")}},
        {QStringLiteral("Rf"), {QStringLiteral("Modelo"), QStringLiteral("Tipo"), QStringLiteral("Malha"), QStringLiteral("Componente"), QStringLiteral("Referencia")}},
        {QStringLiteral("i"), {QStringLiteral("Aparelho"), QStringLiteral("i")}},
        {QStringLiteral("Modelos"), {QStringLiteral("Modelo"), QStringLiteral("Ref")}},
        {QStringLiteral("Ultimo"), {QStringLiteral("Modelo")}},
        {QStringLiteral("Combos"), {QStringLiteral("Combo1"), QStringLiteral("Combo2"), QStringLiteral("Combo3"), QStringLiteral("Combo4"), QStringLiteral("Combo5"), QStringLiteral("Combo6"), QStringLiteral("Combo7"), QStringLiteral("Combo8"), QStringLiteral("Combo9"), QStringLiteral("Combo10")}},
        {QStringLiteral("Tools"), {QStringLiteral("Idioma"), QStringLiteral("syncbd")}},
    };
    return schema;
}

DatabaseProblem Database::check(const QString &path, QString *detail)
{
    if (detail)
        detail->clear();
    const QFileInfo info(path);
    if (!info.exists())
        return report(DatabaseProblem::Missing, detail, QStringLiteral("file not found"));
    if (!info.isFile())
        return report(DatabaseProblem::Missing, detail, QStringLiteral("not a file"));

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return report(DatabaseProblem::Corrupt, detail, QStringLiteral("cannot be read: ") + file.errorString());
    const QByteArray header = file.read(100);
    file.close();

    // A Jet/ACE file keeps its signature right after a four-byte version stamp.
    const QByteArray signature = header.mid(4, 15);
    if (signature == "Standard Jet DB" || signature == "Standard ACE DB")
        return report(DatabaseProblem::Corrupt, detail, QStringLiteral("Access format"));
    // SQLite treats an empty file as an empty database; anything else needs the SQLite header.
    if (!header.isEmpty() && (header.size() < 100 || !header.startsWith(QByteArray("SQLite format 3\0", 16))))
        return report(DatabaseProblem::Corrupt, detail, QStringLiteral("not an SQLite database"));

    if (!info.isWritable())
        return report(DatabaseProblem::ReadOnly, detail, QStringLiteral("the file is read-only"));
    // Every write needs a journal file beside the database.
    if (!QFileInfo(info.absolutePath()).isWritable())
        return report(DatabaseProblem::ReadOnly, detail, QStringLiteral("the folder is read-only"));

    {
        ScopedConnection reader(path, QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=0"));
        if (!reader.opened()) {
            const QSqlError error = reader.openError();
            return report(isLockError(error) ? DatabaseProblem::Locked : DatabaseProblem::Corrupt, detail,
                          error.text());
        }
        QSqlQuery integrity(reader.db());
        if (!integrity.exec(QStringLiteral("PRAGMA quick_check"))) {
            const QSqlError error = integrity.lastError();
            return report(isLockError(error) ? DatabaseProblem::Locked : DatabaseProblem::Corrupt, detail,
                          error.text());
        }
        if (!integrity.next() || integrity.value(0).toString() != QLatin1String("ok"))
            return report(DatabaseProblem::Corrupt, detail, integrity.value(0).toString());
        integrity.finish();

        for (const auto &[table, columns] : requiredSchema()) {
            QSqlQuery tableInfo(reader.db());
            if (!tableInfo.exec(QStringLiteral("PRAGMA table_info(\"%1\")").arg(table))) {
                const QSqlError error = tableInfo.lastError();
                return report(isLockError(error) ? DatabaseProblem::Locked : DatabaseProblem::Corrupt, detail,
                              error.text());
            }
            QStringList present;
            while (tableInfo.next())
                present << tableInfo.value(1).toString();
            if (present.isEmpty())
                return report(DatabaseProblem::NoSchema, detail, QStringLiteral("table %1 is missing").arg(table));
            for (const QString &column : columns) {
                if (!present.contains(column, Qt::CaseInsensitive))
                    return report(DatabaseProblem::NoSchema, detail,
                                  QStringLiteral("column %1.%2 is missing").arg(table, column));
            }
        }
    }

    ScopedConnection writer(path, QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
    if (!writer.opened())
        return report(DatabaseProblem::Corrupt, detail, writer.openError().text());
    QSqlQuery probe(writer.db());
    if (!probe.exec(QStringLiteral("BEGIN IMMEDIATE"))) {
        const QSqlError error = probe.lastError();
        if (isLockError(error))
            return report(DatabaseProblem::Locked, detail, QStringLiteral("another program is writing to the file"));
        return report(DatabaseProblem::ReadOnly, detail, error.text());
    }
    probe.exec(QStringLiteral("ROLLBACK"));
    return DatabaseProblem::None;
}

const QList<QPair<QString, QStringList>> &Database::caseInsensitiveColumns()
{
    static const QList<QPair<QString, QStringList>> columns = {
        {QStringLiteral("Comandos"), {QStringLiteral("Comando")}},
        {QStringLiteral("Dados"), {QStringLiteral("Aparelho"), QStringLiteral("Comando")}},
        {QStringLiteral("M"), {QStringLiteral("String")}},
        {QStringLiteral("Master"), {QStringLiteral("Modelo"), QStringLiteral("Malha"), QStringLiteral("Ci"), QStringLiteral("Orig")}},
        {QStringLiteral("Rf"), {QStringLiteral("Modelo"), QStringLiteral("Tipo"), QStringLiteral("Malha")}},
        {QStringLiteral("i"), {QStringLiteral("Aparelho"), QStringLiteral("i")}},
        {QStringLiteral("Modelos"), {QStringLiteral("Modelo"), QStringLiteral("Ref")}},
    };
    return columns;
}

namespace {

QString quoted(const QString &name)
{
    return u'"' + QString(name).replace(u'"', QLatin1String("\"\"")) + u'"';
}

// The column definitions of a CREATE TABLE text, by column name (lower case).
QMap<QString, QString> columnDefinitions(const QString &createSql)
{
    QMap<QString, QString> definitions;
    const qsizetype open = createSql.indexOf(u'(');
    const qsizetype close = createSql.lastIndexOf(u')');
    if (open < 0 || close <= open)
        return definitions;
    for (const QString &part : createSql.mid(open + 1, close - open - 1).split(u',')) {
        const QString definition = part.trimmed();
        QString name = definition.section(u' ', 0, 0);
        name.remove(u'"').remove(u'[').remove(u']').remove(u'`');
        definitions.insert(name.toLower(), definition);
    }
    return definitions;
}

bool hasNoCase(const QString &definition)
{
    static const QRegularExpression nocase(QStringLiteral("\\bCOLLATE\\s+\"?NOCASE\"?"),
                                           QRegularExpression::CaseInsensitiveOption);
    return nocase.match(definition).hasMatch();
}

// Rebuilds `table` with `columns` case-insensitive: a copy with the new definitions, the rows
// with their rowids, the old table dropped, the copy renamed and the indexes made again.
bool rebuildTable(QSqlDatabase db, const QString &table, const QStringList &columns, QString *failure)
{
    QSqlQuery q(db);
    auto run = [&](const QString &sql) {
        if (q.exec(sql))
            return true;
        *failure = table + QStringLiteral(": ") + q.lastError().text();
        return false;
    };
    if (!run(QStringLiteral("PRAGMA table_info(%1)").arg(quoted(table))))
        return false;
    QStringList names;
    QStringList definitions;
    while (q.next()) {
        const QString name = q.value(1).toString();
        const QString type = q.value(2).toString();
        QString definition = quoted(name) + (type.isEmpty() ? QString() : u' ' + type);
        if (columns.contains(name, Qt::CaseInsensitive))
            definition += QStringLiteral(" COLLATE NOCASE");
        names << quoted(name);
        definitions << definition;
    }
    QStringList indexes;
    if (!run(QStringLiteral("SELECT sql FROM sqlite_master WHERE type = 'index' AND tbl_name = '%1' "
                            "AND sql IS NOT NULL")
                 .arg(QString(table).replace(u'\'', QLatin1String("''")))))
        return false;
    while (q.next())
        indexes << q.value(0).toString();

    const QString copy = quoted(table + QStringLiteral("_nocase_upgrade"));
    const QString list = names.join(QStringLiteral(", "));
    if (!run(QStringLiteral("CREATE TABLE %1 (%2)").arg(copy, definitions.join(QStringLiteral(", "))))
        || !run(QStringLiteral("INSERT INTO %1 (rowid, %2) SELECT rowid, %2 FROM %3").arg(copy, list, quoted(table)))
        || !run(QStringLiteral("DROP TABLE %1").arg(quoted(table)))
        || !run(QStringLiteral("ALTER TABLE %1 RENAME TO %2").arg(copy, quoted(table))))
        return false;
    for (const QString &index : std::as_const(indexes))
        if (!run(index))
            return false;
    return true;
}

} // namespace

bool Database::upgradeCollation(const QString &path, QString *error)
{
    if (error)
        error->clear();
    if (!QFileInfo(path).isFile()) {
        if (error)
            *error = QStringLiteral("%1: file not found").arg(path);
        return false;
    }
    ScopedConnection connection(path, QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
    if (!connection.opened()) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(path, connection.openError().text());
        return false;
    }
    QSqlDatabase db = connection.db();

    QList<QPair<QString, QStringList>> pending;
    {
        QSqlQuery q(db);
        for (const auto &[table, columns] : caseInsensitiveColumns()) {
            if (!q.exec(QStringLiteral("SELECT sql FROM sqlite_master WHERE type = 'table' AND name = '%1'").arg(table))) {
                if (error)
                    *error = QStringLiteral("%1: %2").arg(path, q.lastError().text());
                return false;
            }
            if (!q.next())
                continue; // a missing table is the start-up check's business, not the upgrade's
            const QMap<QString, QString> definitions = columnDefinitions(q.value(0).toString());
            const bool missing = std::any_of(columns.begin(), columns.end(), [&](const QString &c) {
                return definitions.contains(c.toLower()) && !hasNoCase(definitions.value(c.toLower()));
            });
            if (missing)
                pending.append({table, columns});
        }
    }
    if (pending.isEmpty())
        return true;

    if (!db.transaction()) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(path, db.lastError().text());
        return false;
    }
    QString failure;
    for (const auto &[table, columns] : std::as_const(pending)) {
        if (!rebuildTable(db, table, columns, &failure)) {
            db.rollback();
            if (error)
                *error = QStringLiteral("%1: %2").arg(path, failure);
            return false;
        }
    }
    if (!db.commit()) {
        const QString reason = db.lastError().text();
        db.rollback();
        if (error)
            *error = QStringLiteral("%1: %2").arg(path, reason);
        return false;
    }
    return true;
}
