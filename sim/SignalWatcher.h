#pragma once

#include <QObject>

class QSocketNotifier;

// SIGINT and SIGTERM must end the simulator through the event loop, so the registration file
// is removed and the pty closed; the handler only writes a byte that a notifier picks up.

class SignalWatcher : public QObject {
    Q_OBJECT
public:
    explicit SignalWatcher(QObject *parent = nullptr);
    ~SignalWatcher() override;

signals:
    void stopRequested();

private:
    static void handler(int);
    static int s_fds[2];
    QSocketNotifier *m_notifier = nullptr;
};
