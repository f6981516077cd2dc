// The history of board checks: one row per check, one per judged row, so a board's state before
// and after a repair can be laid side by side. A check is stored whole or not at all; a file made
// before the history gets its tables with the check's own transaction.
#include "Database.h"

#include <QSqlQuery>
#include <QVariant>

std::optional<qint64> Database::storeCheck(const CheckRecord &check)
{
    qint64 id = 0;
    const bool stored = inTransaction([&] {
        if (!addMissingTables())
            return false;
        QSqlQuery head = prepare(QStringLiteral("INSERT INTO Checagem (Data, Modelo, Serie, Versao, Completa) "
                                                "VALUES (?, ?, ?, ?, ?)"),
                                 {check.data, check.modelo, check.serie, check.versao, check.completa ? 1 : 0});
        if (!exec(head))
            return false;
        id = head.lastInsertId().toLongLong();
        int ordem = 0;
        for (const CheckRowRecord &r : check.rows) {
            if (!execute(QStringLiteral("INSERT INTO ChecagemLinha (Checagem, Ordem, Etapa, Nome, Rotulo, Legenda, "
                                        "Desvio, Veredito) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"),
                         {id, ordem++, r.etapa, r.nome, r.rotulo, r.legenda, r.desvio, r.veredito}))
                return false;
        }
        return true;
    });
    if (!stored)
        return std::nullopt;
    return id;
}

QList<CheckRecord> Database::checks(const QString &serie)
{
    QList<CheckRecord> list;
    QSqlQuery q = prepare(QStringLiteral("SELECT Id, Data, Modelo, Serie, Versao, Completa FROM Checagem "
                                         "WHERE Serie = ? ORDER BY Data DESC, Id DESC"),
                          {serie});
    if (!exec(q))
        return list;
    while (q.next())
        list.append({q.value(0).toLongLong(), q.value(1).toString(), q.value(2).toString(), q.value(3).toString(),
                     q.value(4).toString(), q.value(5).toInt() != 0, {}});
    return list;
}

std::optional<CheckRecord> Database::check(qint64 id)
{
    QSqlQuery q = prepare(QStringLiteral("SELECT Id, Data, Modelo, Serie, Versao, Completa FROM Checagem WHERE Id = ?"),
                          {id});
    if (!exec(q) || !q.next())
        return std::nullopt;
    CheckRecord check{q.value(0).toLongLong(), q.value(1).toString(), q.value(2).toString(), q.value(3).toString(),
                      q.value(4).toString(), q.value(5).toInt() != 0, {}};
    QSqlQuery rows = prepare(QStringLiteral("SELECT Etapa, Nome, Rotulo, Legenda, Desvio, Veredito FROM ChecagemLinha "
                                            "WHERE Checagem = ? ORDER BY Ordem"),
                             {id});
    if (!exec(rows))
        return std::nullopt;
    while (rows.next())
        check.rows.append({rows.value(0).toString(), rows.value(1).toString(), rows.value(2).toString(),
                           rows.value(3).toString(), rows.value(4).toString(), rows.value(5).toString()});
    return check;
}
