#include "ConsoleTextEdit.h"

#include <QScrollBar>
#include <QTextCursor>

ConsoleTextEdit::ConsoleTextEdit(QWidget *parent) : QPlainTextEdit(parent)
{
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (!m_setting) {
            m_raw = toPlainText().replace(QChar(u'\n'), QStringLiteral("\r\n"));
            ++m_revision;
        }
    });
}

QString ConsoleTextEdit::displayed(const QString &raw)
{
    // Every CR goes: CR LF shows as one line break and the CR of the echoed command line gets no
    // empty line. Since no CR stays, the shown form of joined texts is the joined shown forms,
    // which is what lets appendRaw() show only the new part.
    QString shown = raw;
    shown.remove(QChar(u'\r'));
    return shown;
}

void ConsoleTextEdit::setRawText(const QString &text)
{
    m_setting = true;
    ++m_revision;
    m_raw = text;
    setPlainText(displayed(text));
    moveCursor(QTextCursor::End);
    // Ending on the prompt line must not scroll the start of every line out of sight.
    horizontalScrollBar()->setValue(0);
    m_setting = false;
}

void ConsoleTextEdit::appendRaw(const QString &text)
{
    if (text.isEmpty())
        return;
    m_setting = true;
    m_raw += text;
    // No undo step for text that came from the device: it would keep a second copy of every
    // answer for the whole session. Switching undo off drops earlier steps, as setting the
    // whole text did.
    const bool undo = isUndoRedoEnabled();
    setUndoRedoEnabled(false);
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(displayed(text));
    setUndoRedoEnabled(undo);
    moveCursor(QTextCursor::End);
    horizontalScrollBar()->setValue(0);
    m_setting = false;
}
