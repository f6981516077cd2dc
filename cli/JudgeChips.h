#pragma once
// "vekto-cli judge|run tigris|tristar|chestnut|acorn": the chip readouts without a window. judge
// re-reads a saved console answer, run reads a live phone; both print the rows the screen shows
// through the one judged-report printer, so the verdicts and the exit code match the screen.

#include "ChipEngine.h"
#include "JudgeReport.h"

#include <QStringList>
#include <QTextStream>

// True for the engine names these commands take.
bool isChipEngine(const QString &engine);

// The report of one reading: one row per result control in table order, the designator, the
// warnings, copies, rail names and images in `extra`.
JudgeReport chipReport(const ChipResult &result);

// The report of a screen that refuses the model: its message, no rows.
JudgeReport refusedReport(Chip chip, const QString &model);

// args: the words after "judge" / "run". Exit code: 0 nothing failed, 1 a row failed, nothing
// was judged or the phone could not be read, 2 bad use or an unreadable answer file.
int runJudgeChips(const QStringList &args, QTextStream &out, QTextStream &err);
int runRunChips(const QStringList &args, QTextStream &out, QTextStream &err);
