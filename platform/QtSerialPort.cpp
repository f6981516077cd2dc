#include "QtSerialPort.h"

#include <QSerialPort>

#include <algorithm>

QtSerialPortLink::QtSerialPortLink(QObject *parent)
    : SerialPort(parent), m_port(new QSerialPort(this))
{
    connect(m_port, &QSerialPort::errorOccurred, this,
            [this](QSerialPort::SerialPortError error) { onError(error); });
    // Taken as it comes rather than at the exchange's slice ticks, so the port's own buffer never
    // grows while the phone talks between exchanges.
    connect(m_port, &QSerialPort::readyRead, this, &QtSerialPortLink::take);
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
    m_dropped = 0;
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

void QtSerialPortLink::take()
{
    if (!m_port->isOpen())
        return;
    const qint64 wanted = std::min<qint64>(m_unreadLimit - m_pending.size(), m_port->bytesAvailable());
    if (wanted > 0)
        m_pending += m_port->read(wanted);
    const qint64 beyond = m_port->bytesAvailable();
    if (beyond > 0)
        m_dropped += m_port->skip(beyond);
}

QByteArray QtSerialPortLink::readAll()
{
    take();
    QByteArray out;
    out.swap(m_pending);
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
    take();
    m_port->clearError();
    m_port->close();
    if (m_lostReported)
        return;
    m_lostReported = true;
    emit lost();
}
