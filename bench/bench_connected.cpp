// The desktop program connected to a simulated phone, measured from inside: resident memory
// while a talkative phone ("chatty" profile) sends between exchanges, what the next exchange
// then receives, the CPU the program burns connected and idle and disconnected, the port scans
// in each state, and how long a short exchange lasts on the exchange's timers.
//
//   bench_connected [--chatty-seconds N] [--idle-seconds N]      (defaults 120 and 60)

#include "../tests/e2e/DesktopProgram.h"
#include "../tests/e2e/SimProcess.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <sys/resource.h>
#include <unistd.h>

namespace {

void runFor(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

template<typename Cond> bool waitFor(Cond cond, int timeoutMs)
{
    QElapsedTimer t;
    t.start();
    while (!cond()) {
        if (t.elapsed() > timeoutMs)
            return false;
        runFor(20);
    }
    return true;
}

double residentMB()
{
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = statm.readAll().split(' ');
    return fields.value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

double processCpuMs()
{
    rusage u{};
    getrusage(RUSAGE_SELF, &u);
    return (u.ru_utime.tv_sec + u.ru_stime.tv_sec) * 1e3 + (u.ru_utime.tv_usec + u.ru_stime.tv_usec) / 1e3;
}

bool connectTo(DesktopProgram &p, const QString &port, QTextStream &out)
{
    if (!p.selectPort(port)) {
        out << "the port list does not offer " << port << '\n';
        return false;
    }
    p.connectButton()->click();
    // A talkative phone keeps the first exchange going to its 50-slice cap (25 s).
    if (!waitFor([&] { return p.inicial->status() == QLatin1String("Verde"); }, 60000)) {
        out << "not connected within 60 s\n";
        return false;
    }
    return true;
}

int option(const QStringList &args, const QString &name, int fallback)
{
    const qsizetype at = args.indexOf(name);
    return at >= 0 && at + 1 < args.size() ? args.at(at + 1).toInt() : fallback;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    QTextStream out(stdout);
    const QStringList args = app.arguments();
    const int chattySeconds = option(args, QStringLiteral("--chatty-seconds"), 120);
    const int idleSeconds = option(args, QStringLiteral("--idle-seconds"), 60);
    if (!SimProcess::available()) {
        out << "vekto-sim and Config.vkt must be built first\n";
        return 1;
    }
    QTemporaryDir dir;
    const QString config = dir.filePath(QStringLiteral("Config.vkt"));
    QFile::copy(SimProcess::shippedConfig(), config);
    QFile::setPermissions(config, QFile::ReadOwner | QFile::WriteOwner);

    // --- a talkative phone -------------------------------------------------------------------
    {
        SimProcess phone;
        if (const QString error = phone.start(QStringLiteral("IP 8"), QStringLiteral("chatty")); !error.isEmpty()) {
            out << error << '\n';
            return 1;
        }
        DesktopProgram p(config);
        if (!connectTo(p, phone.port(), out))
            return 1;
        const double atConnect = residentMB();
        out << "chatty phone, connected and idle for " << chattySeconds << " s\n"
            << "  resident memory after connecting: " << atConnect << " MB\n";
        double highest = atConnect;
        for (int s = 10; s <= chattySeconds; s += 10) {
            runFor(10000);
            const double now = residentMB();
            highest = std::max(highest, now);
            if (s % 30 == 0 || s == chattySeconds)
                out << "  after " << s << " s: " << now << " MB (" << (now - atConnect) << " MB more)\n";
        }
        out << "  highest: " << highest << " MB; waiting for the next exchange " << p.port.unreadBytes()
            << " bytes, dropped " << p.port.droppedBytes() << " bytes\n";

        // The next exchange gets what waited, oldest first, and again stops at the cap.
        QElapsedTimer t;
        t.start();
        p.send(QStringLiteral("bl -n"));
        if (!waitFor([&] { return !p.answers.isEmpty(); }, 60000)) {
            out << "the next exchange never ended\n";
            return 1;
        }
        const QString answer = p.answers.last();
        out << "  next exchange: " << answer.size() / 1024 << " K characters in " << t.elapsed() / 1000.0
            << " s, beginning \"" << answer.mid(2, 40).trimmed() << "\"\n";
    }

    // --- a quiet phone: the exchange's timing, idle CPU, port scans --------------------------
    SimProcess phone;
    if (const QString error = phone.start(QStringLiteral("IP 7"), QStringLiteral("good")); !error.isEmpty()) {
        out << error << '\n';
        return 1;
    }
    DesktopProgram p(config);
    if (!connectTo(p, phone.port(), out))
        return 1;

    QList<double> seconds;
    for (int i = 0; i < 10; ++i) {
        QElapsedTimer t;
        t.start();
        p.send(QStringLiteral("syscfg print RMd#"));
        waitFor([&] { return p.flag() == QLatin1String("1"); }, 10000);
        seconds << t.nsecsElapsed() / 1e9;
    }
    std::sort(seconds.begin(), seconds.end());
    out << "short exchange (\"syscfg print RMd#\"), 10 times: " << seconds.first() << " s to " << seconds.last()
        << " s\n";

    const int scansConnected = p.ports.scanCount();
    double cpu = processCpuMs();
    runFor(idleSeconds * 1000);
    out << "connected and idle " << idleSeconds << " s: " << processCpuMs() - cpu << " ms of CPU, "
        << p.ports.scanCount() - scansConnected << " port scans, port list watching: "
        << (p.ports.watching() ? "yes" : "no") << '\n';

    p.connectButton()->click(); // disconnect
    const int scansDisconnected = p.ports.scanCount();
    cpu = processCpuMs();
    runFor(idleSeconds * 1000);
    out << "disconnected and idle " << idleSeconds << " s: " << processCpuMs() - cpu << " ms of CPU, "
        << p.ports.scanCount() - scansDisconnected << " port scans (one per change of the device folders)"
        << ", port list watching: " << (p.ports.watching() ? "yes" : "no") << '\n';

    // A simulator started now appears in the list without a poll.
    SimProcess another;
    QElapsedTimer seen;
    seen.start();
    if (another.start(QStringLiteral("IP X"), QStringLiteral("good")).isEmpty()) {
        const bool listed = waitFor([&] { return p.portCombo()->findData(another.port()) >= 0; }, 5000);
        out << "a new simulator " << (listed ? "listed after " : "NOT listed within ") << seen.elapsed()
            << " ms\n";
    }
    return 0;
}
