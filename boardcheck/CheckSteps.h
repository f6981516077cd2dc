#pragma once
// The steps of a board check for one model, as data: what each sends, how long its screen waits
// before it gives up, and which screen's engine judges the answer into rows. Radios and the
// backlight are left out on purpose: they switch hardware on or need eyes on the phone.

#include "JudgeReport.h"

#include <QList>
#include <QString>
#include <functional>

struct CheckContext
{
    QString model;
    QString dbPath; // the references of the rails and the I2C buses
};

struct CheckStep
{
    QString key;     // stable name of the step, stored with its rows
    QString command; // the console command; steps that share one are answered by one exchange
    // The screen's own give-up: ticks times the tick interval.
    int tickLimit = 0;
    int tickMs = 0;
    // The screen's own test of whether anything came back at all.
    std::function<bool(const QString &answer)> answered;
    // The screen's engine: one or more reports on the answer. `problem` receives why nothing
    // could be judged though the phone answered (a reference database that cannot be read).
    std::function<QList<JudgeReport>(const CheckContext &context, const QString &answer, QString *problem)> judge;
};

namespace CheckSteps {

QString serialCommand();
// The serial number in a "syscfg print SrNm" answer, or empty when the phone gave none.
QString serialFromAnswer(const QString &answer);
// What the history stores when the phone gave no serial number.
QString unknownSerial();

// Every step for `model`, in the order they run.
QList<CheckStep> steps(const QString &model);
// The battery properties of a battery answer, each listed once, never judged.
QList<JudgedRow> batteryRows(const QString &answer);

// What the screens and the report call a step, in language `idioma`.
QString title(const QString &key, const QString &model, quint8 idioma);
// The flex cable or part that usually breaks the step's bus, or empty.
QString detail(const QString &key, const QString &model);

// A report's rows as the check lists them: a judged status becomes one more row, named after
// the step, so a status that fails ("COMUNICAÇÃO OFF") is a failure in the list too.
QList<JudgedRow> rowsOf(const JudgeReport &report, const QString &statusName);

} // namespace CheckSteps
