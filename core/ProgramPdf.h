#pragma once
// The PDF extracts (help, NAND restore errors, panic log, schematics) lie beside the program,
// as Config.vkt does. Every screen opens them the same way: a missing file, or a desktop with
// nothing to open it, is told in the session language, naming the file, instead of doing nothing.

#include <QString>

class Dialogs;
class QWidget;
class Session;
class Shell;

namespace ProgramPdf {

// The full path of `fileName` in the program's folder (the folder of Config.vkt).
QString path(const Session &session, const QString &fileName);

// Opens the file with the desktop; false, after a message box, when it is missing or refused.
bool open(QWidget *parent, const Session &session, Dialogs &dialogs, Shell &shell, const QString &fileName);

} // namespace ProgramPdf
