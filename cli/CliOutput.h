#pragma once
// Printing for vekto-cli: UTF-8 to stdout and stderr, and the parsing shared by the commands.

#include <QCommandLineParser>
#include <QString>

namespace Cli {

void out(const QString &line);
void err(const QString &line);

// Parses `args` (the command's own arguments) with `parser`; prints the problem and returns
// false on a mistake.
bool parse(QCommandLineParser &parser, const QString &command, const QStringList &args);

// Config.vkt beside the program unless --db names another file.
QString databasePath(const QCommandLineParser &parser);

// The text of an open error number, for messages that name it.
QString openErrorText(int error);

} // namespace Cli
