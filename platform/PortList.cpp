#include "PortList.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSerialPortInfo>
#include <algorithm>
#include <functional>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>
#include <signal.h>
#endif

namespace {

// "/dev/ttyUSB0" → "ttyUSB0", "/dev/pts/3" → "pts/3".
QString deviceName(const QString &path)
{
    return path.startsWith(QLatin1String("/dev/")) ? path.mid(5) : path;
}

bool processAlive(qint64 pid)
{
#ifdef Q_OS_WIN
    Q_UNUSED(pid);
    return false;
#else
    // pid 0 and negative pids would address process groups, not one process.
    if (pid <= 0 || pid != qint64(pid_t(pid)))
        return false;
    return ::kill(pid_t(pid), 0) == 0 || errno == EPERM;
#endif
}

} // namespace

PortList::PortList(QObject *parent) : PortList(simulatorFolder(), parent)
{
}

PortList::PortList(const QString &simulatorFolder, QObject *parent)
    : QObject(parent), m_simulatorFolder(simulatorFolder)
{
    m_settle.setSingleShot(true);
    connect(&m_settle, &QTimer::timeout, this, &PortList::update);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &PortList::folderChanged);
    m_poll.setInterval(PollIntervalMs);
    connect(&m_poll, &QTimer::timeout, this, &PortList::refresh);
    // Made here, so simulators started later are seen through the watch.
    QDir().mkpath(m_simulatorFolder);
    setWatching(true); // before the first scan: nothing to catch up with yet
    m_ports = devicesNow() + simulatorPorts(m_simulatorFolder);
    m_sinceUpdate.start();
}

QList<PortEntry> PortList::devicesNow()
{
    ++m_scans;
#ifdef Q_OS_WIN
    m_devices = comPorts();
#else
    m_devices = serialDevices();
#endif
    m_devicesChanged = false;
    return m_devices;
}

void PortList::folderChanged(const QString &folder)
{
    // Simulators come and go through their folder and /dev/pts; only the other folders need the
    // platform's (costly) device scan.
    if (folder != m_simulatorFolder && folder != QLatin1String("/dev/pts"))
        m_devicesChanged = true;
    if (!m_settle.isActive())
        m_settle.start(std::max<qint64>(SettleMs, MinGapMs - m_sinceUpdate.elapsed()));
}

void PortList::watchNewFolders()
{
    // A folder that appeared since (a first USB box makes /dev/serial/by-id) is watched too.
    if (!m_watching || m_poll.isActive())
        return;
    const QStringList folders = watchedFolders();
    for (const QString &folder : folders)
        if (!m_watcher.directories().contains(folder))
            m_watcher.addPath(folder);
}

void PortList::update()
{
    m_sinceUpdate.start();
    QList<PortEntry> now = (m_devicesChanged ? devicesNow() : m_devices) + simulatorPorts(m_simulatorFolder);
    watchNewFolders();
    if (now == m_ports)
        return;
    m_ports = std::move(now);
    emit changed();
}

QStringList PortList::watchedFolders() const
{
    QStringList folders;
#ifndef Q_OS_WIN
    // USB boxes appear in /dev (and by name in /dev/serial/by-id); simulators register in their
    // folder, and a simulator that was killed shows as its terminal vanishing from /dev/pts.
    for (const char *folder : {"/dev", "/dev/serial/by-id", "/dev/pts"})
        if (QFileInfo(QLatin1String(folder)).isDir())
            folders << QLatin1String(folder);
#endif
    if (QFileInfo(m_simulatorFolder).isDir())
        folders << m_simulatorFolder;
    return folders;
}

void PortList::setWatching(bool on)
{
    const bool resuming = on && !m_watching;
    m_watching = on;
    m_settle.stop();
    m_poll.stop();
    if (!m_watcher.directories().isEmpty())
        m_watcher.removePaths(m_watcher.directories());
    if (!on)
        return;
    const QStringList folders = watchedFolders();
    const QStringList failed = folders.isEmpty() ? QStringList() : m_watcher.addPaths(folders);
#ifdef Q_OS_WIN
    // COM ports live in no folder: only a poll sees them come and go.
    m_poll.start();
#else
    if (folders.isEmpty() || failed.size() == folders.size())
        m_poll.start();
#endif
    if (resuming && m_scans > 0)
        refresh();
}

void PortList::refresh()
{
    m_sinceUpdate.start();
    QList<PortEntry> now = devicesNow() + simulatorPorts(m_simulatorFolder);
    watchNewFolders();
    if (now == m_ports)
        return;
    m_ports = std::move(now);
    emit changed();
}

QList<PortEntry> PortList::scan()
{
    return scan(simulatorFolder());
}

QList<PortEntry> PortList::scan(const QString &simulatorFolder)
{
#ifdef Q_OS_WIN
    Q_UNUSED(simulatorFolder);
    return comPorts();
#else
    return serialDevices() + simulatorPorts(simulatorFolder);
#endif
}

QList<PortEntry> PortList::comPorts()
{
    QList<PortEntry> ports;
#ifdef Q_OS_WIN
    for (int n = 1; n <= 30; ++n) {
        const std::wstring name = L"COM" + std::to_wstring(n);
        COMMCONFIG config;
        DWORD size = sizeof config;
        if (GetDefaultCommConfigW(name.c_str(), &config, &size)) {
            const QString number = QString::number(n);
            ports.append({QStringLiteral("COM") + number, number, number, {}, {}});
        }
    }
#endif
    return ports;
}

QList<PortEntry> PortList::serialDevices()
{
    QList<PortEntry> ports;
    for (const QSerialPortInfo &info : QSerialPortInfo::availablePorts()) {
        QStringList about;
        if (!info.description().isEmpty())
            about << info.description();
        if (!info.manufacturer().isEmpty() && info.manufacturer() != info.description())
            about << info.manufacturer();
        if (info.hasVendorIdentifier() && info.hasProductIdentifier())
            about << QStringLiteral("USB %1:%2")
                         .arg(info.vendorIdentifier(), 4, 16, QLatin1Char('0'))
                         .arg(info.productIdentifier(), 4, 16, QLatin1Char('0'));
        const QString path = info.systemLocation();
        const QString description = about.join(QStringLiteral(", "));
        const QString display = description.isEmpty() ? path : path + QStringLiteral(" — ") + description;
        ports.append({path, display, deviceName(path), description, info.serialNumber()});
    }
    std::sort(ports.begin(), ports.end(),
              [](const PortEntry &a, const PortEntry &b) { return a.portName < b.portName; });
    return ports;
}

QString PortList::numberTextFor(const QString &portName)
{
    const QString upper = portName.toUpper();
    if (upper.startsWith(QLatin1String("COM"))) {
        bool numeric = false;
        upper.mid(3).toInt(&numeric);
        if (numeric)
            return portName.mid(3);
    }
    return deviceName(portName);
}

QString PortList::simulatorFolder()
{
    return QDir::tempPath() + QStringLiteral("/vekto-sim");
}

QList<PortEntry> PortList::simulatorPorts(const QString &folder)
{
    QList<PortEntry> ports;
    const QDir dir(folder);
    const QStringList files = dir.entryList({QStringLiteral("*.port")}, QDir::Files, QDir::Name);
    for (const QString &fileName : files) {
        bool numeric = false;
        const qint64 pid = QFileInfo(fileName).completeBaseName().toLongLong(&numeric);
        if (!numeric || !processAlive(pid))
            continue;
        QFile file(dir.filePath(fileName));
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
            continue;
        const QStringList lines = QString::fromUtf8(file.read(4096)).split(u'\n');
        const QString path = lines.value(0).trimmed();
        if (path.isEmpty() || !QFileInfo::exists(path))
            continue;
        QString description = lines.value(1).trimmed();
        if (description.isEmpty())
            description = QStringLiteral("vekto-sim");
        ports.append({path, path + QStringLiteral(" — ") + description, deviceName(path), description, {}});
    }
    return ports;
}

int PortList::reselect(const QList<PortEntry> &ports, const std::optional<PortEntry> &chosen)
{
    if (!chosen)
        return int(ports.size()) - 1;
    const auto indexWhere = [&ports](const std::function<bool(const PortEntry &)> &same) {
        for (int i = 0; i < ports.size(); ++i)
            if (same(ports.at(i)))
                return i;
        return -1;
    };
    if (!chosen->serialNumber.isEmpty())
        return indexWhere([&](const PortEntry &e) { return e.serialNumber == chosen->serialNumber; });
    if (!chosen->description.isEmpty()) {
        // A box that comes back may get another device name; two alike boxes cannot be told
        // apart, so only the same name, or the one box of that description, is the same device.
        const int sameName = indexWhere([&](const PortEntry &e) {
            return e.description == chosen->description && e.portName == chosen->portName;
        });
        if (sameName >= 0)
            return sameName;
        const auto alike = std::count_if(ports.begin(), ports.end(),
                                         [&](const PortEntry &e) { return e.description == chosen->description; });
        if (alike != 1)
            return -1;
        return indexWhere([&](const PortEntry &e) { return e.description == chosen->description; });
    }
    return indexWhere([&](const PortEntry &e) { return e.portName == chosen->portName; });
}
