#pragma once
// vekto-cli judge i2c, judge ic and run i2c: the I2C bus judge and the quick interface-chip
// checks of the I2C and IC screens, on a saved console answer or live on a port. The same
// engines as the screens, printed through the one judged-report printer.

#include "I2CEngine.h"
#include "JudgeReport.h"

#include <QStringList>
#include <QTextStream>

// `args` are the arguments after "judge i2c" / "judge ic" / "run i2c". Exit codes: 0 nothing
// failed, 1 a device was silent, a check was OFF, nothing could be judged or the phone was lost,
// 2 bad use or an unreadable file.
int runJudgeI2C(const QStringList &args, QTextStream &out, QTextStream &err);
int runJudgeIC(const QStringList &args, QTextStream &out, QTextStream &err);
int runRunI2C(const QStringList &args, QTextStream &out, QTextStream &err);

// One report over the judged buses: a row per device, the failure list as the screen builds it.
JudgeReport i2cReport(const QString &model, const QList<I2CBusResult> &buses);

// The quick check of kind `kind` (ICCheck) on one answer: no rows, the status only.
JudgeReport icReport(const QString &model, int kind, const QString &answer);
