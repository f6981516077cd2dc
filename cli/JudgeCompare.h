#pragma once
// vekto-cli judge compare: re-judges a saved console answer the way the command console does,
// against the answer recorded for the model and command and with the masks of the database.
// Support gets a technician's saved answer and sees at once whether the mark would have shown.

#include <QStringList>
#include <QTextStream>

// `args` are the arguments after "judge compare". Returns JudgeReport::exitCode() (1 when the mark
// stays hidden or nothing could be compared), 2 on a usage mistake or an unreadable file.
int runJudgeCompare(const QStringList &args, QTextStream &out, QTextStream &err);
