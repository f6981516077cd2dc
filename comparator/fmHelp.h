#pragma once
// The commands help window: a console box that shows the phone's own help text, as recorded
// for the command "Help", so the technician can read it beside the console.

#include <QWidget>

class ConsoleTextEdit;

class fmHelp : public QWidget
{
    Q_OBJECT
public:
    explicit fmHelp(QWidget *parent = nullptr);
    ConsoleTextEdit *txtConsole() const { return m_console; }

private:
    ConsoleTextEdit *m_console;
};
