#pragma once
// What happens between program start and the main window: the picture window, the check for
// Config.vkt beside the program, and the session values every screen reads. A database that
// cannot be used ends the program with a message in all three languages, since no language
// has been read yet, and the file is never touched.

#include <QString>
#include <optional>

class Dialogs;
class QSplashScreen;
class Session;

namespace Startup {

inline constexpr char Versao[] = "1.81";

// The configuration path: the program's folder followed by Config.vkt.
QString configPath(const QString &programDir);

// Checks the database; on a problem shows the three-language message and returns the exit code.
// A usable file from before the key columns ignored letter case is upgraded on the way.
std::optional<int> checkConfig(const QString &path, Dialogs &dialogs);

// Sets the session values of a fresh start (versions, flags, identifiers, language from Tools).
void initSession(Session &session);

// The start-up picture window, already shown and painted.
QSplashScreen *showPicture();

} // namespace Startup
