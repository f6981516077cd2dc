#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

// The nominal value of every rail the board reports, one row per model and label. The same
// table seeds the desktop program's reference rows, so the simulator's good board and the
// shipped references cannot drift apart unnoticed.

struct RailRow {
    QString model;
    int orig = 0;
    QString label;   // as searched in the answer, separator included ("vbuck0:")
    double nominal = 0;
    QString unit;    // "mV" or "mA"
    QString net;
    QString chip;
    int railClass = 0;  // 0 VCore/CPU/GPU/NAND, 2 buck/LDO
    QString refv;
};

namespace RailTable {
QList<RailRow> parse(const QByteArray &tsv);
QList<RailRow> forModel(const QList<RailRow> &rows, const QString &model);
// The number after label in an answer line "<label> <value> <unit>", or nothing.
std::optional<double> valueAfter(const QByteArray &answer, const QString &label);
}
