#pragma once
// The rules of the other-tests and battery screens without their widgets: the command, key word
// and console text of each test, when an answer is long enough, and the DRAM verdict. The
// recorded answer of a known-good board is stored under the key word, not the command, so both
// Tristar readouts share one recording and both DRAM tests another.

#include "Verdict.h"

#include <QString>
#include <optional>

namespace OutrosEngine {

constexpr int ModeTristarId = 1;
constexpr int ModeTristarRead = 2;
constexpr int ModeDram = 5;
constexpr int ModeDram1Mb = 6;

// An answer of this many characters or fewer is still only the echo and the prompt.
constexpr int MinChars = 30;
// Ticks of the status timer after which a missing answer is given up.
constexpr int StatusTickLimit = 45;

struct Teste
{
    QString command;
    QString keyWord;     // the Comando of the recorded answer in Dados
    bool showsPlaceholder; // the console shows "TESTE 15s" while the long test runs
};

// Modes 1, 2, 5 and 6; nothing for any other index.
std::optional<Teste> teste(int mode);
bool isDram(int mode);

struct Status
{
    bool complete = false;
    Verdict verdict = Verdict::None; // judged only for the DRAM tests
};

// The status check of the answer of test `mode`.
Status status(const QString &answer, int mode);

// The battery screen's one command and the key word its recording is kept under.
QString bateriaCommand();
QString bateriaKeyWord();

} // namespace OutrosEngine
