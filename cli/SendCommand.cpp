// vekto-cli send: one command and its answer, collected with the same slices and timers as
// the main window, then printed.
#include "CliCommands.h"
#include "CliOutput.h"

#include "ConsoleExchange.h"
#include "QtSerialPort.h"
#include "Session.h"

#include <QCoreApplication>
#include <QTimer>
#include <cstdio>

namespace Cli {

int send(const QStringList &args)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Sends one console command and prints the answer."));
    parser.addOption({QStringLiteral("port"), QStringLiteral("The serial device to use."), QStringLiteral("P")});
    parser.addOption({QStringLiteral("raw"), QStringLiteral("Print the console text with its carriage returns.")});
    parser.addPositionalArgument(QStringLiteral("text"), QStringLiteral("The command (quote it when it has options)."));
    if (!parse(parser, QStringLiteral("send"), args))
        return 2;
    const QString portName = parser.value(QStringLiteral("port"));
    const QString text = parser.positionalArguments().join(u' ');
    if (portName.isEmpty() || text.isEmpty()) {
        err(QStringLiteral("usage: vekto-cli send --port P TEXT"));
        return 2;
    }

    Session session(databasePath(parser));
    QtSerialPortLink port;
    const int error = port.open(portName);
    if (error != SerialPort::NoError) {
        err(QStringLiteral("cannot open port %1: %2 (%3)").arg(portName, openErrorText(error), port.lastErrorText()));
        return 1;
    }

    ConsoleExchange exchange(session, port);
    bool lost = false;
    QObject::connect(&port, &SerialPort::lost, &exchange, [&] { lost = true; });
    QObject::connect(&exchange, &ConsoleExchange::answerFinished, &exchange, [&] {
        // The slice of the finishing tick is appended right after the hand-over; print after it.
        QTimer::singleShot(0, &exchange, [&] { QCoreApplication::exit(lost ? 1 : 0); });
    });
    session.setConnectionFlag(QStringLiteral("1"));
    exchange.setCommandField(text);
    exchange.EnviaComando();
    const int code = QCoreApplication::exec();

    QString console = exchange.console();
    if (!parser.isSet(QStringLiteral("raw")))
        console.remove(u'\r');
    std::fputs(console.toUtf8().constData(), stdout);
    if (!console.endsWith(u'\n'))
        std::fputs("\n", stdout);
    std::fflush(stdout);
    if (lost)
        err(QStringLiteral("the device on %1 vanished during the answer").arg(portName));
    port.close();
    return code;
}

} // namespace Cli
