// The real serial link on a real pseudo-terminal: the error numbers of a failed open, bytes in
// both directions, and a device that vanishes while open being reported once and then silence.

#include "QtSerialPort.h"

#include <QSerialPort>
#include <QSignalSpy>
#include <QtTest>
#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

namespace {

// One pseudo-terminal pair; the master side plays the phone.
struct Pty
{
    int master = -1;
    int slave = -1;
    QString path;

    Pty()
    {
        char name[256] = {};
        if (openpty(&master, &slave, name, nullptr, nullptr) != 0)
            return;
        termios raw{};
        tcgetattr(master, &raw);
        cfmakeraw(&raw);
        tcsetattr(master, TCSANOW, &raw);
        path = QString::fromLocal8Bit(name);
    }
    ~Pty()
    {
        closeMaster();
        if (slave >= 0)
            ::close(slave);
    }
    void closeMaster()
    {
        if (master >= 0)
            ::close(master);
        master = -1;
    }
    // Everything the link wrote, waiting up to a second for it.
    QByteArray readMaster(qsizetype expected)
    {
        QByteArray got;
        QDeadlineTimer deadline(1000);
        fcntl(master, F_SETFL, fcntl(master, F_GETFL) | O_NONBLOCK);
        while (got.size() < expected && !deadline.hasExpired()) {
            char buf[256];
            const ssize_t n = ::read(master, buf, sizeof buf);
            if (n > 0)
                got.append(buf, n);
            else
                QTest::qWait(10);
        }
        return got;
    }
};

} // namespace

class TestQtSerialPort : public QObject
{
    Q_OBJECT

private slots:
    void openErrorsAreMapped_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("expected");
        QTest::newRow("no such device") << "/dev/vekto-no-such-port" << int(SerialPort::InvalidPort);
        QTest::newRow("nothing selected") << "" << int(SerialPort::InvalidPort);
    }
    void openErrorsAreMapped()
    {
        QFETCH(QString, name);
        QFETCH(int, expected);
        QtSerialPortLink link;
        QCOMPARE(link.open(name), expected);
        QVERIFY(!link.isOpen());
        QVERIFY(!link.lastErrorText().isEmpty());
    }

    void platformErrorsMapToTheThreeNumbers()
    {
        QCOMPARE(QtSerialPortLink::mapOpenError(QSerialPort::DeviceNotFoundError), int(SerialPort::InvalidPort));
        QCOMPARE(QtSerialPortLink::mapOpenError(QSerialPort::PermissionError), int(SerialPort::PortAlreadyOpen));
        QCOMPARE(QtSerialPortLink::mapOpenError(QSerialPort::OpenError), int(SerialPort::PortAlreadyOpen));
        QCOMPARE(QtSerialPortLink::mapOpenError(QSerialPort::UnsupportedOperationError), int(SerialPort::PortNotOpen));
        QCOMPARE(QtSerialPortLink::mapOpenError(QSerialPort::UnknownError), int(SerialPort::PortNotOpen));
    }

    void secondOpenIsRefusedAsInUse()
    {
        Pty pty;
        QVERIFY(!pty.path.isEmpty());
        QtSerialPortLink first;
        QCOMPARE(first.open(pty.path), int(SerialPort::NoError));
        QCOMPARE(first.open(pty.path), int(SerialPort::PortAlreadyOpen));
        QtSerialPortLink second;
        QCOMPARE(second.open(pty.path), int(SerialPort::PortAlreadyOpen));
    }

    void bytesTravelBothWays()
    {
        Pty pty;
        QtSerialPortLink link;
        QCOMPARE(link.open(pty.path), int(SerialPort::NoError));
        QVERIFY(link.readAll().isEmpty()); // nothing there: returns at once
        link.write("syscfg print RMd#\r");
        QCOMPARE(pty.readMaster(18), QByteArray("syscfg print RMd#\r"));
        const QByteArray answer("A1778\n[0000000A:0000BEEF] :-) ");
        QCOMPARE(::write(pty.master, answer.constData(), answer.size()), ssize_t(answer.size()));
        QByteArray got;
        QTRY_VERIFY((got += link.readAll()).size() >= answer.size());
        QCOMPARE(got, answer);
    }

    void vanishedDeviceIsReportedOnceAndKeepsWhatArrived()
    {
        Pty pty;
        QtSerialPortLink link;
        QCOMPARE(link.open(pty.path), int(SerialPort::NoError));
        QSignalSpy lost(&link, &SerialPort::lost);
        QCOMPARE(::write(pty.master, "partial", 7), ssize_t(7));
        QTest::qWait(50);
        // The slave must be the only thing keeping the line alive for the hang-up to show.
        ::close(pty.slave);
        pty.slave = -1;
        pty.closeMaster();
        QTRY_COMPARE(lost.count(), 1);
        QVERIFY(!link.isOpen());
        QCOMPARE(link.readAll(), QByteArray("partial"));
        QTest::qWait(200);
        QCOMPARE(lost.count(), 1);
        link.write("ignored\r"); // writing to a vanished port is silently dropped
        QVERIFY(link.readAll().isEmpty());
    }

    // A phone that talks while no exchange runs: the oldest bytes wait, up to the limit, and the
    // next exchange gets them in order; after that it gets what follows, never the dropped rest.
    void talkWhileIdleKeepsTheOldestUpToTheLimit_data()
    {
        QTest::addColumn<int>("limit");
        QTest::addColumn<int>("talked");
        QTest::newRow("below the limit") << 4000 << 2500;
        QTest::newRow("exactly the limit") << 4000 << 4000;
        QTest::newRow("one byte beyond") << 4000 << 4001;
        QTest::newRow("many times the limit") << 4000 << 40000;
    }
    void talkWhileIdleKeepsTheOldestUpToTheLimit()
    {
        QFETCH(int, limit);
        QFETCH(int, talked);
        Pty pty;
        QtSerialPortLink link;
        link.setUnreadLimit(limit);
        QCOMPARE(link.open(pty.path), int(SerialPort::NoError));
        QByteArray talk;
        for (int line = 0; talk.size() < talked; ++line)
            talk += "chatter " + QByteArray::number(line) + '\n';
        talk.truncate(talked);
        // In pieces the pseudo-terminal takes at once, with the event loop running between them.
        for (qsizetype at = 0; at < talk.size(); at += 1000) {
            const QByteArray piece = talk.mid(at, 1000);
            QCOMPARE(::write(pty.master, piece.constData(), piece.size()), ssize_t(piece.size()));
            QTest::qWait(5);
        }
        QTRY_COMPARE(link.unreadBytes() + link.droppedBytes(), qint64(talked));
        QCOMPARE(link.readAll(), talk.left(limit));
        QCOMPARE(link.droppedBytes(), qint64(std::max(0, talked - limit)));

        const QByteArray next("nand --getinfo\r\n[0000000A:0000BEEF] :-) ");
        QCOMPARE(::write(pty.master, next.constData(), next.size()), ssize_t(next.size()));
        QByteArray got;
        QTRY_VERIFY((got += link.readAll()).size() >= next.size());
        QCOMPARE(got, next);
    }
};

QTEST_MAIN(TestQtSerialPort)
#include "tst_qtserialport.moc"
