// vekto-cli identify: connects exactly as the main window's connect button does and prints the
// recognised model, or the English text of the message the window would have shown.
#include "CliCommands.h"
#include "CliOutput.h"
#include "Database.h"

#include "LiveExchange.h"
#include "PortList.h"
#include "Texts.h"

#include <QFileInfo>

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

    LiveExchange live(dbPath);
    live.session().setIdioma(English);
    bool anyMessage = false;
    const std::optional<QString> model = live.recogniseModel(portName, [&](const QString &key, const QString &porta) {
        anyMessage = true;
        printMessage(key, porta);
    });
    if (!live.modelNumber().isEmpty())
        out(QStringLiteral("Model number: ") + live.modelNumber());
    if (model) {
        out(*model);
        return 0;
    }
    if (!live.databaseError().isEmpty()) {
        err(live.databaseError());
        return UnreadableFile;
    }
    if (live.lost())
        err(QStringLiteral("the device on %1 vanished").arg(portName));
    if (!anyMessage)
        printMessage(QStringLiteral("MSG_SELECIONE_MODELO"), PortList::numberTextFor(portName));
    return 1;
}

} // namespace Cli
