#pragma once
// The NAND screen's two judgements on a console answer, as command-line reports: the size line
// of "nandsize" read into the size label, and the status check of any of the four NAND tests.

#include "JudgeReport.h"

// One row "lbNand": the size class as the label shows it; pass for one of the phone's real
// capacities, fail for a value between them, not judged when no size could be read.
JudgeReport judgeNandSize(const QString &model, const QString &answer);

// The status of test `mode` (0 to 3): "COMUNICAÇÃO OK"/"COMUNICAÇÃO OFF", or null when the
// answer is too short or the phone lacks the command (the console's replacement text in extra).
JudgeReport judgeNandStatus(const QString &model, int mode, const QString &answer);
