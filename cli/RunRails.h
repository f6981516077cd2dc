#pragma once
// "vekto-cli run vcore|buckldo|buck-read|buck-check": the rail engines on a live port. One
// exchange with the same slices as the main window, then the same judging as "judge".

#include <QStringList>
#include <QTextStream>

// args: the words after "run". Exit code as runJudgeRails, 1 also when the port cannot be used.
int runRunRails(const QStringList &args, QTextStream &out, QTextStream &err);
