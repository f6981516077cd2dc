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

// Exit codes beside JudgeReport::exitCode()'s 0 and 1: one per kind of fault, whatever the command.
inline constexpr int BadUse = 2;         // a mistake in the arguments
inline constexpr int UnreadableFile = 2; // an answer or database file that cannot be read
inline constexpr int DeviceProblem = 1;  // no port, no answer, a device that vanished

// Why a database could not be read, naming the file: "cannot read the database F: why".
QString databaseProblem(const QString &path, const QString &reason);

} // namespace Cli
