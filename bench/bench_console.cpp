// Receiving answers the way the desktop program does: the main window with its console dock
// and the command console screen open and shown, the exchange ticking slice by slice, the
// event loop run after every tick so the boxes are laid out and painted, and the finished
// answer handed over to the screen, which appends it and runs its automatic comparison.
//
// Two figures: the slices of the longest answer (51 slices of 5.76 KB, what 115200 baud brings
// in 500 ms), where the last one also carries the hand-over of all 294 KB; and a session of
// 100 answers with "Auto" unchecked, where every answer is added to the console's history.
// The slice ticks are called directly instead of waiting 500 ms for each.

#include "AutoComparador.h"
#include "ConnectionController.h"
#include "ConsoleTextEdit.h"
#include "Database.h"
#include "ConsoleExchange.h"
#include "FakeDialogs.h"
#include "FakeSerialPort.h"
#include "FakeShell.h"
#include "Inicial.h"
#include "Master.h"
#include "PortList.h"
#include "Screens.h"
#include "Session.h"
#include "Startup.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>
#include <ctime>

namespace {

constexpr int SliceBytes = 5760;

QByteArray oneSlice(int index)
{
    QByteArray slice;
    int line = 0;
    while (slice.size() < SliceBytes) {
        QByteArray text = QByteArray("slice ") + QByteArray::number(index) + " line " + QByteArray::number(line++)
                          + ": PP_VDD_MAIN  4998.000 mV  ";
        slice += text.leftJustified(59, '.') + '\n';
    }
    return slice.left(SliceBytes);
}

// A short answer as the phone sends it: echo, lines, prompt.
QByteArray shortAnswer(int index)
{
    QByteArray bytes("syscfg list\r\n");
    for (int line = 0; line < 30; ++line)
        bytes += "Key" + QByteArray::number(line) + ": value " + QByteArray::number(index * 31 + line) + " 0x0000BEEF\n";
    return bytes + "[0000001A:0000BEEF] :-) ";
}

struct Cost
{
    double wallUs = 0;
    double cpuUs = 0;
};

double threadCpuUs()
{
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return ts.tv_sec * 1e6 + ts.tv_nsec / 1e3;
}

template<typename Fn> Cost measure(Fn fn)
{
    QElapsedTimer wall;
    const double cpu = threadCpuUs();
    wall.start();
    fn();
    QCoreApplication::processEvents(); // layout, painting, deferred work of the tick
    return {wall.nsecsElapsed() / 1e3, threadCpuUs() - cpu};
}

Cost median(QList<Cost> costs)
{
    Cost m;
    std::sort(costs.begin(), costs.end(), [](const Cost &a, const Cost &b) { return a.wallUs < b.wallUs; });
    m.wallUs = costs.at(costs.size() / 2).wallUs;
    std::sort(costs.begin(), costs.end(), [](const Cost &a, const Cost &b) { return a.cpuUs < b.cpuUs; });
    m.cpuUs = costs.at(costs.size() / 2).cpuUs;
    return m;
}

// The desktop program as main() builds it, on a scripted line, with the console screen open.
struct Program
{
    Session session;
    FakeSerialPort port;
    ConsoleExchange exchange{session, port};
    ConnectionController connection{session, exchange, port};
    PortList ports;
    FakeDialogs dialogs;
    FakeShell shell;
    Inicial inicial{ScreenContext{session, exchange, dialogs}, connection, ports};
    Master *master = nullptr;
    bool firstTick = false;

    explicit Program(const QString &config) : session(config)
    {
        Startup::initSession(session);
        Screens::registerAll(inicial, shell);
        inicial.resize(1280, 860);
        inicial.show();
        port.open(QStringLiteral("bench"));
        session.setConnectionFlag(QStringLiteral("1"));
        master = qobject_cast<Master *>(inicial.openScreen(QStringLiteral("Master")));
        QCoreApplication::processEvents();
    }

    void setAuto(bool on) { master->findChild<QCheckBox *>(QStringLiteral("ckLimpar"))->setChecked(on); }

    // The console screen sends; the timers are stepped here instead of by the clock.
    void send(const QString &command)
    {
        master->findChild<QComboBox *>(QStringLiteral("txtComandos"))->setEditText(command);
        master->send();
        exchange.timer1().stop();
        firstTick = true;
    }
    void tick()
    {
        if (firstTick) {
            firstTick = false;
            exchange.onTimer1();
            exchange.timer2().stop();
        } else {
            exchange.onTimer2();
        }
    }
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    QTextStream out(stdout);

    QTemporaryDir dir;
    const QString config = dir.filePath(QStringLiteral("Config.vkt"));
    if (!QFile::copy(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"), config)) {
        out << "Config.vkt is not built (cmake --build build --target config_vkt)\n";
        return 1;
    }
    QFile::setPermissions(config, QFile::ReadOwner | QFile::WriteOwner);
    Program program(config);

    // --- the longest answer, slice by slice, five times ------------------------------------
    constexpr int Slices = ConsoleExchange::MaxSlices + 1;
    constexpr int Runs = 5;
    QList<QList<Cost>> perSlice(Slices);
    program.setAuto(true); // each run replaces the screen's console, as with every long answer
    for (int run = 0; run < Runs; ++run) {
        for (int i = 0; i < Slices; ++i)
            program.port.arrivals.append(oneSlice(i));
        program.send(QStringLiteral("pmuadc --read all"));
        for (int i = 0; i < Slices; ++i)
            perSlice[i].append(measure([&] { program.tick(); }));
        if (program.exchange.running() || program.session.connectionFlag() != QLatin1String("1")) {
            out << "the exchange did not end after " << Slices << " slices\n";
            return 1;
        }
    }
    const Cost second = median(perSlice[1]);
    const Cost before = median(perSlice[Slices - 2]);
    const Cost last = median(perSlice[Slices - 1]);
    out << "longest answer, " << Slices << " slices of " << SliceBytes << " bytes (median of " << Runs << " runs)\n"
        << "  2nd slice:                     wall " << second.wallUs << " us, CPU " << second.cpuUs << " us\n"
        << "  50th slice (no hand-over):     wall " << before.wallUs << " us, CPU " << before.cpuUs << " us, "
        << before.cpuUs / second.cpuUs << " x the 2nd\n"
        << "  last slice, with hand-over:    wall " << last.wallUs << " us, CPU " << last.cpuUs << " us, "
        << last.cpuUs / second.cpuUs << " x the 2nd\n";

    // --- a session of 100 answers with "Auto" unchecked --------------------------------------
    program.setAuto(false);
    program.master->clearConsole();
    constexpr int Answers = 100;
    QList<Cost> finishing;
    for (int a = 0; a < Answers; ++a) {
        program.port.arrivals = {shortAnswer(a)};
        program.send(QStringLiteral("syscfg list"));
        Cost handOver;
        while (program.session.connectionFlag() != QLatin1String("1") || program.exchange.running()) {
            const bool last = program.exchange.sliceCount() > 2;
            const Cost c = measure([&] { program.tick(); });
            if (last)
                handOver = c;
        }
        finishing.append(handOver);
    }
    const Cost first = median(finishing.mid(0, 5));
    const Cost hundredth = median(finishing.mid(Answers - 5, 5));
    const qsizetype console = program.master->findChild<QPlainTextEdit *>(QStringLiteral("txtConsole"))->document()->characterCount();
    out << "session of " << Answers << " answers of " << shortAnswer(0).size() << " bytes, \"Auto\" unchecked ("
        << console / 1024 << " K characters in the console at the end); the answer's last tick with its hand-over:\n"
        << "  answers 1-5 (median):          wall " << first.wallUs << " us, CPU " << first.cpuUs << " us\n"
        << "  answers 96-100 (median):       wall " << hundredth.wallUs << " us, CPU " << hundredth.cpuUs << " us, "
        << hundredth.cpuUs / first.cpuUs << " x the first\n";

    // The 101st answer handed over as before: the whole history set again and masked whole.
    auto *box = program.master->findChild<ConsoleTextEdit *>(QStringLiteral("txtConsole"));
    auto *recorded = program.master->findChild<ConsoleTextEdit *>(QStringLiteral("txtComparador"));
    Database db(config);
    const QStringList masks = db.maskTexts();
    QList<Cost> resets;
    for (int i = 0; i < 5; ++i) {
        const QString answer = QStringLiteral("\r\n") + QString::fromUtf8(shortAnswer(Answers + i));
        resets.append(measure([&] {
            box->setRawText(box->rawText() + QStringLiteral("\r\n") + answer);
            AutoComparador::evaluate(box->rawText(), recorded->rawText(), masks, false);
        }));
    }
    const Cost reset = median(resets);
    out << "  the same hand-over as before (history set again, masks read and applied to all of it):\n"
        << "  answer 101 (median of 5):       wall " << reset.wallUs << " us, CPU " << reset.cpuUs << " us, "
        << reset.cpuUs / hundredth.cpuUs << " x the appending hand-over\n";
    return 0;
}
