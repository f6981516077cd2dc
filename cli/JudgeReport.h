#pragma once
// What every `judge` and `run` command prints: the rows an engine judged, in the one JSON shape
// of the command line or as aligned text, and the exit code that follows from the verdicts.
// Kept in one place so every engine's report reads and exits the same way.

#include "Verdict.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>

class QTextStream;

struct JudgedRow
{
    QString name;          // the result control, or the net name for rails
    QJsonValue label;      // the label searched in the answer, or null
    QString caption;       // what the screen shows
    QJsonValue deviation;  // the per-cent text, or null
    Verdict verdict = Verdict::None;
};

struct JudgeReport
{
    QString engine;
    QString model;
    QList<JudgedRow> rows;
    // The screen's status text where it has one (null otherwise); a status can fail a report on
    // its own, e.g. "COMUNICAÇÃO OFF".
    QJsonValue status;
    Verdict statusVerdict = Verdict::None;
    QJsonObject extra;

    bool anyFailed() const;
    // True when at least one row or the status was judged (pass or fail).
    bool anyJudged() const;
    // 0 nothing failed, 1 something failed or nothing could be judged.
    int exitCode() const;
    QJsonObject toJson() const;
    // `json`: the JSON object; otherwise one aligned line per row and the status.
    void print(QTextStream &out, bool json) const;
};
