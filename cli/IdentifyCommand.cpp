// vekto-cli identify: connects exactly as the main window's connect button does and prints the
// recognised model, or the English text of the message the window would have shown.
#include "CliCommands.h"
#include "CliOutput.h"
#include "ModelLookup.h"

#include "ConnectionController.h"
#include "ConsoleExchange.h"
#include "PortList.h"
#include "QtSerialPort.h"
#include "Session.h"
#include "Texts.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTimer>

namespace Cli {

namespace {

constexpr quint8 English = 2;

// The message box as text: its title, then its lines on one line.
void printMessage(const QString &key, const QString &porta)
{
    const std::optional<Texts::Message> m = Texts::Mensagem(key, English, porta);
    if (!m) {
        out(key);
        return;
    }
    out(QStringLiteral("[") + m->title + QStringLiteral("]"));
    out(QString(m->text).replace(QStringLiteral("\r\n"), QStringLiteral(" ")));
}

} // namespace

int identify(const QStringList &args)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Connects to the phone and prints its model."));
    parser.addOption({QStringLiteral("port"), QStringLiteral("The serial device to use."), QStringLiteral("P")});
    parser.addOption({QStringLiteral("db"), QStringLiteral("The database (default: Config.vkt beside the program)."),
                      QStringLiteral("FILE")});
    if (!parse(parser, QStringLiteral("identify"), args))
        return 2;
    const QString portName = parser.value(QStringLiteral("port"));
    if (portName.isEmpty()) {
        err(QStringLiteral("usage: vekto-cli identify --port P [--db FILE]"));
        return 2;
    }
    const QString dbPath = databasePath(parser);
    if (!QFileInfo(dbPath).isFile())
        err(QStringLiteral("database %1 not found; the model cannot be looked up").arg(dbPath));

    Session session(dbPath);
    session.setIdioma(English);
    QtSerialPortLink port;
    ConsoleExchange exchange(session, port);
    ConnectionController controller(session, exchange, port);
    controller.setModelLookup([dbPath](const QString &number) { return modelRef(dbPath, number); });

    bool recognised = false;
    bool anyMessage = false;
    bool lost = false;
    QObject::connect(&port, &SerialPort::lost, &controller, [&] { lost = true; });
    QObject::connect(&controller, &ConnectionController::message, &controller,
                     [&](const QString &key, const QString &porta) {
                         anyMessage = true;
                         printMessage(key, porta);
                     });
    QObject::connect(&controller, &ConnectionController::modelNumberChanged, &controller,
                     [](const QString &number) {
                         if (!number.isEmpty() && number != QLatin1String("..."))
                             out(QStringLiteral("Model number: ") + number);
                     });
    QObject::connect(&controller, &ConnectionController::modelRecognised, &controller,
                     [&](const QString &model) {
                         recognised = true;
                         out(model);
                         QCoreApplication::exit(0);
                     });

    // Connecting is finished when nothing runs any more: the exchange, the validation and
    // the re-identification are all idle.
    QTimer watch;
    watch.setInterval(100);
    QObject::connect(&watch, &QTimer::timeout, &controller, [&] {
        if (recognised || exchange.running() || controller.timerValidaPorta().isActive()
            || controller.timerVerificaVersao().isActive())
            return;
        if (lost)
            err(QStringLiteral("the device on %1 vanished").arg(portName));
        if (!anyMessage)
            printMessage(QStringLiteral("MSG_SELECIONE_MODELO"), PortList::numberTextFor(portName));
        QCoreApplication::exit(1);
    });

    controller.connectClicked(portName, PortList::numberTextFor(portName));
    watch.start();
    const int code = QCoreApplication::exec();
    port.close();
    return code;
}

} // namespace Cli
