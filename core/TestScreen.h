#pragma once
// Base of every test screen that opens inside the main window. It keeps the screen's open flag
// in the session for as long as the screen lives, and gives the screen the two things it needs
// of the main window: sending a command for its screen identifier, and the boxes to talk to the
// user. Screens re-caption themselves through retranslate() when the language changes.

#include <QWidget>

class ConsoleExchange;
class Dialogs;
class Session;

struct ScreenContext
{
    Session &session;
    ConsoleExchange &exchange;
    Dialogs &dialogs;
};

class TestScreen : public QWidget
{
    Q_OBJECT
public:
    TestScreen(const ScreenContext &context, const QString &screenName, QWidget *parent = nullptr);
    ~TestScreen() override;

    QString screenName() const { return m_screenName; }

    // Sets every caption and tooltip from the dictionary in the session language.
    virtual void retranslate() = 0;

protected:
    // Sets the screen identifier and the command field, optionally the live-echo flag, and sends.
    void enviaComando(const QString &screenId, const QString &command, bool liveEcho = false);
    QString Traduz(const QString &key) const;

    Session &session() const { return m_context.session; }
    ConsoleExchange &exchange() const { return m_context.exchange; }
    Dialogs &dialogs() const { return m_context.dialogs; }

private:
    ScreenContext m_context;
    QString m_screenName;
};
