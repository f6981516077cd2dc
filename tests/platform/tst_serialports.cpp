// The real serial link on a real pseudo-terminal: the error numbers of a failed open, bytes in
// both directions, and a device that vanishes while open being reported once and then silence.
// Then the port list: the simulators a technician can pick (only those whose process still runs
// and whose device still exists, each shown with its description) and the choice after a pull.

#include "PortList.h"
#include "QtSerialPort.h"

#include <QProcess>
#include <QSerialPort>
#include <QSignalSpy>
#include <QTemporaryDir>
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

class TestSerialPorts : public QObject
{
    Q_OBJECT

    static void writeFile(const QString &path, const QByteArray &content)
    {
        QFile f(path);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(content);
    }

    // The pid of a process that has already ended.
    static qint64 deadPid()
    {
        QProcess p;
        p.start(QStringLiteral("true"), {});
        if (!p.waitForStarted())
            return -1;
        const qint64 pid = p.processId();
        p.waitForFinished();
        return pid;
    }

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

    // --- the port list ----------------------------------------------------------------------

    // One registration per row; DEVICE stands for an existing file playing the pseudo-terminal.
    void simulatorRegistrations_data()
    {
        QTest::addColumn<QString>("file");       // ALIVE / DEAD: the pid of a running / ended process
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("shown");      // empty: not listed
        QTest::addColumn<QString>("number");     // empty: not checked
        QTest::newRow("running simulator") << "ALIVE.port" << QByteArray("DEVICE\nIP 7, good board\n")
                                           << "DEVICE — IP 7, good board" << "";
        QTest::newRow("no description") << "ALIVE.port" << QByteArray("DEVICE") << "DEVICE — vekto-sim" << "";
        QTest::newRow("device under /dev") << "ALIVE.port" << QByteArray("/dev/null\nsim\n") << "/dev/null — sim" << "null";
        QTest::newRow("no path") << "ALIVE.port" << QByteArray("\n\n") << "" << "";
        QTest::newRow("ended process") << "DEAD.port" << QByteArray("DEVICE\nIP X\n") << "" << "";
        QTest::newRow("device gone") << "1.port" << QByteArray("DEVICE-gone\nIP 8\n") << "" << "";
        QTest::newRow("process group") << "0.port" << QByteArray("DEVICE\nx\n") << "" << "";
        QTest::newRow("every process") << "-1.port" << QByteArray("DEVICE\nx\n") << "" << "";
        QTest::newRow("no pid") << "abc.port" << QByteArray("DEVICE\nx\n") << "" << "";
        QTest::newRow("not a registration") << "ALIVE.txt" << QByteArray("DEVICE\nx\n") << "" << "";
    }
    void simulatorRegistrations()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFETCH(QString, shown);
        QFETCH(QString, number);
        QTemporaryDir folder;
        const QString device = folder.filePath(QStringLiteral("pts-7"));
        writeFile(device, {});
        const qint64 dead = deadPid();
        QVERIFY(dead > 0);
        file.replace(QStringLiteral("ALIVE"), QString::number(QCoreApplication::applicationPid()))
            .replace(QStringLiteral("DEAD"), QString::number(dead));
        writeFile(folder.filePath(file), content.replace("DEVICE", device.toUtf8()));
        shown.replace(QStringLiteral("DEVICE"), device);
        const QList<PortEntry> ports = PortList::simulatorPorts(folder.path());
        QCOMPARE(ports.size(), shown.isEmpty() ? 0 : 1);
        if (!shown.isEmpty()) {
            QCOMPARE(ports[0].displayText, shown);
            QCOMPARE(ports[0].portName, shown.section(QStringLiteral(" — "), 0, 0));
            QVERIFY(!ports[0].numberText.isEmpty());
            if (!number.isEmpty())
                QCOMPARE(ports[0].numberText, number);
        }
        QVERIFY(PortList::simulatorPorts(QStringLiteral("/nonexistent/vekto-sim")).isEmpty());
    }

    void numberTextOfAPortName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("number");
        QTest::newRow("COM5") << "COM5" << "5";
        QTest::newRow("com17") << "com17" << "17";
        QTest::newRow("USB device") << "/dev/ttyUSB0" << "ttyUSB0";
        QTest::newRow("pseudo-terminal") << "/dev/pts/3" << "pts/3";
        QTest::newRow("COM without number") << "COMX" << "COMX";
    }
    void numberTextOfAPortName()
    {
        QFETCH(QString, name);
        QFETCH(QString, number);
        QCOMPARE(PortList::numberTextFor(name), number);
    }

    // While no port is open a new simulator shows up through the folder watch, without a poll;
    // while connected nothing is scanned; reconnecting to the list catches up at once.
    void devicesNoticedOnlyWhileDisconnected()
    {
        QTemporaryDir folder;
        QVERIFY(folder.isValid());
        const QString device = folder.filePath(QStringLiteral("pts-9"));
        writeFile(device, {});
        const QString alive = QString::number(QCoreApplication::applicationPid());
        PortList list(folder.path());
        QSignalSpy changed(&list, &PortList::changed);
        const auto listed = [&] {
            for (const PortEntry &e : list.ports())
                if (e.portName == device)
                    return true;
            return false;
        };
        QVERIFY(!listed());

        writeFile(folder.filePath(alive + ".port"), device.toUtf8() + "\nIP 7\n");
        QTRY_VERIFY(listed());
        QCOMPARE(changed.count(), 1);

        list.setWatching(false);
        const int scans = list.scanCount();
        QFile::remove(folder.filePath(alive + ".port"));
        QTest::qWait(PortList::SettleMs * 3);
        QCOMPARE(list.scanCount(), scans);
        QVERIFY(listed());

        list.setWatching(true);
        QVERIFY(!listed());
        QCOMPARE(changed.count(), 2);
    }

    // After a pulled cable the list is filled again: the same device or none, never another board.
    void reselect_data()
    {
        QTest::addColumn<QList<PortEntry>>("ports");
        QTest::addColumn<bool>("anythingChosen");
        QTest::addColumn<PortEntry>("chosen");
        QTest::addColumn<int>("expected");
        const PortEntry boxA{"/dev/ttyUSB0", "", "ttyUSB0", "FT232R USB UART, USB 0403:6001", "A10K1"};
        const PortEntry boxAMoved{"/dev/ttyUSB1", "", "ttyUSB1", "FT232R USB UART, USB 0403:6001", "A10K1"};
        const PortEntry boxB{"/dev/ttyUSB0", "", "ttyUSB0", "FT232R USB UART, USB 0403:6001", "B77Q2"};
        const PortEntry cable{"/dev/ttyACM0", "", "ttyACM0", "Lightning cable", ""};
        const PortEntry cableMoved{"/dev/ttyACM1", "", "ttyACM1", "Lightning cable", ""};
        const PortEntry otherCable{"/dev/ttyACM2", "", "ttyACM2", "Lightning cable", ""};
        const PortEntry com3{"COM3", "3", "3", "", ""};
        const PortEntry com4{"COM4", "4", "4", "", ""};
        QTest::newRow("nothing chosen: the last") << QList<PortEntry>{cable, boxA} << false << PortEntry{} << 1;
        QTest::newRow("nothing chosen, empty list") << QList<PortEntry>{} << false << PortEntry{} << -1;
        QTest::newRow("same serial under another name") << QList<PortEntry>{cable, boxAMoved} << true << boxA << 1;
        QTest::newRow("another board on the same name") << QList<PortEntry>{cable, boxB} << true << boxA << -1;
        QTest::newRow("gone") << QList<PortEntry>{cable} << true << boxA << -1;
        QTest::newRow("same description, back under another name")
            << QList<PortEntry>{boxB, cableMoved} << true << cable << 1;
        QTest::newRow("two alike, the same name") << QList<PortEntry>{cable, otherCable} << true << cable << 0;
        QTest::newRow("two alike, neither the same name")
            << QList<PortEntry>{cableMoved, otherCable} << true << cable << -1;
        QTest::newRow("COM port by its name") << QList<PortEntry>{com3, com4} << true << com3 << 0;
        QTest::newRow("COM port gone") << QList<PortEntry>{com4} << true << com3 << -1;
    }
    void reselect()
    {
        QFETCH(QList<PortEntry>, ports);
        QFETCH(bool, anythingChosen);
        QFETCH(PortEntry, chosen);
        QFETCH(int, expected);
        QCOMPARE(PortList::reselect(ports, anythingChosen ? std::optional<PortEntry>(chosen) : std::nullopt), expected);
    }
};

QTEST_MAIN(TestSerialPorts)
#include "tst_serialports.moc"
