#include "Texts.h"

#include <QFile>
#include <QHash>

namespace {

// One cell may hold several lines, written as a literal "\n" so that a row stays one line.
QString unescape(const QString &cell)
{
    QString out;
    out.reserve(cell.size());
    for (qsizetype i = 0; i < cell.size(); ++i) {
        if (cell[i] == u'\\' && i + 1 < cell.size()) {
            const QChar next = cell[i + 1];
            if (next == u'n') { out += QStringLiteral("\r\n"); ++i; continue; }
            if (next == u't') { out += u'\t'; ++i; continue; }
            if (next == u'\\') { out += u'\\'; ++i; continue; }
        }
        out += cell[i];
    }
    return out;
}

struct Row
{
    int line = 0; // 1-based line of the table, for the problem reports
    QStringList cells;
};

// Rows of a tab-separated table; lines starting with "#" and empty lines are comments.
QList<Row> splitRows(QString contents)
{
    if (contents.startsWith(QChar(0xFEFF)))
        contents.remove(0, 1); // a byte-order mark left by an editor
    QList<Row> rows;
    const QStringList lines = contents.split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QString text = lines[i];
        if (text.endsWith(u'\r'))
            text.chop(1);
        if (text.isEmpty() || text.startsWith(u'#'))
            continue;
        Row row{int(i + 1), text.split(u'\t')};
        for (QString &c : row.cells)
            c = unescape(c);
        rows.append(row);
    }
    return rows;
}

// Fills `into` and `order` from one table; a short row is skipped, a long one keeps its first
// cells, and both are reported, as are empty keys and a key listed twice (the first row stays).
void loadRows(const QString &name, const QString &contents, qsizetype cells, QHash<QString, QStringList> &into,
              QStringList &order, QStringList &problems)
{
    for (const Row &row : splitRows(contents)) {
        const QString where = QStringLiteral("%1 line %2").arg(name).arg(row.line);
        if (row.cells.size() != cells)
            problems << QStringLiteral("%1: %2 cells instead of %3").arg(where).arg(row.cells.size()).arg(cells);
        if (row.cells.size() < cells)
            continue;
        const QString &key = row.cells[0];
        if (key.isEmpty()) {
            problems << where + QStringLiteral(": empty key");
            continue;
        }
        if (into.contains(key)) {
            problems << QStringLiteral("%1: key \"%2\" is listed twice").arg(where, key);
            continue;
        }
        into.insert(key, row.cells.mid(1, cells - 1));
        order.append(key);
    }
}

QString readResource(const QString &resource, QStringList &problems)
{
    QFile file(resource);
    if (!file.open(QIODevice::ReadOnly)) {
        problems << QStringLiteral("%1: cannot be opened (%2)").arg(resource, file.errorString());
        return {};
    }
    return QString::fromUtf8(file.readAll());
}

struct Tables
{
    QHash<QString, QStringList> dictionary; // key -> pt, en, es
    QStringList dictionaryOrder;
    QHash<QString, QStringList> messages;   // key -> icon, title/text pt, en, es
    QStringList messageOrder;
    QStringList problems;

    Tables()
    {
        const QString dictionaryFile = QStringLiteral(":/texts/dictionary.tsv");
        const QString messagesFile = QStringLiteral(":/texts/messages.tsv");
        loadRows(dictionaryFile, readResource(dictionaryFile, problems), Texts::kDictionaryCells, dictionary,
                 dictionaryOrder, problems);
        loadRows(messagesFile, readResource(messagesFile, problems), Texts::kMessageCells, messages, messageOrder,
                 problems);
        for (const QString &key : std::as_const(messageOrder)) {
            const QString icon = messages.value(key).value(0).trimmed();
            if (icon != QLatin1String("16") && icon != QLatin1String("64"))
                problems << QStringLiteral("%1: %2 has the icon \"%3\" (16 or 64 expected)").arg(messagesFile, key, icon);
        }
    }
};

const Tables &tables()
{
    static const Tables t; // read once, on first use; the tables never change at run time
    return t;
}

} // namespace

namespace Texts {

QString Traduz(const QString &key, quint8 idioma)
{
    if (idioma < 1 || idioma > 3)
        return {};
    const auto it = tables().dictionary.constFind(key);
    if (it == tables().dictionary.constEnd())
        return {};
    return it->at(idioma - 1);
}

std::optional<Message> Mensagem(const QString &key, quint8 idioma, const QString &porta)
{
    if (idioma < 1 || idioma > 3)
        return std::nullopt;
    const auto it = tables().messages.constFind(key);
    if (it == tables().messages.constEnd())
        return std::nullopt;
    const QStringList &row = *it;
    Message m;
    m.icon = row[0].trimmed() == QLatin1String("16") ? Icon::Critical : Icon::Information;
    m.title = row[1 + (idioma - 1) * 2];
    m.text = row[2 + (idioma - 1) * 2];
    m.title.replace(QLatin1String("{porta}"), porta);
    m.text.replace(QLatin1String("{porta}"), porta);
    return m;
}

QStringList dictionaryKeys()
{
    return tables().dictionaryOrder;
}

QStringList messageKeys()
{
    return tables().messageOrder;
}

QStringList tableProblems()
{
    return tables().problems;
}

QStringList checkTable(const QString &contents, qsizetype cells)
{
    QHash<QString, QStringList> rows;
    QStringList order;
    QStringList problems;
    loadRows(QStringLiteral("table"), contents, cells, rows, order, problems);
    return problems;
}

} // namespace Texts
