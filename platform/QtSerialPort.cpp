#include "QtSerialPort.h"

#include <QSerialPort>

QtSerialPortLink::QtSerialPortLink(QObject *parent)
    : SerialPort(parent), m_port(new QSerialPort(this))
{
    connect(m_port, &QSerialPort::errorOccurred, this,
            [this](QSerialPort::SerialPortError error) { onError(error); });
}

QtSerialPortLink::~QtSerialPortLink()
{
    // Closing quietly: nobody listens any more.
    m_port->blockSignals(true);
    m_port->close();
}

int QtSerialPortLink::mapOpenError(int serialPortError)
{
    switch (serialPortError) {
    case QSerialPort::NoError:
        return NoError;
    case QSerialPort::DeviceNotFoundError:
        return InvalidPort;
    case QSerialPort::PermissionError: // held by another program (exclusive lock or busy)
    case QSerialPort::OpenError:       // this very object already has it open
        return PortAlreadyOpen;
    default:
        return PortNotOpen;
    }
}

int QtSerialPortLink::open(const QString &name)
{
    m_lastErrorText.clear();
    if (m_port->isOpen()) {
        m_lastErrorText = QStringLiteral("the port is already open");
        return PortAlreadyOpen;
    }
    m_pending.clear();
    m_port->setPortName(name);
    m_port->setBaudRate(QSerialPort::Baud115200);
    m_port->setDataBits(QSerialPort::Data8);
    m_port->setParity(QSerialPort::NoParity);
    m_port->setStopBits(QSerialPort::OneStop);
    m_port->setFlowControl(QSerialPort::NoFlowControl);
    if (name.isEmpty()) {
        m_lastErrorText = QStringLiteral("no port selected");
        return InvalidPort;
    }
    if (!m_port->open(QIODevice::ReadWrite)) {
        const int mapped = mapOpenError(m_port->error());
        m_lastErrorText = m_port->errorString();
        m_port->clearError();
        return mapped == NoError ? PortNotOpen : mapped;
    }
    m_lostReported = false;
    return NoError;
}

void QtSerialPortLink::close()
{
    if (m_port->isOpen())
        m_port->close();
}

bool QtSerialPortLink::isOpen() const
{
    return m_port->isOpen();
}

void QtSerialPortLink::write(const QByteArray &data)
{
    if (m_port->isOpen())
        m_port->write(data);
}

QByteArray QtSerialPortLink::readAll()
{
    QByteArray out;
    out.swap(m_pending);
    if (m_port->isOpen())
        out += m_port->readAll();
    return out;
}

void QtSerialPortLink::onError(int error)
{
    if (error == QSerialPort::NoError || !m_port->isOpen())
        return;
    // A write error reads as silence. A vanished device ends the connection: a pulled USB cable
    // shows as ResourceError, a closed pseudo-terminal as a ReadError that the read notifier
    // would repeat for ever, so both close the port at once.
    if (error != QSerialPort::ResourceError && error != QSerialPort::ReadError)
        return;
    // Keep what had already arrived: the exchange still delivers it.
    m_pending += m_port->readAll();
    m_port->clearError();
    m_port->close();
    if (m_lostReported)
        return;
    m_lostReported = true;
    emit lost();
}
