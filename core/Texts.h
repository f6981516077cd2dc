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

QStringList dictionaryKeys();
QStringList messageKeys();

} // namespace Texts
