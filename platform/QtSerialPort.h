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
    explicit QtSerialPortLink(QObject *parent = nullptr);
    ~QtSerialPortLink() override;

    int open(const QString &name) override;
    void close() override;
    bool isOpen() const override;
    void write(const QByteArray &data) override;
    QByteArray readAll() override;

    // The platform's reason for the last failed open, for messages that name it.
    QString lastErrorText() const { return m_lastErrorText; }

    // The number an open failure of the platform (a QSerialPort::SerialPortError) stands for.
    static int mapOpenError(int serialPortError);

private:
    void onError(int serialPortError);

    QSerialPort *m_port; // a child: callers never see QSerialPort
    QByteArray m_pending; // received before the device vanished, still owed to readAll()
    QString m_lastErrorText;
    bool m_lostReported = false;
};
