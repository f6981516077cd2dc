#include "ConsoleTextEdit.h"

#include <QScrollBar>

ConsoleTextEdit::ConsoleTextEdit(QWidget *parent) : QPlainTextEdit(parent)
{
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (!m_setting)
            m_raw = toPlainText().replace(QChar(u'\n'), QStringLiteral("\r\n"));
    });
}

QString ConsoleTextEdit::displayed(const QString &raw)
{
    QString shown = raw;
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    shown.remove(QChar(u'\r')); // the CR of the echoed command line: no empty line for it
    return shown;
}

void ConsoleTextEdit::setRawText(const QString &text)
{
    m_setting = true;
    m_raw = text;
    setPlainText(displayed(text));
    moveCursor(QTextCursor::End);
    // Ending on the prompt line must not scroll the start of every line out of sight.
    horizontalScrollBar()->setValue(0);
    m_setting = false;
}

void ConsoleTextEdit::appendRaw(const QString &text)
{
    setRawText(m_raw + text);
}
