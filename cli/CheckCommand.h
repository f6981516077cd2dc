#pragma once
// "vekto-cli check" runs every test of the model in one go and stores it in the board's
// history; "vekto-cli history" lists what is stored for one serial number.

#include <QStringList>
#include <QTextStream>

// Exit code: 0 everything judged passed, 1 a failure, a step without answer, an incomplete check
// or nothing judged, 2 bad use or a database or report file that cannot be used.
int runCheck(const QStringList &args, QTextStream &out, QTextStream &err);
int runHistory(const QStringList &args, QTextStream &out, QTextStream &err);
