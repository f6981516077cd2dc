#pragma once

#include "Board.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QSocketNotifier;

// Puts a Board behind a pseudo-terminal so the desktop program talks to it exactly as to a
// phone on a serial cable. It keeps its own handle on the slave side open, so the tool may open
// and close the port as often as it likes without the master seeing a hang-up, and it sends at
// most what 115200 baud would carry.

class PtyServer : public QObject {
    Q_OBJECT
public:
    explicit PtyServer(Board board, QObject *parent = nullptr);
    ~PtyServer() override;

    // Opens the pseudo-terminal; false (with errorString()) when the system refuses.
    bool start();
    QString slavePath() const { return m_slavePath; }
    QString errorString() const { return m_error; }

    static constexpr double kBytesPerMs = 11.52;  // 115200 baud, 10 bits per byte

signals:
    // The board pulled its cable: the pty is gone and the simulator should end.
    void unplugged();

private:
    void onReadable();
    void onPace();
    void closePty();

    Board m_board;
    int m_master = -1;
    int m_slave = -1;
    QString m_slavePath;
    QString m_error;
    QSocketNotifier *m_notifier = nullptr;
    QTimer m_pace;
    QElapsedTimer m_clock;
    double m_credit = 0;
    QByteArray m_unsent;
};
