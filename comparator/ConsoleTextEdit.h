#pragma once
// A text box for console answers that keeps the text exactly as it came, line ends and all.
// A plain text box turns every CR into a paragraph break and gives back LF only, which would
// change a recorded answer on its first save and make it stop matching the console; this box
// shows the text readably but hands back the original until the user edits it.

#include <QPlainTextEdit>

class ConsoleTextEdit : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(QString rawText READ rawText WRITE setRawText USER true)
public:
    explicit ConsoleTextEdit(QWidget *parent = nullptr);

    // The text as received or as stored; after a user edit, the shown text with CR LF line ends.
    // A reference: a copy kept by a caller would make the next append copy the whole session.
    const QString &rawText() const { return m_raw; }
    void setRawText(const QString &text);
    // Adds at the end without touching the text already shown, so an append costs what the
    // appended text costs however long the console has grown.
    void appendRaw(const QString &text);
    // Changes whenever the text changes other than by appendRaw(): set, cleared or edited.
    quint64 revision() const { return m_revision; }

private:
    static QString displayed(const QString &raw);

    QString m_raw;
    quint64 m_revision = 0;
    bool m_setting = false;
};
