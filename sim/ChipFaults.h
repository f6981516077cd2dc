#pragma once

#include <QByteArray>
#include <QString>

// The low-rail board's fault as the chip screens see it: in each chip answer one value that the
// screen judges reads 20 % low, so every chip readout has exactly one reading out of its band.

namespace ChipFaults {
// `normalisedCommand` as AnswerStore::normalise gives it; other commands come back unchanged.
QByteArray lowerJudgedValue(const QString &normalisedCommand, QByteArray body);
}
