// The chip readouts: the time to judge one answer with the engine alone, and the time of one
// whole reading through the exchange (send, slices, hand-over, parse, paint) on a screen, with
// a scripted phone so that only our own code is timed and not the 500 ms slice timers.
#include "Acorn.h"
#include "BenchTiming.h"
#include "ChipEngine.h"
#include "ConsoleExchange.h"
#include "Dialogs.h"
#include "SerialPort.h"
#include "Session.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>

namespace {

// Answers every command with the same text, in one slice.
class ScriptedPort : public SerialPort
{
public:
    QByteArray answer;
    QByteArray pending;
    int open(const QString &) override { return NoError; }
    void close() override {}
    bool isOpen() const override { return true; }
    void write(const QByteArray &data) override { pending = data + "\n" + answer + "[0000001A:0000BEEF] :-) "; }
    QByteArray readAll() override { return std::exchange(pending, {}); }
};

class SilentDialogs : public Dialogs
{
public:
    void Mensagem(QWidget *, const QString &, quint8, const QString &) override {}
    void information(QWidget *, const QString &, const QString &) override {}
    void critical(QWidget *, const QString &, const QString &) override {}
    bool question(QWidget *, const QString &, const QString &) override { return false; }
    std::optional<QString> input(QWidget *, const QString &, const QString &, const QString &) override { return {}; }
    std::optional<QString> saveFileName(QWidget *, const QString &, const QString &) override { return {}; }
};

double medianUs(const QList<qint64> &ns)
{
    return medianNs(ns) / 1000.0;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    constexpr int Rounds = 500;

    // The longest chip answer: the IP X PMU answer, where Acorn reads 16 rows.
    QFile file(QStringLiteral(VEKTO_SOURCE_DIR "/sim/answers/ipx/pmuadc-all.txt"));
    if (!file.open(QIODevice::ReadOnly))
        return 2;
    const QByteArray body = file.readAll();
    const QString answer = QStringLiteral("\r\npmuadc --read all\r\r\n") +
                           ConsoleExchange::convertSlice(QString::fromUtf8(body)) +
                           QStringLiteral("[0000001A:0000BEEF] :-) ");

    QList<qint64> judge;
    int failed = 0;
    for (int r = 0; r < Rounds; ++r) {
        QElapsedTimer t;
        t.start();
        const ChipResult result = ChipEngine::CarregaDados(Chip::Acorn, QStringLiteral("IP X"), answer);
        judge << t.nsecsElapsed();
        failed += result.anyFailed();
    }

    QTemporaryDir dir;
    Session session(dir.filePath(QStringLiteral("Config.vkt")));
    session.setModelo(QStringLiteral("IP X"));
    ScriptedPort port;
    port.answer = body;
    ConsoleExchange exchange(session, port);
    SilentDialogs dialogs;
    session.setConnectionFlag(QStringLiteral("0"));
    Acorn screen({session, exchange, dialogs});
    session.setConnectionFlag(QStringLiteral("1"));

    QList<qint64> reading;
    for (int r = 0; r < Rounds / 5; ++r) {
        QElapsedTimer t;
        t.start();
        screen.ExecutaLeitura();
        exchange.onTimer1();
        for (int i = 0; i < 60 && exchange.running(); ++i)
            exchange.onTimer2();
        reading << t.nsecsElapsed();
        failed += screen.result().anyFailed();
    }

    QTextStream out(stdout);
    out << "judge one Acorn answer (16 rows), median of " << Rounds << " (us): " << medianUs(judge) << '\n'
        << "one Acorn reading through the exchange and the screen, median of " << Rounds / 5
        << " (us): " << medianUs(reading) << '\n';
    if (failed)
        out << "UNEXPECTED: " << failed << " readings failed\n";
    return failed ? 1 : 0;
}
