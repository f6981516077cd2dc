#include "CliOutput.h"

#include "SerialPort.h"

#include <QCoreApplication>
#include <cstdio>

namespace Cli {

void out(const QString &line)
{
    std::fputs((line + u'\n').toUtf8().constData(), stdout);
    std::fflush(stdout);
}

void err(const QString &line)
{
    std::fputs((QStringLiteral("vekto-cli: ") + line + u'\n').toUtf8().constData(), stderr);
}

bool parse(QCommandLineParser &parser, const QString &command, const QStringList &args)
{
    parser.addHelpOption();
    if (!parser.parse(QStringList{QStringLiteral("vekto-cli ") + command} + args)) {
        err(parser.errorText());
        return false;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        out(parser.helpText());
        return false;
    }
    return true;
}

QString databasePath(const QCommandLineParser &parser)
{
    const QString db = parser.optionNames().contains(QStringLiteral("db")) ? parser.value(QStringLiteral("db")) : QString();
    return db.isEmpty() ? QCoreApplication::applicationDirPath() + QStringLiteral("/Config.vkt") : db;
}

QString openErrorText(int error)
{
    switch (error) {
    case SerialPort::InvalidPort:
        return QStringLiteral("error 8002, no such port");
    case SerialPort::PortAlreadyOpen:
        return QStringLiteral("error 8005, the port is in use by another program");
    default:
        return QStringLiteral("error 8012, the port could not be opened");
    }
}

QString databaseProblem(const QString &path, const QString &reason)
{
    return QStringLiteral("cannot read the database %1: %2").arg(path, reason);
}

} // namespace Cli
