#pragma once
// "vekto-cli judge|run nand-size|nand-status|outros": the board-test judges on a saved answer
// or on a live port. One parser and one live path for all of them, so they take the same
// options and exit the same way as every other judged report.

#include <QStringList>
#include <QTextStream>

bool isBoardTestEngine(const QString &engine);

// args: the words after "judge", starting with the engine. Exit code of the report (0 or 1),
// 2 for bad use or an unreadable answer file.
int runBoardTestJudge(const QStringList &args, QTextStream &out, QTextStream &err);

// args: the words after "run", starting with the engine. As runBoardTestJudge; 1 also when the
// port cannot be used, the model cannot be recognised or the phone vanished.
int runBoardTestLive(const QStringList &args, QTextStream &out, QTextStream &err);
