#pragma once
// The one serial line to the phone's diagnostics console. The exchange only needs open, close,
// write and "everything received so far"; keeping it this small lets the tests drive the exchange
// with a fake port and the simulator stand in for a phone.

#include <QByteArray>
#include <QObject>
#include <QString>

class SerialPort : public QObject
{
    Q_OBJECT
public:
    // Error numbers of the serial control the rest of the program speaks in.
    enum Error : int {
        NoError = 0,
        InvalidPort = 8002,     // no such device
        PortAlreadyOpen = 8005, // another program holds it
        PortNotOpen = 8012,     // could not be opened for another reason
    };

    using QObject::QObject;
    ~SerialPort() override = default;

    // Opens the named device at 115200,N,8,1; returns NoError or one of the numbers above.
    virtual int open(const QString &name) = 0;
    virtual void close() = 0;
    virtual bool isOpen() const = 0;
    // Errors while writing or reading are swallowed: a lost device reads as silence.
    virtual void write(const QByteArray &data) = 0;
    // Everything received since the last call, removed from the buffer; never blocks.
    virtual QByteArray readAll() = 0;

signals:
    // The device vanished while open (cable pulled). Emitted once; the port is closed by then.
    void lost();
};
