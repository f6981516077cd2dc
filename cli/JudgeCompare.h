#pragma once
// vekto-cli judge compare: re-judges a saved console answer the way the command console does,
// against the answer recorded for the model and command and with the masks of the database.
// Support gets a technician's saved answer and sees at once whether the mark would have shown.

#include <QStringList>
#include <QTextStream>

// `args` are the arguments after "judge compare". Returns 0 when the answer was judged (whatever
// the verdict), 1 when a file could not be read, 2 on a usage mistake.
int runJudgeCompare(const QStringList &args, QTextStream &out, QTextStream &err);
