#include "fmHelp.h"

#include "ConsoleTextEdit.h"

#include <QVBoxLayout>

fmHelp::fmHelp(QWidget *parent) : QWidget(parent), m_console(new ConsoleTextEdit(this))
{
    setObjectName(QStringLiteral("fmHelp"));
    m_console->setObjectName(QStringLiteral("txtConsole"));
    m_console->setReadOnly(true);
    m_console->setLineWrapMode(QPlainTextEdit::NoWrap);
    QFont mono(QStringLiteral("Monospace"));
    mono.setStyleHint(QFont::TypeWriter);
    m_console->setFont(mono);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_console);
    resize(640, 480);
}
