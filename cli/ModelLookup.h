#pragma once
// The model name of a regulatory model number, read from table Modelos of the configuration
// database. The keys carry the fixed framing "AST" + number + "098".

#include <QString>
#include <optional>

namespace Cli {

// Nothing when the file is missing or unreadable, or no row matches.
std::optional<QString> modelRef(const QString &databasePath, const QString &modelNumber);

} // namespace Cli
