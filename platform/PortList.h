#pragma once
// The ports the technician can pick from. On Windows these are the COM numbers that exist; on
// other systems the serial devices the platform reports plus every running phone simulator, so
// the simulator can be picked like a box on a cable. Plugging and unplugging are noticed by
// watching the device folders, so nothing is scanned while nothing changes; where the system
// cannot tell (Windows COM ports) a poll does it. While a port is open nothing is watched at all.

#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>
#include <optional>

struct PortEntry
{
    QString portName;    // what to open
    QString displayText; // what the port list shows
    QString numberText;  // the COM number on Windows (for the messages); the device name elsewhere
    QString description; // what the device says it is (USB vendor/product, simulated model)
    QString serialNumber; // the USB serial number, when the device has one

    friend bool operator==(const PortEntry &, const PortEntry &) = default;
};

class PortList : public QObject
{
    Q_OBJECT
public:
    static constexpr int PollIntervalMs = 2000; // only where no folder can be watched
    // A plugged box makes several entries appear in a burst; one scan after it settles, and
    // never more than one per MinGapMs however busy the folders are.
    static constexpr int SettleMs = 250;
    static constexpr int MinGapMs = 1000;

    explicit PortList(QObject *parent = nullptr);
    // Simulators registered in `simulatorFolder` instead of the usual one.
    explicit PortList(const QString &simulatorFolder, QObject *parent = nullptr);

    // On while no port is open: a change of the devices rescans the list. Off while connected:
    // the open port is not chosen from the list, so nothing is watched or scanned. Turning it
    // back on scans at once, for what changed meanwhile.
    void setWatching(bool on);
    bool watching() const { return m_watching; }
    // Scans of the platform's serial devices since the list was made (the start-up scan
    // included); a change among the simulators only re-reads their registrations.
    int scanCount() const { return m_scans; }

    // The ports as last scanned; the last entry is the one to preselect.
    const QList<PortEntry> &ports() const { return m_ports; }
    // Scans again now; emits changed() when the list differs.
    void refresh();

    // Every port present now, in the order to offer them.
    static QList<PortEntry> scan();
    static QList<PortEntry> scan(const QString &simulatorFolder);
    // Windows: COM1..COM30 that exist, ascending.
    static QList<PortEntry> comPorts();
    // Serial devices reported by the platform, sorted by name.
    static QList<PortEntry> serialDevices();
    // Running simulators registered in `folder` as "<pid>.port" files (line 1 the device path,
    // line 2 a description); dead processes and vanished devices are left out.
    static QList<PortEntry> simulatorPorts(const QString &folder = simulatorFolder());
    static QString simulatorFolder();
    // The text the messages use for a port given by name: "5" for "COM5", "ttyUSB0" for
    // "/dev/ttyUSB0".
    static QString numberTextFor(const QString &portName);

    // Which entry of a fresh list to select when `chosen` was selected before: the same device
    // (same USB serial number; without one, the same description; without either, the same
    // port name), or -1 when it is not there, since another board must never be picked for the
    // technician. With nothing chosen yet, the last entry, as at start (-1 for an empty list).
    static int reselect(const QList<PortEntry> &ports, const std::optional<PortEntry> &chosen);

signals:
    void changed();

private:
    QStringList watchedFolders() const;
    void folderChanged(const QString &folder);
    void update();
    void watchNewFolders();
    QList<PortEntry> devicesNow();

    QString m_simulatorFolder;
    QList<PortEntry> m_ports;
    QList<PortEntry> m_devices; // the platform's part of m_ports, as last scanned
    bool m_devicesChanged = false;
    QElapsedTimer m_sinceUpdate;
    QFileSystemWatcher m_watcher;
    QTimer m_settle;
    QTimer m_poll;
    bool m_watching = false;
    int m_scans = 0;
};
