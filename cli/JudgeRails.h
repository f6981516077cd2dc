#pragma once
// "vekto-cli judge vcore|buckldo|buck-read|buck-check": re-judges a saved console answer with the
// same engines as the rail screens, so a technician can send an answer to support and both see
// the same verdicts. RunRails reuses judgeRailsAnswer() on an answer read from a live port.

#include "JudgeReport.h"

#include <QString>
#include <QStringList>
#include <QTextStream>
#include <optional>

struct RailsJudgeOptions
{
    QString engine; // vcore, buckldo, buck-read, buck-check
    QString model;
    QString db;     // Config.vkt beside the program when empty
    int voltDecimals = 3;
    int ampDecimals = 1;
    bool json = false;
};

// Judges `answer`. Nothing when the database cannot be read: the reason, naming the file, goes to
// `error`. A model without reference rails gives an empty report that says so in extra.problem.
std::optional<JudgeReport> judgeRailsAnswer(const RailsJudgeOptions &options, const QString &answer, QString *error);

// Parses the options shared by judge and run; `args` starts with the engine name.
std::optional<RailsJudgeOptions> parseRailsOptions(const QStringList &args, QStringList *rest, QString *error);

QString railsHelp();

// args: the words after "judge". Returns the exit code: JudgeReport::exitCode(), or 2 on bad use or
// an unreadable answer or database.
int runJudgeRails(const QStringList &args, QTextStream &out, QTextStream &err);
