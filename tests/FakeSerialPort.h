#pragma once
// A serial line the tests script byte by byte: what each readAll() returns, what open() answers,
// and when the cable is pulled. Writes are recorded so a test can count what went out.

#include "SerialPort.h"

#include <QList>
#include <functional>

class FakeSerialPort : public SerialPort
{
public:
    int openError = NoError;               // what the next open() answers
    QString openedName;                    // the name of the last successful open()
    QList<QByteArray> written;             // every write(), in order
    QByteArray buffer;                     // bytes already received, returned by the next readAll()
    QList<QByteArray> arrivals;            // what arrives before each further readAll(), one per read
    int reads = 0;                         // how many times readAll() was called
    std::function<void(const QByteArray &)> onWrite; // a scripted device answering a command

    using SerialPort::SerialPort;

    int open(const QString &name) override
    {
        if (m_open)
            return PortAlreadyOpen;
        if (openError != NoError)
            return openError;
        m_open = true;
        openedName = name;
        return NoError;
    }
    void close() override { m_open = false; }
    bool isOpen() const override { return m_open; }
    void write(const QByteArray &data) override
    {
        if (!m_open)
            return;
        written.append(data);
        if (onWrite)
            onWrite(data);
    }
    QByteArray readAll() override
    {
        ++reads;
        if (!arrivals.isEmpty())
            buffer += arrivals.takeFirst();
        QByteArray out;
        out.swap(buffer);
        return out;
    }

    // Queues what the device sends, to be read by the following readAll() calls in turn.
    void arrive(const QList<QByteArray> &slices) { arrivals += slices; }

    // The cable is pulled: the port closes itself and says so once.
    void pull()
    {
        m_open = false;
        emit lost();
    }

private:
    bool m_open = false;
};
