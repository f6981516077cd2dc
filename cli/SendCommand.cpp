// vekto-cli send: one command and its answer, collected with the same slices and timers as
// the main window, then printed exactly as received (a valid --answer file for judge).
#include "CliCommands.h"
#include "CliOutput.h"

#include "LiveExchange.h"

#include <cstdio>

namespace Cli {

int send(const QStringList &args)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Sends one console command and prints the answer."));
    parser.addOption({QStringLiteral("port"), QStringLiteral("The serial device to use."), QStringLiteral("P")});
    parser.addPositionalArgument(QStringLiteral("text"), QStringLiteral("The command (quote it when it has options)."));
    if (!parse(parser, QStringLiteral("send"), args))
        return 2;
    const QString portName = parser.value(QStringLiteral("port"));
    const QString text = parser.positionalArguments().join(u' ');
    if (portName.isEmpty() || text.isEmpty()) {
        err(QStringLiteral("usage: vekto-cli send --port P TEXT"));
        return 2;
    }

    LiveExchange live(databasePath(parser));
    if (const QString problem = live.open(portName); !problem.isEmpty()) {
        err(problem);
        return 1;
    }
    const std::optional<QString> console = live.exchange(text);
    // Printed exactly as the console received it, so a saved copy judges like the screen.
    if (console) {
        std::fputs(console->toUtf8().constData(), stdout);
        std::fflush(stdout);
    }
    if (!console) {
        err(QStringLiteral("the device on %1 vanished during the answer").arg(portName));
        return 1;
    }
    if (console->trimmed().isEmpty()) {
        err(QStringLiteral("no answer from %1").arg(portName));
        return 1;
    }
    return 0;
}

} // namespace Cli
