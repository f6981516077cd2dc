#pragma once
// The console text as a file a technician sends to support: the characters exactly as the
// console holds them (CR CR LF, prompt and all) in UTF-8, so that `vekto-cli judge ... --answer`
// on the file judges what the screen showed.

#include <QDateTime>
#include <QString>

namespace ConsoleFile {

// Writes `text` to `path` whole or not at all (an existing file is only replaced once the new
// one is complete). Returns the reason on failure, empty on success.
QString save(const QString &path, const QString &text);

// A file name that tells the files of one bench apart: model, then date and time.
QString suggestedName(const QString &modelo, const QDateTime &when);

} // namespace ConsoleFile
