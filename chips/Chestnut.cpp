#include "Chestnut.h"

#include "ConsoleExchange.h"
#include "Dialogs.h"
#include "Session.h"

#include <QHBoxLayout>
#include <QPushButton>

Chestnut::Chestnut(const ScreenContext &context, QWidget *parent) : ChipScreen(context, Chip::Chestnut, parent)
{
    setWindowTitle(QStringLiteral("Chestnut - Pelorin Vekto"));
    m_timer1.setObjectName(QStringLiteral("Timer1"));
    m_timer1.setInterval(Timer1IntervalMs);
    connect(&m_timer1, &QTimer::timeout, this, &Chestnut::onTimer1);
    setUp();
}

bool Chestnut::refuse()
{
    if (!refusesModel())
        return false;
    dialogs().information(this, QStringLiteral("IP X!"), QStringLiteral("NOT FOR X!"));
    return true;
}

void Chestnut::addControls()
{
    m_btTouch = new QPushButton(this);
    m_btTouch->setObjectName(QStringLiteral("btTouch"));
    buttonRow()->insertWidget(2, m_btTouch);
    connect(m_btTouch, &QPushButton::clicked, this, &Chestnut::touch);
}

void Chestnut::retranslateExtra()
{
    m_btTouch->setText(Traduz(m_touchCaption));
}

void Chestnut::touch()
{
    if (!session().connectedAndIdle())
        return;
    QString command;
    if (m_touchCaption != QLatin1String("Touch ON")) {
        m_touchCaption = QStringLiteral("Touch ON");
        command = QStringLiteral("touch --off");
    } else {
        m_touchCaption = QStringLiteral("Touch OFF");
        command = QStringLiteral("touch --on");
    }
    retranslateExtra();
    // The touch answer belongs to no screen: nothing is parsed until the new reading.
    enviaComando(QStringLiteral("0"), command);
    resetScreen();
    m_timer1Ticks = 0;
    m_timer1.start();
}

void Chestnut::onTimer1()
{
    if (session().connectedAndIdle()) {
        m_timer1.stop();
        ExecutaLeitura();
        return;
    }
    if (++m_timer1Ticks >= Timer1TickLimit)
        m_timer1.stop();
}
