// Reference lookups (Rf, i, Modelos) and the one-row settings tables (Ultimo, Combos, Tools).
#include "Database.h"

#include <QVariant>

namespace {

std::optional<QString> comboColumn(int n)
{
    if (n < 1 || n > 10)
        return std::nullopt;
    return QStringLiteral("Combo%1").arg(n);
}

} // namespace

QSqlQuery Database::rfQuery(const QString &modelo, const QString &tipo)
{
    QSqlQuery query = prepare(QStringLiteral("SELECT Modelo, Tipo, Malha, Componente, Referencia FROM Rf "
                                             "WHERE Modelo = ? AND Tipo = ? ORDER BY Modelo COLLATE NOCASE, Malha COLLATE NOCASE"),
                              {modelo, tipo});
    exec(query);
    return query;
}

QList<RfRow> Database::rf(const QString &modelo, const QString &tipo)
{
    QList<RfRow> rows;
    QSqlQuery query = rfQuery(modelo, tipo);
    while (query.next())
        rows.append({query.value(0).toString(), query.value(1).toString(), query.value(2).toString(),
                     query.value(3).toString(), query.value(4).toString()});
    return rows;
}

QStringList Database::i2cTexts(const QString &aparelho, const QString &text)
{
    // Rows come in the order they were stored: the I2C screen lists devices in that order.
    return firstColumn(QStringLiteral("SELECT i FROM i WHERE Aparelho = ? AND i LIKE ? ESCAPE '\\' ORDER BY rowid"),
                       {aparelho, QLatin1Char('%') + escapeLike(text) + QLatin1Char('%')});
}

QStringList Database::i2cTextsStartingWith(const QString &aparelho, const QString &prefix)
{
    return firstColumn(QStringLiteral("SELECT i FROM i WHERE Aparelho = ? AND i LIKE ? ESCAPE '\\' ORDER BY rowid"),
                       {aparelho, escapeLike(prefix) + QLatin1Char('%')});
}

std::optional<QString> Database::modeloRef(const QString &modelNumber)
{
    // The table keys carry a fixed frame around the number the device reports.
    QSqlQuery query = prepare(QStringLiteral("SELECT Ref FROM Modelos WHERE Modelo = ?"),
                              {QStringLiteral("AST") + modelNumber + QStringLiteral("098")});
    query.setForwardOnly(true);
    if (!exec(query) || !query.next())
        return std::nullopt;
    return query.value(0).toString();
}

std::optional<QString> Database::ultimoModelo()
{
    return firstRowText(QStringLiteral("SELECT Modelo FROM Ultimo ORDER BY rowid LIMIT 1"));
}

bool Database::setUltimoModelo(const QString &modelo)
{
    return setSingleRowColumn(QStringLiteral("Ultimo"), QStringLiteral("Modelo"), modelo);
}

std::optional<QString> Database::combo(int n)
{
    const auto column = comboColumn(n);
    if (!column) {
        fail(QStringLiteral("Combo%1 does not exist").arg(n));
        return std::nullopt;
    }
    return firstRowText(QStringLiteral("SELECT %1 FROM Combos ORDER BY rowid LIMIT 1").arg(*column));
}

bool Database::setCombo(int n, const QString &value)
{
    const auto column = comboColumn(n);
    if (!column) {
        fail(QStringLiteral("Combo%1 does not exist").arg(n));
        return false;
    }
    return setSingleRowColumn(QStringLiteral("Combos"), *column, value);
}

std::optional<QStringList> Database::combos()
{
    QSqlQuery query = prepare(QStringLiteral("SELECT Combo1, Combo2, Combo3, Combo4, Combo5, Combo6, Combo7, "
                                             "Combo8, Combo9, Combo10 FROM Combos ORDER BY rowid LIMIT 1"));
    query.setForwardOnly(true);
    if (!exec(query) || !query.next())
        return std::nullopt;
    QStringList values;
    for (int column = 0; column < 10; ++column)
        values.append(query.value(column).toString());
    return values;
}

bool Database::setCombos(const QStringList &values)
{
    if (values.size() != 10) {
        fail(QStringLiteral("Combos takes 10 values, not %1").arg(values.size()));
        return false;
    }
    const QString columns = QStringLiteral("Combo1, Combo2, Combo3, Combo4, Combo5, Combo6, Combo7, Combo8, "
                                           "Combo9, Combo10");
    const QVariantList bound(values.cbegin(), values.cend());
    return inTransaction([&] {
        QSqlQuery count = prepare(QStringLiteral("SELECT count(*) FROM Combos"));
        if (!exec(count) || !count.next())
            return false;
        if (count.value(0).toInt() == 0)
            return execute(QStringLiteral("INSERT INTO Combos (%1) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)").arg(columns),
                           bound);
        return execute(QStringLiteral("UPDATE Combos SET Combo1 = ?, Combo2 = ?, Combo3 = ?, Combo4 = ?, "
                                      "Combo5 = ?, Combo6 = ?, Combo7 = ?, Combo8 = ?, Combo9 = ?, Combo10 = ? "
                                      "WHERE rowid = (SELECT min(rowid) FROM Combos)"),
                       bound);
    });
}

std::optional<quint8> Database::idioma()
{
    const auto value = firstRowText(QStringLiteral("SELECT Idioma FROM Tools ORDER BY rowid LIMIT 1"));
    if (!value)
        return std::nullopt;
    bool ok = false;
    const uint number = value->trimmed().toUInt(&ok);
    if (!ok || number > 255) {
        fail(QStringLiteral("Tools.Idioma is not a language number: \"%1\"").arg(*value));
        return std::nullopt;
    }
    return static_cast<quint8>(number);
}

bool Database::setIdioma(quint8 idioma)
{
    return setSingleRowColumn(QStringLiteral("Tools"), QStringLiteral("Idioma"), QString::number(idioma));
}

std::optional<QString> Database::syncbd()
{
    return firstRowText(QStringLiteral("SELECT syncbd FROM Tools ORDER BY rowid LIMIT 1"));
}

bool Database::setSyncbd(const QString &state)
{
    return setSingleRowColumn(QStringLiteral("Tools"), QStringLiteral("syncbd"), state);
}

const QStringList &Database::toolsTextColumns()
{
    static const QStringList columns = {QStringLiteral("UrlVersao"), QStringLiteral("UrlDownload"),
                                        QStringLiteral("UrlSuporte"), QStringLiteral("UrlSuporte2"),
                                        QStringLiteral("Termos")};
    return columns;
}

bool Database::addMissingToolsColumns()
{
    if (!ready())
        return false;
    QStringList present;
    {
        QSqlQuery info = prepare(QStringLiteral("PRAGMA table_info(Tools)"));
        if (!exec(info))
            return false;
        while (info.next())
            present << info.value(1).toString();
    }
    QStringList missing;
    for (const QString &column : toolsTextColumns())
        if (!present.contains(column, Qt::CaseInsensitive))
            missing << column;
    if (missing.isEmpty())
        return true;
    return inTransaction([&] {
        for (const QString &column : missing)
            if (!execute(QStringLiteral("ALTER TABLE Tools ADD COLUMN %1 TEXT").arg(column)))
                return false;
        return true;
    });
}

std::optional<QString> Database::toolsText(const QString &column)
{
    if (!toolsTextColumns().contains(column)) {
        fail(QStringLiteral("Tools.%1 does not exist").arg(column));
        return std::nullopt;
    }
    bool found = false;
    const QString value = firstRowValue(QStringLiteral("SELECT %1 FROM Tools ORDER BY rowid LIMIT 1").arg(column), &found);
    if (!found && !m_lastError.isEmpty())
        return std::nullopt;
    return value;
}

bool Database::setToolsText(const QString &column, const QString &value)
{
    if (!toolsTextColumns().contains(column)) {
        fail(QStringLiteral("Tools.%1 does not exist").arg(column));
        return false;
    }
    return setSingleRowColumn(QStringLiteral("Tools"), column, value);
}
