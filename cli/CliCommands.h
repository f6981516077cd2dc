#pragma once
// The commands of vekto-cli. Each takes the arguments after its own name and returns the
// process exit code; each runs the same classes the main window uses.

#include <QStringList>

namespace Cli {

int ports(const QStringList &args);
int send(const QStringList &args);
int identify(const QStringList &args);
int importData(const QStringList &args);
int updateCheck(const QStringList &args);
int refs(const QStringList &args); // learn, undo, show, export, import

} // namespace Cli
