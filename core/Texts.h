#pragma once
// The dictionary and the message table of the three interface languages. Every caption is a
// Portuguese key passed through Traduz at display time; the tables themselves are data
// (data/texts) compiled into the program, so a translator edits one file.

#include <QString>
#include <QStringList>
#include <optional>

namespace Texts {

// 1 Portuguese, 2 English, 3 Spanish. Unknown key or language: the empty text, no fallback.
QString Traduz(const QString &key, quint8 idioma);

enum class Icon { Information = 64, Critical = 16 };

struct Message
{
    QString title;
    QString text; // lines joined by "\r\n"
    Icon icon = Icon::Information;
};

// The message box of a "MSG_..." key in one language; `porta` fills the COM port number
// into the texts that name it. Unknown key or language: nothing.
std::optional<Message> Mensagem(const QString &key, quint8 idioma, const QString &porta = {});

// Keys in the order the tables list them.
QStringList dictionaryKeys();
QStringList messageKeys();

// What went wrong while reading the tables: a resource that is not compiled in, a row with the
// wrong number of cells, an empty key, an unknown icon, a key listed twice (the later row would
// silently replace the earlier one). Empty when both tables are sound; the tests insist on it.
QStringList tableProblems();

// The cells of one row: key and the three languages; key, icon and title and text per language.
inline constexpr qsizetype kDictionaryCells = 4;
inline constexpr qsizetype kMessageCells = 8;

// The same checks on the text of an edited table, before it is compiled in.
QStringList checkTable(const QString &contents, qsizetype cells);

} // namespace Texts
