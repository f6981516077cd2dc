// Rail references (table Master): the grids' filters and orders, one reading written as a whole,
// and the three recorded slots.
#include "Database.h"

#include <QVariant>

namespace {

const QString masterColumns =
    QStringLiteral("Modelo, Malha, Ci, TIPO, Orig, Reft, refv, Leitura, Porc, G1, G2, G3");

MasterRow readMaster(const QSqlQuery &query)
{
    MasterRow row;
    row.modelo = query.value(0).toString();
    row.malha = query.value(1).toString();
    row.ci = query.value(2).toString();
    row.tipo = query.value(3).toInt();
    row.orig = query.value(4).toString();
    row.reft = query.value(5).toString();
    row.refv = query.value(6).toString();
    row.leitura = query.value(7).toString();
    row.porc = query.value(8).toString();
    row.g1 = query.value(9).toString();
    row.g2 = query.value(10).toString();
    row.g3 = query.value(11).toString();
    return row;
}

QString orderClause(MasterFilter::Order order)
{
    switch (order) {
    case MasterFilter::Order::None: return {};
    case MasterFilter::Order::ModeloMalha: return QStringLiteral(" ORDER BY Modelo COLLATE NOCASE, Malha COLLATE NOCASE");
    case MasterFilter::Order::ModeloOrig: return QStringLiteral(" ORDER BY Modelo COLLATE NOCASE, Orig COLLATE NOCASE");
    case MasterFilter::Order::Malha: return QStringLiteral(" ORDER BY Malha COLLATE NOCASE");
    case MasterFilter::Order::Orig: return QStringLiteral(" ORDER BY Orig COLLATE NOCASE");
    case MasterFilter::Order::CiMalha: return QStringLiteral(" ORDER BY Ci COLLATE NOCASE, Malha COLLATE NOCASE");
    case MasterFilter::Order::CiOrig: return QStringLiteral(" ORDER BY Ci COLLATE NOCASE, Orig COLLATE NOCASE");
    case MasterFilter::Order::PorcDesc: return QStringLiteral(" ORDER BY Porc DESC");
    }
    return {};
}

// The WHERE clause of a filter (with its leading blank) and the values it binds, in order.
QString whereClause(const MasterFilter &filter, QVariantList *values)
{
    QStringList conditions;
    if (filter.modelo) {
        conditions << QStringLiteral("Modelo = ?");
        values->append(*filter.modelo);
    }
    if (filter.tipo) {
        conditions << QStringLiteral("TIPO = ?");
        values->append(*filter.tipo);
    }
    if (filter.ciContains) {
        conditions << QStringLiteral("Ci LIKE ? ESCAPE '\\'");
        values->append(QLatin1Char('%') + Database::escapeLike(*filter.ciContains) + QLatin1Char('%'));
    }
    if (filter.withReftOnly)
        conditions << QStringLiteral("Reft <> ''");
    if (conditions.isEmpty())
        return {};
    return QStringLiteral(" WHERE ") + conditions.join(QStringLiteral(" AND "));
}

std::optional<QString> slotColumn(int slot)
{
    if (slot < 1 || slot > 3)
        return std::nullopt;
    return QStringLiteral("G%1").arg(slot);
}

} // namespace

QSqlQuery Database::masterQuery(const MasterFilter &filter)
{
    QVariantList values;
    const QString where = whereClause(filter, &values);
    QSqlQuery query = prepare(
        QStringLiteral("SELECT %1 FROM Master").arg(masterColumns) + where + orderClause(filter.order),
        values);
    exec(query);
    return query;
}

QList<MasterRow> Database::masterRows(const MasterFilter &filter)
{
    QList<MasterRow> rows;
    QSqlQuery query = masterQuery(filter);
    while (query.next())
        rows.append(readMaster(query));
    return rows;
}

MasterFilter Database::nandFilter(const QString &modelo)
{
    MasterFilter filter;
    filter.modelo = modelo;
    filter.ciContains = QStringLiteral("NAND");
    filter.order = MasterFilter::Order::Malha;
    return filter;
}

QList<MasterRow> Database::nandRows(const QString &modelo)
{
    return masterRows(nandFilter(modelo));
}

std::optional<MasterRow> Database::masterRow(const QString &modelo, const QString &malha)
{
    QSqlQuery query = prepare(
        QStringLiteral("SELECT %1 FROM Master WHERE Modelo = ? AND Malha = ?").arg(masterColumns),
        {modelo, malha});
    if (!exec(query) || !query.next())
        return std::nullopt;
    return readMaster(query);
}

bool Database::clearReadings()
{
    return inTransaction([&] {
        return execute(QStringLiteral("UPDATE Master SET Leitura = '', Porc = ''"));
    });
}

bool Database::writeReadings(const QList<RailReading> &readings)
{
    return inTransaction([&] {
        for (const RailReading &reading : readings) {
            if (!execute(QStringLiteral("UPDATE Master SET Leitura = ?, Porc = ? WHERE Modelo = ? AND Malha = ?"),
                         {reading.leitura, reading.porc, reading.modelo, reading.malha}))
                return false;
        }
        return true;
    });
}

bool Database::recordReadings(int slot, const QList<MasterKey> &rows)
{
    return fillSlot(slot, QStringLiteral("Leitura"), rows);
}

bool Database::recordReadings(int slot, const MasterFilter &rows)
{
    return fillSlot(slot, QStringLiteral("Leitura"), rows);
}

bool Database::clearRecordings(int slot, const QList<MasterKey> &rows)
{
    return fillSlot(slot, QStringLiteral("''"), rows);
}

bool Database::clearRecordings(int slot, const MasterFilter &rows)
{
    return fillSlot(slot, QStringLiteral("''"), rows);
}

bool Database::fillSlot(int slot, const QString &source, const QList<MasterKey> &rows)
{
    const auto column = slotColumn(slot);
    if (!column) {
        fail(QStringLiteral("Recorded slot %1 does not exist").arg(slot));
        return false;
    }
    const QString sql = QStringLiteral("UPDATE Master SET %1 = %2 WHERE Modelo = ? AND Malha = ?").arg(*column, source);
    return inTransaction([&] {
        for (const MasterKey &row : rows) {
            if (!execute(sql, {row.modelo, row.malha}))
                return false;
        }
        return true;
    });
}

bool Database::fillSlot(int slot, const QString &source, const MasterFilter &rows)
{
    const auto column = slotColumn(slot);
    if (!column) {
        fail(QStringLiteral("Recorded slot %1 does not exist").arg(slot));
        return false;
    }
    QVariantList values;
    const QString where = whereClause(rows, &values);
    return inTransaction([&] {
        return execute(QStringLiteral("UPDATE Master SET %1 = %2").arg(*column, source) + where, values);
    });
}

bool Database::setRecordings(const MasterKey &row, const QString &g1, const QString &g2, const QString &g3)
{
    return inTransaction([&] {
        return execute(QStringLiteral("UPDATE Master SET G1 = ?, G2 = ?, G3 = ? WHERE Modelo = ? AND Malha = ?"),
                       {g1, g2, g3, row.modelo, row.malha});
    });
}
