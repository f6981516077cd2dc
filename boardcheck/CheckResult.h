#pragma once
// What one board check found: the board, when, and per step the rows its screen's engine judged,
// or that the phone did not answer. The screen, the report, the JSON of the command line and the
// stored history all read this one shape; every verdict in it is a number's verdict, never a
// display text's.

#include "JudgeReport.h"

#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QString>

struct CheckRecord;

struct CheckStepResult
{
    enum class Outcome { Judged, NoAnswer };
    QString key;    // "rails", "tigris", "i2c2" … stable: the history matches steps by it
    QString detail; // the part that usually breaks (I2C connector), or empty
    Outcome outcome = Outcome::Judged;
    QList<JudgedRow> rows;
    QString problem; // why nothing could be judged although the phone answered (a database …)
    qint64 exchangeMs = 0; // how long its exchange took; 0 when it reused an earlier answer

    bool anyFailed() const;
};

// One row with the step it belongs to, for the lists that put the failures first.
struct CheckLine
{
    const CheckStepResult *step = nullptr;
    const JudgedRow *row = nullptr; // null for a step without an answer
};

struct CheckResult
{
    enum class End { Complete, Lost, Cancelled };
    QString model;
    QString serial; // as the phone gave it; "unknown" when it gave none
    QString version;
    QDateTime when;
    End end = End::Complete;
    int totalSteps = 0;
    QList<CheckStepResult> steps;
    qint64 storedId = 0; // the history's id once stored
    qint64 wallMs = 0;   // from the first send to the last verdict

    bool complete() const { return end == End::Complete; }
    bool anyFailed() const;
    bool anyJudged() const;
    int noAnswerCount() const;
    // 0 everything judged passed, 1 a failure, a step without answer, an incomplete check or
    // nothing judged at all.
    int exitCode() const;
    // Failures first (and the steps that gave no answer), then every other row, each part in
    // step order.
    QList<CheckLine> failuresFirst() const;
    QJsonObject toJson() const;

    CheckRecord toRecord() const;
    static CheckResult fromRecord(const CheckRecord &record);
};

// "noanswer" beside verdictText()'s words, for stored rows.
inline constexpr char NoAnswerVerdict[] = "noanswer";
