// The cost of receiving the largest answer: 50 slices of 5.76 KB (what 115200 baud delivers in
// 500 ms) through the exchange into a console edit that appends each converted slice at its
// end, as the main window does. The last slice must cost about what the first costs: nothing
// may re-copy or re-layout the whole text per slice.

#include "ConsoleExchange.h"
#include "FakeSerialPort.h"
#include "Session.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <benchmark/benchmark.h>

namespace {

constexpr int SliceBytes = 5760;

QByteArray oneSlice(int index)
{
    QByteArray slice;
    int line = 0;
    while (slice.size() < SliceBytes) {
        QByteArray text = QByteArray("slice ") + QByteArray::number(index) + " line "
                          + QByteArray::number(line++) + ": PP_VDD_MAIN  4998.000 mV  ";
        text = text.leftJustified(59, '.') + '\n';
        slice += text;
    }
    return slice.left(SliceBytes);
}

// The console as the main window wires it.
struct Console
{
    Session session{QStringLiteral("unused.vkt")};
    FakeSerialPort port;
    ConsoleExchange exchange{session, port};
    QPlainTextEdit edit;

    Console()
    {
        port.open(QStringLiteral("bench"));
        QObject::connect(&exchange, &ConsoleExchange::consoleCleared, &edit, &QPlainTextEdit::clear);
        QObject::connect(&exchange, &ConsoleExchange::consoleAppended, &edit, [this](const QString &text) {
            QTextCursor cursor(edit.document());
            cursor.movePosition(QTextCursor::End);
            cursor.insertText(text);
        });
        edit.resize(800, 600);
        edit.show();
        for (int i = 0; i < ConsoleExchange::MaxSlices + 1; ++i)
            port.arrive({oneSlice(i)});
        exchange.setCommandField(QStringLiteral("pmuadc --read all"));
        exchange.EnviaComando();
    }
};

void firstSlice(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto console = std::make_unique<Console>();
        state.ResumeTiming();
        console->exchange.onTimer1();
        state.PauseTiming();
        console.reset();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(state.iterations() * SliceBytes);
}

void lastSlice(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto console = std::make_unique<Console>();
        console->exchange.onTimer1();
        while (console->exchange.sliceCount() < ConsoleExchange::MaxSlices)
            console->exchange.onTimer2();
        state.ResumeTiming();
        console->exchange.onTimer2(); // the 50th slice tick: ends the answer and appends
        state.PauseTiming();
        console.reset();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(state.iterations() * SliceBytes);
}

void wholeAnswer(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto console = std::make_unique<Console>();
        state.ResumeTiming();
        console->exchange.onTimer1();
        while (console->exchange.running())
            console->exchange.onTimer2();
        state.PauseTiming();
        if (console->edit.document()->characterCount() < SliceBytes * ConsoleExchange::MaxSlices)
            state.SkipWithError("the console lost text");
        console.reset();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(state.iterations() * SliceBytes * (ConsoleExchange::MaxSlices + 1));
}

} // namespace

BENCHMARK(firstSlice)->Unit(benchmark::kMicrosecond);
BENCHMARK(lastSlice)->Unit(benchmark::kMicrosecond);
BENCHMARK(wholeAnswer)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
