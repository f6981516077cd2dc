// The simulators a technician can pick: only those whose process still runs and whose device
// still exists, each shown with its description.

#include "PortList.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestPortList : public QObject
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
    void simulatorRegistrations()
    {
        QTemporaryDir folder;
        QVERIFY(folder.isValid());
        // Any existing file stands in for the simulator's pseudo-terminal.
        const QString device = folder.filePath(QStringLiteral("pts-7"));
        writeFile(device, {});
        const QString alive = QString::number(QCoreApplication::applicationPid());
        const qint64 dead = deadPid();
        QVERIFY(dead > 0);

        writeFile(folder.filePath(alive + ".port"), device.toUtf8() + "\nIP 7, good board\n");
        writeFile(folder.filePath(QString::number(dead) + ".port"), device.toUtf8() + "\nIP X\n");
        writeFile(folder.filePath("1.port"), folder.filePath("gone").toUtf8() + "\nIP 8\n"); // pid 1 lives, path missing
        writeFile(folder.filePath("0.port"), device.toUtf8() + "\nprocess group\n");
        writeFile(folder.filePath("-1.port"), device.toUtf8() + "\nevery process\n");
        writeFile(folder.filePath("abc.port"), device.toUtf8() + "\nno pid\n");
        writeFile(folder.filePath(alive + ".txt"), device.toUtf8() + "\nnot a registration\n");

        const QList<PortEntry> ports = PortList::simulatorPorts(folder.path());
        QCOMPARE(ports.size(), 1);
        QCOMPARE(ports[0].portName, device);
        QCOMPARE(ports[0].displayText, device + QStringLiteral(" — IP 7, good board"));
        QVERIFY(!ports[0].numberText.isEmpty());
    }

    void registrationWithoutDescriptionOrPath()
    {
        QTemporaryDir folder;
        const QString device = folder.filePath(QStringLiteral("pts-8"));
        writeFile(device, {});
        const QString alive = QString::number(QCoreApplication::applicationPid());
        writeFile(folder.filePath(alive + ".port"), device.toUtf8());
        QList<PortEntry> ports = PortList::simulatorPorts(folder.path());
        QCOMPARE(ports.size(), 1);
        QCOMPARE(ports[0].displayText, device + QStringLiteral(" — vekto-sim"));

        writeFile(folder.filePath(alive + ".port"), "\n\n");
        QVERIFY(PortList::simulatorPorts(folder.path()).isEmpty());
    }

    void missingFolderListsNothing()
    {
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

    void deviceNamesStripDev()
    {
        QTemporaryDir folder;
        const QString alive = QString::number(QCoreApplication::applicationPid());
        writeFile(folder.filePath(alive + ".port"), "/dev/null\nsim\n");
        const QList<PortEntry> ports = PortList::simulatorPorts(folder.path());
        QCOMPARE(ports.size(), 1);
        QCOMPARE(ports[0].numberText, QStringLiteral("null"));
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

QTEST_MAIN(TestPortList)
#include "tst_portlist.moc"
