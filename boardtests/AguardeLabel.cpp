#include "AguardeLabel.h"

#include "Session.h"

#include <QLabel>

AguardeLabel::AguardeLabel(QLabel *label, const Session &session, const QString &disconnectedSuffix, QObject *parent)
    : QObject(parent), m_label(label), m_session(session), m_suffix(disconnectedSuffix)
{
    m_timer.setObjectName(QStringLiteral("TimerAguarde"));
    m_timer.setInterval(TimerAguardeIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &AguardeLabel::onTimerAguarde);
    m_label->setVisible(false);
}

bool AguardeLabel::podeEnviar()
{
    if (m_session.connectedAndIdle())
        return true;
    const bool disconnected = m_session.connectionFlag() == QLatin1String("0");
    m_label->setText(disconnected ? m_session.Traduz(QStringLiteral("Desconectado")) + m_suffix
                                  : m_session.Traduz(QStringLiteral("Aguarde...")));
    m_label->setVisible(true);
    m_timer.start();
    return false;
}

void AguardeLabel::onTimerAguarde()
{
    m_label->setVisible(false);
    m_timer.stop();
}
