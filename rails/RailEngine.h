#pragma once
// Turns one "pmuadc --read all" answer into the reading and deviation of every reference rail of
// a model. It holds no widgets and touches no database: the rail screens and the command line
// hand it the answer and the reference rows, then paint, print or store what it returns.

#include "NumberRoutines.h" // milivoltsToVolts, which the rail and buck engines use
#include "Verdict.h"

#include <QList>
#include <QString>
#include <optional>

// One reference row of table Master, as far as reading a rail needs it.
struct RailReference
{
    QString malha; // net name
    QString reft;  // label searched in the answer; empty: the row takes no reading
    QString refv;  // reference value, volts with three decimals or milliamps
    QString ci;    // chip that feeds the net
};

enum class RailUnit { None, Volts, Milliamps };

// What one row receives from a reading.
struct RailMeasurement
{
    QString malha;
    QString leitura; // "0.850 V", "12,3 mA", "0 V" or the no-reading text
    QString porc;    // "0,3 %", "0 %" or empty when nothing can be said
    QString value;   // the whole value before any cutting ("0.853", "12,34"); empty without one
    RailUnit unit = RailUnit::None;
    bool measured = false; // false when the label or a usable value was missing
};

struct RailSettings
{
    int voltDecimals = 3; // ComboDecimais: 1, 2 or 3
    int ampDecimals = 1;  // ComboDecimaisAmp: 0 to 3
    QString noReading = QStringLiteral("Sem Medição*"); // translated "Sem Medição" + "*"
};

using RailVerdict = Verdict;

class RailEngine
{
public:
    // Readings of every row with a label, in the order of `rows`; rows without a label are left out.
    static QList<RailMeasurement> ProcessaLeituras(const QString &answer, const QList<RailReference> &rows,
                                               const RailSettings &settings);

    // One row: label search, unit, percent, time-out and the cutting of decimals.
    static RailMeasurement readRail(const QString &answer, const RailReference &row, const RailSettings &settings);

    // Judged on the numeric deviation of the whole value (desvioPercentual), never on the
    // shown texts: pass within `tolerancePercent`, fail beyond it, and fail when a referenced
    // rail gave no reading or a value that cannot be one (no number, too long to compute).
    // None when there is nothing to judge against: no reference, a zero or unreadable one.
    // A measurement rebuilt from a stored row (no `value`) is judged on its Leitura's number.
    static RailVerdict verdict(const RailMeasurement &reading, const QString &refv, double tolerancePercent);

    // How far a rail may stray from its reference and still pass, for every screen and command.
    static constexpr double DefaultTolerancePercent = 5.0;

private:
    // One row whose label was found at `label` (-1: not found).
    static RailMeasurement readRailAt(const QString &answer, const RailReference &row, const RailSettings &settings,
                                      qsizetype label);
};
