#pragma once
// "vekto-cli judge vcore|buckldo|buck-read|buck-check": re-judges a saved console answer with the
// same engines as the rail screens, so a technician can send an answer to support and both see
// the same verdicts. RunRails reuses judgeRailsAnswer() on an answer read from a live port.

#include <QJsonObject>
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

// Judges `answer`; the report as DESIGN's JSON object. Nothing when the database cannot be read
// (the reason goes to `error`).
std::optional<QJsonObject> judgeRailsAnswer(const RailsJudgeOptions &options, const QString &answer, QString *error);

// Prints a report as JSON or as an aligned table.
void printRailsReport(const QJsonObject &report, bool json, QTextStream &out);

// Parses the options shared by judge and run; `args` starts with the engine name.
std::optional<RailsJudgeOptions> parseRailsOptions(const QStringList &args, QStringList *rest, QString *error);

QString railsHelp();

// args: the words after "judge". Returns the exit code: 0 all pass, 1 a rail failed, 2 bad use or input.
int runJudgeRails(const QStringList &args, QTextStream &out, QTextStream &err);
