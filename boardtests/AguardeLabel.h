#pragma once
// The wait label of the board-test screens: a button pressed while the phone is not connected
// and idle sends nothing and says why for a moment ("Aguarde..." while an exchange runs,
// "Desconectado" when there is no connection), then the label hides itself again.

#include <QObject>
#include <QTimer>

class QLabel;
class Session;

class AguardeLabel : public QObject
{
    Q_OBJECT
public:
    static constexpr int TimerAguardeIntervalMs = 1500;

    // `disconnectedSuffix` follows the translated "Desconectado" ("!" on some screens).
    AguardeLabel(QLabel *label, const Session &session, const QString &disconnectedSuffix = {},
                 QObject *parent = nullptr);

    // True when the phone is connected and idle; otherwise shows the label and returns false.
    bool podeEnviar();
    // One tick of TimerAguarde: hides the label and stops.
    void onTimerAguarde();

    QTimer &timer() { return m_timer; }

private:
    QLabel *m_label;
    const Session &m_session;
    QString m_suffix;
    QTimer m_timer;
};
