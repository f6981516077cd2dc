#pragma once
// The additional tests' status check on a console answer, as a command-line report: the DRAM
// tests are judged, the Tristar readouts are only shown on the screen and so judge nothing.

#include "JudgeReport.h"

// `mode` 1, 2, 5 or 6 as the screen's buttons.
JudgeReport judgeOutros(const QString &model, int mode, const QString &answer);
