#include "TestScreen.h"

#include "ConsoleExchange.h"
#include "Session.h"

TestScreen::TestScreen(const ScreenContext &context, const QString &screenName, QWidget *parent)
    : QWidget(parent), m_context(context), m_screenName(screenName)
{
    setObjectName(screenName);
    m_context.session.setOpen(screenName, true);
}

TestScreen::~TestScreen()
{
    m_context.session.setOpen(m_screenName, false);
}

void TestScreen::enviaComando(const QString &screenId, const QString &command, bool liveEcho)
{
    m_context.session.setScreenId(screenId);
    m_context.exchange.setCommandField(command);
    if (liveEcho)
        m_context.session.setLiveEcho(true);
    m_context.exchange.EnviaComando();
}

QString TestScreen::Traduz(const QString &key) const
{
    return m_context.session.Traduz(key);
}
