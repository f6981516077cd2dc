// Where the references came from, the state a learning can be undone to, and the whole lists a
// reference file is written from and read into.
#include "Database.h"
#include "DatabaseBuilder.h"

#include <QFile>
#include <QRegularExpression>
#include <QVariant>

namespace {

const QString originColumns = QStringLiteral("Kind, Model, Item, Value, Source, Boards, Serials, At, Version, File, FileDate");

RefOrigin readOrigin(const QSqlQuery &query, int first = 0)
{
    RefOrigin o;
    o.kind = query.value(first + 0).toString();
    o.model = query.value(first + 1).toString();
    o.item = query.value(first + 2).toString();
    o.value = query.value(first + 3).toString();
    o.source = query.value(first + 4).toString();
    o.boards = query.value(first + 5).toInt();
    o.serials = query.value(first + 6).toString();
    o.at = query.value(first + 7).toString();
    o.version = query.value(first + 8).toString();
    o.file = query.value(first + 9).toString();
    o.fileDate = query.value(first + 10).toString();
    return o;
}

QVariantList originValues(const RefOrigin &o)
{
    return {o.value, o.source, o.boards, o.serials, o.at, o.version, o.file, o.fileDate};
}

// The table a CREATE TABLE or CREATE INDEX statement of the schema is about.
QString tableOf(const QString &statement)
{
    static const QRegularExpression table(QStringLiteral("^\\s*CREATE\\s+TABLE\\s+(\\w+)"),
                                          QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression index(QStringLiteral("^\\s*CREATE\\s+INDEX\\s+\\w+\\s+ON\\s+(\\w+)"),
                                          QRegularExpression::CaseInsensitiveOption);
    QString text = statement;
    // Drop the comment lines in front of the statement.
    static const QRegularExpression comments(QStringLiteral("^(\\s*--[^\\n]*\\n)+"));
    text.remove(comments);
    if (const auto m = table.match(text); m.hasMatch())
        return m.captured(1);
    if (const auto m = index.match(text); m.hasMatch())
        return m.captured(1);
    return {};
}

} // namespace

bool Database::addMissingTables()
{
    if (!ready())
        return false;
    QFile schema(QStringLiteral(":/schema/schema.sql"));
    if (!schema.open(QIODevice::ReadOnly)) {
        fail(QStringLiteral("The schema is not built into the program"));
        return false;
    }
    const QStringList present =
        firstColumn(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table'"));
    if (!m_lastError.isEmpty())
        return false;
    QStringList missing;
    for (const QString &statement : DatabaseBuilder::splitStatements(QString::fromUtf8(schema.readAll()))) {
        const QString table = tableOf(statement);
        if (!table.isEmpty() && !present.contains(table, Qt::CaseInsensitive))
            missing << statement;
    }
    if (missing.isEmpty())
        return true;
    return inTransaction([&] {
        for (const QString &statement : std::as_const(missing))
            if (!execute(statement))
                return false;
        return true;
    });
}

QList<RefOrigin> Database::refOrigins(const QString &kind, const QString &model)
{
    QList<RefOrigin> origins;
    QSqlQuery query = prepare(QStringLiteral("SELECT %1 FROM RefOrigin WHERE Kind = ? AND Model = ? "
                                             "ORDER BY Item COLLATE NOCASE, rowid").arg(originColumns),
                              {kind, model});
    query.setForwardOnly(true);
    if (!exec(query))
        return origins;
    while (query.next())
        origins.append(readOrigin(query));
    return origins;
}

std::optional<RefOrigin> Database::refOrigin(const QString &kind, const QString &model, const QString &item)
{
    QSqlQuery query = prepare(QStringLiteral("SELECT %1 FROM RefOrigin WHERE Kind = ? AND Model = ? AND Item = ? "
                                             "ORDER BY rowid LIMIT 1").arg(originColumns),
                              {kind, model, item});
    if (!exec(query) || !query.next())
        return std::nullopt;
    return readOrigin(query);
}

bool Database::setRefOrigin(const RefOrigin &origin)
{
    return inTransaction([&] {
        QSqlQuery existing = prepare(QStringLiteral("SELECT count(*) FROM RefOrigin WHERE Kind = ? AND Model = ? AND Item = ?"),
                                     {origin.kind, origin.model, origin.item});
        if (!exec(existing) || !existing.next())
            return false;
        if (existing.value(0).toInt() == 0)
            return execute(QStringLiteral("INSERT INTO RefOrigin (%1) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")
                               .arg(originColumns),
                           QVariantList{origin.kind, origin.model, origin.item} + originValues(origin));
        return execute(QStringLiteral("UPDATE RefOrigin SET Value = ?, Source = ?, Boards = ?, Serials = ?, At = ?, "
                                      "Version = ?, File = ?, FileDate = ? WHERE Kind = ? AND Model = ? AND Item = ?"),
                       originValues(origin) + QVariantList{origin.kind, origin.model, origin.item});
    });
}

bool Database::deleteRefOrigin(const QString &kind, const QString &model, const QString &item)
{
    return inTransaction([&] {
        return execute(QStringLiteral("DELETE FROM RefOrigin WHERE Kind = ? AND Model = ? AND Item = ?"),
                       {kind, model, item});
    });
}

bool Database::setRefv(const MasterKey &row, const QString &refv)
{
    return inTransaction([&] {
        return execute(QStringLiteral("UPDATE Master SET refv = ? WHERE Modelo = ? AND Malha = ?"),
                       {refv, row.modelo, row.malha});
    });
}

bool Database::addMasterRow(const MasterRow &r)
{
    return inTransaction([&] {
        return execute(QStringLiteral("INSERT INTO Master (Modelo, Malha, Ci, TIPO, Orig, Reft, refv, Leitura, Porc, "
                                      "G1, G2, G3) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                       {r.modelo, r.malha, r.ci, r.tipo, r.orig, r.reft, r.refv, r.leitura, r.porc, r.g1, r.g2, r.g3});
    });
}

QList<RefUndoRow> Database::refUndo(const QString &model)
{
    QList<RefUndoRow> rows;
    // The origin columns in RefOrigin's order, Kind taken as "rail" and Item as the net.
    QSqlQuery query = prepare(QStringLiteral("SELECT Malha, refv, HadOrigin, 'rail', Model, Malha, Value, Source, "
                                             "Boards, Serials, At, Version, File, FileDate FROM RefUndo "
                                             "WHERE Model = ? ORDER BY rowid"),
                              {model});
    query.setForwardOnly(true);
    if (!exec(query))
        return rows;
    while (query.next()) {
        RefUndoRow row;
        row.malha = query.value(0).toString();
        row.refv = query.value(1).toString();
        if (query.value(2).toInt() != 0)
            row.origin = readOrigin(query, 3);
        rows.append(row);
    }
    return rows;
}

bool Database::setRefUndo(const QString &model, const QList<RefUndoRow> &rows)
{
    return inTransaction([&] {
        if (!execute(QStringLiteral("DELETE FROM RefUndo WHERE Model = ?"), {model}))
            return false;
        for (const RefUndoRow &row : rows) {
            const RefOrigin o = row.origin.value_or(RefOrigin{});
            if (!execute(QStringLiteral("INSERT INTO RefUndo (Model, Malha, refv, HadOrigin, Value, Source, Boards, "
                                        "Serials, At, Version, File, FileDate) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                         QVariantList{model, row.malha, row.refv, row.origin ? 1 : 0} + originValues(o)))
                return false;
        }
        return true;
    });
}

QStringList Database::i2cEntries(const QString &aparelho)
{
    return firstColumn(QStringLiteral("SELECT i FROM i WHERE Aparelho = ? ORDER BY rowid"), {aparelho});
}

bool Database::replaceI2cEntries(const QString &aparelho, const QStringList &entries)
{
    return inTransaction([&] {
        if (!execute(QStringLiteral("DELETE FROM i WHERE Aparelho = ?"), {aparelho}))
            return false;
        for (const QString &entry : entries)
            if (!execute(QStringLiteral("INSERT INTO i (Aparelho, i) VALUES (?, ?)"), {aparelho, entry}))
                return false;
        return true;
    });
}

QList<DadosRecord> Database::dadosOf(const QString &aparelho)
{
    QList<DadosRecord> rows;
    QSqlQuery query = prepare(QStringLiteral("SELECT Aparelho, Comando, Dados, Info, Info2, Info3 FROM Dados "
                                             "WHERE Aparelho = ? ORDER BY Comando COLLATE NOCASE, rowid"),
                              {aparelho});
    query.setForwardOnly(true);
    if (!exec(query))
        return rows;
    while (query.next())
        rows.append({query.value(0).toString(), query.value(1).toString(), query.value(2).toString(),
                     query.value(3).toString(), query.value(4).toString(), query.value(5).toString()});
    return rows;
}

QStringList Database::knownModels()
{
    return firstColumn(QStringLiteral("SELECT DISTINCT Ref FROM Modelos ORDER BY Ref COLLATE NOCASE"));
}

QStringList Database::railModels()
{
    return firstColumn(QStringLiteral("SELECT DISTINCT Modelo FROM Master ORDER BY Modelo COLLATE NOCASE"));
}
