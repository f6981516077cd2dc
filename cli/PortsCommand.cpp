// vekto-cli ports: every port the main window would offer, one per line.
#include "CliCommands.h"
#include "CliOutput.h"

#include "PortList.h"

namespace Cli {

int ports(const QStringList &args)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Lists the serial ports and running simulators."));
    if (!parse(parser, QStringLiteral("ports"), args))
        return 2;
    for (const PortEntry &port : PortList::scan())
        out(port.description.isEmpty() ? port.portName : port.portName + u'\t' + port.description);
    return 0;
}

} // namespace Cli
