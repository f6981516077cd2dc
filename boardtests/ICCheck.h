#pragma once
// The quick checks of the charging-port interface chip (Tristar, or Hydra on the newer boards):
// the chip's data dump and the read of its communication registers. The chip passes when it
// answers with enough text; there is nothing finer to judge in these answers. No widgets: the IC
// screen and the command line both ask this.

#include "Verdict.h"

#include <QString>

namespace ICCheck {

// An answer box holding more than this many characters has received its answer.
constexpr int ArrivalLength = 30;
// More than this many characters is a chip that talked.
constexpr int PassLength = 200;

constexpr int DataKind = 1;          // btBl 1
constexpr int CommunicationKind = 2; // btBl 2

bool isHydra(const QString &model);
// "HYDRA" or "TRISTAR".
QString chipName(const QString &model);

// The console command of a check kind; empty for a kind no button sends.
QString command(int kind);

bool arrived(const QString &dados);
// Pass above PassLength characters, Fail at or below it, for the kinds that are judged (0 to 2);
// None for any other kind.
Verdict judge(int kind, const QString &dados);
// The status text key of a verdict: "COMUNICAÇÃO OK", "COMUNICAÇÃO OFF", or empty.
QString statusKey(Verdict verdict);

} // namespace ICCheck
