// Commands, recorded answers and masking texts: the command console's tables.
#include "Database.h"

#include <QSqlRecord>
#include <QVariant>

namespace {

ComandoRecord readComando(const QSqlQuery &query)
{
    return {query.value(0).toString(), query.value(1).toString(), query.value(2).toString(),
            query.value(3).toString()};
}

DadosRecord readDados(const QSqlQuery &query)
{
    return {query.value(0).toString(), query.value(1).toString(), query.value(2).toString(),
            query.value(3).toString(), query.value(4).toString(), query.value(5).toString()};
}

const QString comandoColumns = QStringLiteral("Comando, Info, Info2, Info3");
const QString dadosColumns = QStringLiteral("Aparelho, Comando, Dados, Info, Info2, Info3");

} // namespace

// --- Comandos ----------------------------------------------------------------------------

QSqlQuery Database::comandosQuery()
{
    QSqlQuery query = prepare(
        QStringLiteral("SELECT %1 FROM Comandos ORDER BY Comando COLLATE NOCASE").arg(comandoColumns));
    exec(query);
    return query;
}

QList<ComandoRecord> Database::comandos()
{
    QList<ComandoRecord> rows;
    QSqlQuery query = comandosQuery();
    while (query.next())
        rows.append(readComando(query));
    return rows;
}

QSqlQuery Database::comandoQuery(const QString &comando)
{
    QSqlQuery query = prepare(
        QStringLiteral("SELECT %1 FROM Comandos WHERE Comando = ?").arg(comandoColumns), {comando});
    exec(query);
    return query;
}

std::optional<ComandoRecord> Database::comando(const QString &comando)
{
    QSqlQuery query = comandoQuery(comando);
    if (!query.next())
        return std::nullopt;
    return readComando(query);
}

bool Database::comandoExists(const QString &comando)
{
    return this->comando(comando).has_value();
}

bool Database::addComando(const ComandoRecord &record)
{
    return inTransaction([&] {
        return execute(QStringLiteral("INSERT INTO Comandos (%1) VALUES (?, ?, ?, ?)").arg(comandoColumns),
                       {record.comando, record.info, record.info2, record.info3});
    });
}

bool Database::updateComandoInfo(const ComandoRecord &record)
{
    return inTransaction([&] {
        return execute(QStringLiteral("UPDATE Comandos SET Info = ?, Info2 = ?, Info3 = ? WHERE Comando = ?"),
                       {record.info, record.info2, record.info3, record.comando});
    });
}

bool Database::deleteComando(const QString &comando)
{
    return inTransaction([&] {
        return execute(QStringLiteral("DELETE FROM Comandos WHERE Comando = ?"), {comando});
    });
}

// --- Dados -------------------------------------------------------------------------------

QSqlQuery Database::dadosQuery(const QString &aparelho, const QString &comando)
{
    QSqlQuery query = prepare(
        QStringLiteral("SELECT %1 FROM Dados WHERE Aparelho = ? AND Comando = ?").arg(dadosColumns),
        {aparelho, comando});
    exec(query);
    return query;
}

std::optional<DadosRecord> Database::dadosRecord(const QString &aparelho, const QString &comando)
{
    QSqlQuery query = dadosQuery(aparelho, comando);
    if (!query.next())
        return std::nullopt;
    return readDados(query);
}

QList<DadosRecord> Database::allDados()
{
    QList<DadosRecord> rows;
    QSqlQuery query = prepare(QStringLiteral("SELECT %1 FROM Dados").arg(dadosColumns));
    query.setForwardOnly(true);
    if (!exec(query))
        return rows;
    while (query.next())
        rows.append(readDados(query));
    return rows;
}

bool Database::addDados(const DadosRecord &record)
{
    return inTransaction([&] {
        return execute(QStringLiteral("INSERT INTO Dados (%1) VALUES (?, ?, ?, ?, ?, ?)").arg(dadosColumns),
                       {record.aparelho, record.comando, record.dados, record.info, record.info2,
                        record.info3});
    });
}

bool Database::updateDados(const DadosRecord &record)
{
    return inTransaction([&] {
        return execute(QStringLiteral("UPDATE Dados SET Dados = ?, Info = ?, Info2 = ?, Info3 = ? "
                                      "WHERE Aparelho = ? AND Comando = ?"),
                       {record.dados, record.info, record.info2, record.info3, record.aparelho,
                        record.comando});
    });
}

bool Database::saveDados(const DadosRecord &record)
{
    return inTransaction([&] {
        QSqlQuery existing = prepare(QStringLiteral("SELECT count(*) FROM Dados WHERE Aparelho = ? AND Comando = ?"),
                                     {record.aparelho, record.comando});
        if (!exec(existing) || !existing.next())
            return false;
        if (existing.value(0).toInt() == 0)
            return execute(QStringLiteral("INSERT INTO Dados (%1) VALUES (?, ?, ?, ?, ?, ?)").arg(dadosColumns),
                           {record.aparelho, record.comando, record.dados, record.info, record.info2,
                            record.info3});
        return execute(QStringLiteral("UPDATE Dados SET Dados = ?, Info = ?, Info2 = ?, Info3 = ? "
                                      "WHERE Aparelho = ? AND Comando = ?"),
                       {record.dados, record.info, record.info2, record.info3, record.aparelho,
                        record.comando});
    });
}

bool Database::deleteDados(const QString &aparelho, const QString &comando)
{
    return inTransaction([&] {
        return execute(QStringLiteral("DELETE FROM Dados WHERE Aparelho = ? AND Comando = ?"),
                       {aparelho, comando});
    });
}

// --- M -----------------------------------------------------------------------------------

QStringList Database::maskTexts()
{
    return firstColumn(QStringLiteral("SELECT String FROM M ORDER BY String COLLATE NOCASE DESC, String COLLATE BINARY DESC"));
}

bool Database::addMaskText(const QString &text)
{
    return inTransaction([&] {
        return execute(QStringLiteral("INSERT INTO M (String) VALUES (?)"), {text});
    });
}
