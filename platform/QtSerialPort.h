#pragma once
// The serial line on a real device (a USB box, a cable or a simulator's pseudo-terminal) through
// QSerialPort. Its job beyond plain I/O is to turn the platform's errors into the three numbers
// the connection speaks, and to report a vanished device exactly once and go quiet, so a pulled
// cable never turns into a storm of errors or a busy loop.

#include "SerialPort.h"

class QSerialPort;

class QtSerialPortLink : public SerialPort
{
    Q_OBJECT
public:
    // At most this much received text waits for the next exchange: the longest answer one
    // exchange takes in (the first look and 50 slices of 500 ms at 115200 baud, 51 × 5,760
    // bytes). A phone that talks while nobody asks fills it, and what arrives beyond it is
    // dropped, as a full receive buffer of a serial box drops it: the next exchange still gets
    // the oldest waiting bytes, in order, and memory stays flat however long the phone talks.
    static constexpr qsizetype DefaultUnreadLimit = 51 * 5760;

    explicit QtSerialPortLink(QObject *parent = nullptr);
    ~QtSerialPortLink() override;

    int open(const QString &name) override;
    void close() override;
    bool isOpen() const override;
    void write(const QByteArray &data) override;
    QByteArray readAll() override;

    void setUnreadLimit(qsizetype bytes) { m_unreadLimit = bytes; }
    qsizetype unreadBytes() const { return m_pending.size(); }
    // Bytes dropped because the unread buffer was full, since the port was opened.
    qint64 droppedBytes() const { return m_dropped; }

    // The platform's reason for the last failed open, for messages that name it.
    QString lastErrorText() const { return m_lastErrorText; }

    // The number an open failure of the platform (a QSerialPort::SerialPortError) stands for.
    static int mapOpenError(int serialPortError);

private:
    void onError(int serialPortError);
    // Moves what the port received into the unread buffer, up to its limit.
    void take();

    QSerialPort *m_port; // a child: callers never see QSerialPort
    QByteArray m_pending; // received, not yet handed out by readAll()
    qsizetype m_unreadLimit = DefaultUnreadLimit;
    qint64 m_dropped = 0;
    QString m_lastErrorText;
    bool m_lostReported = false;
};
