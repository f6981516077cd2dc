#pragma once
// "vekto-cli judge rf" and "vekto-cli run rf": the RF screen's verdict on one radio's switch-on
// answer, from a saved console answer or from a live port, printed as the one judged report.

#include "JudgeReport.h"

#include <QStringList>
#include <QTextStream>

// The report of `answer` to radio `radio` (0..3) on `model`, as the RF screen would show it in
// language `idioma`. Nothing is judged when the answer is blank or the model has no such test.
JudgeReport judgeRfAnswer(const QString &model, int radio, const QString &answer, quint8 idioma = 1);

// "0".."3" or the radio's name (baseband, bluetooth, gps, wifi); -1 when neither.
int parseRadio(const QString &text);

// args: the words after "judge rf" / "run rf". Exit code of JudgeReport, 2 for bad use or an
// unreadable answer file.
int runJudgeRf(const QStringList &args, QTextStream &out, QTextStream &err);
int runRunRf(const QStringList &args, QTextStream &out, QTextStream &err);
