#pragma once
// The start-up services around the main window: carrying an Access Config.vkt over to SQLite,
// the update check, the disclaimer that must be agreed to once, and the question whether to
// import a previous installation's data. The engines decide; these routines only show the
// boxes and store the answers, so the desktop program and the tests run the same steps.

#include <QString>
#include <functional>
#include <optional>

class Dialogs;
class Http;
class QWidget;
class Session;
class Shell;

namespace StartupSteps {

// An Access Config.vkt becomes an SQLite one, with the three-language notice shown once.
// Returns the exit code when the start must stop (the file could not be carried over).
std::optional<int> migrateConfig(const QString &configPath, Dialogs &dialogs);

// Adds the Tools columns and the tables a file from an older release lacks; false when the
// file refused.
bool upgradeConfig(const QString &configPath, QString *error = nullptr);

// The update check: false when the program must end (a mandatory update, or the technician
// chose to update now). The download page opens only when it is an https address.
// `beforeBox` runs before any box shows (the start-up hides its picture window there).
bool verificaVersao(Session &session, Http &http, Dialogs &dialogs, Shell &shell,
                    const std::function<void()> &beforeBox = {});

// The disclaimer until it is agreed once: `ask` shows it and tells whether the technician agreed.
// False when the program must end.
bool termos(Session &session, Dialogs &dialogs, const std::function<bool()> &ask);

// The syncbd states: "0" not asked yet, "1" declined once, "2" nothing left to ask.
struct SyncDecision
{
    bool ask = false;
    QString stateIfNotAsked; // what syncbd becomes when there is no question (may equal the old)
};
SyncDecision decideSync(const QString &syncbd, bool userFilePresent);
// syncbd after the technician answered the question.
QString stateAfterAnswer(const QString &syncbd, bool yes, bool imported);

// The question at main-window load, with the import on "Yes".
void perguntaImportacao(Session &session, Dialogs &dialogs, QWidget *parent);

// Runs the import of `userPath` into the session's Config.vkt and shows the result; true when
// the data landed (syncbd is then "2").
bool importa(Session &session, Dialogs &dialogs, QWidget *parent, const QString &userPath);

// "User.vkt" beside Config.vkt.
QString userFilePath(const QString &configPath);

} // namespace StartupSteps
