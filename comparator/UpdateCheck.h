#pragma once
// The question put to the maker's version page at start-up, and what its answer means. The
// page answers "OK" (or nothing) when the release is current; otherwise it carries a message
// between "[" and "]" and a mode between "(" and ")", mode "O" making the update mandatory.
// No widgets here: the start-up shows the boxes, the command line prints the outcome.

#include <QString>
#include <QUrl>
#include <chrono>

class Http;

namespace UpdateCheck {

// The start never waits longer than this for the version page, and never reads more than this.
inline constexpr std::chrono::milliseconds Deadline{3000};
inline constexpr qint64 MaxBytes = 8 * 1024;

enum class Kind {
    Current,    // "OK" or an empty answer: nothing to do
    Optional,   // an update the technician may take or leave
    Mandatory,  // mode "O": the program ends after pointing to the download page
    NoAnswer,   // no address, no server, a time-out, an error status, a huge or binary answer
};

struct Outcome
{
    Kind kind = Kind::NoAnswer;
    QString message; // between the first "[" and the next "]"
    QString mode;    // between the first "(" and the next ")"
    QString detail;  // why there was no answer
};

// What an answer text means.
Outcome parse(const QString &answer);

// The version page with the program's version added as the query item "versao", so the page
// can answer per release. Nothing (invalid) when `endpoint` is empty or not http/https.
QUrl requestUrl(const QString &endpoint, const QString &versao);

// Asks the page and parses the answer; every failure gives NoAnswer, never a wait past Deadline.
Outcome check(Http &http, const QString &endpoint, const QString &versao);

// Only an https page is ever opened for a download.
bool isSafeDownloadPage(const QString &address);

QString kindText(Kind kind);

} // namespace UpdateCheck
