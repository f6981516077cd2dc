#include "Texts.h"

#include <QFile>
#include <QHash>
#include <QTextStream>

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

// Rows of a tab-separated table; lines starting with "#" and empty lines are comments.
QList<QStringList> readTable(const QString &resource)
{
    QList<QStringList> rows;
    QFile file(resource);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return rows;
    QTextStream in(&file);
    in.setEncoding(QStringConverter::Utf8);
    while (!in.atEnd()) {
        const QString line = in.readLine();
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        QStringList cells = line.split(u'\t');
        for (QString &c : cells)
            c = unescape(c);
        rows.append(cells);
    }
    return rows;
}

struct Tables
{
    QHash<QString, QStringList> dictionary; // key -> pt, en, es
    QStringList dictionaryOrder;
    QHash<QString, QStringList> messages;   // key -> icon, title/text pt, en, es
    QStringList messageOrder;

    Tables()
    {
        for (const QStringList &row : readTable(QStringLiteral(":/texts/dictionary.tsv"))) {
            if (row.size() < 4)
                continue;
            dictionary.insert(row[0], row.mid(1, 3));
            dictionaryOrder.append(row[0]);
        }
        for (const QStringList &row : readTable(QStringLiteral(":/texts/messages.tsv"))) {
            if (row.size() < 8)
                continue;
            messages.insert(row[0], row.mid(1, 7));
            messageOrder.append(row[0]);
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

} // namespace Texts
