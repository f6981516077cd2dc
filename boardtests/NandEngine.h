#pragma once
// The rules of the NAND screen without its widgets: which command each test sends, when an
// answer is long enough to judge, whether the phone knows the command at all, and how the
// size line turns into a size class. The screen and `vekto-cli judge nand-*` both call these,
// so a saved answer gets the verdict the screen gave.

#include "Verdict.h"

#include <QString>

namespace NandEngine {

// Test modes are the indexes of the screen's buttons; 4 opens the NAND rails and sends nothing.
constexpr int ModeUid = 0;
constexpr int ModeSize = 1;
constexpr int ModeInfo = 2;
constexpr int ModeSyscfg = 3;
constexpr int ModeRails = 4;

// An answer shorter than these is still only the echo and the prompt.
constexpr int StatusMinChars = 61;
constexpr int SizeMinChars = 41;
// "syscfg list" is only whole with the full configuration block.
constexpr int SyscfgMinChars = 7001;
// Ticks of the two timers after which the wait is given up.
constexpr int StatusTickLimit = 45;
constexpr int SizeTickLimit = 30;
// Longer than any size a phone prints: a cut that long took in another line.
constexpr int MaxSizeTextChars = 51;

// The command of modes 0 to 3; empty for any other mode.
QString command(int mode);
// A button caption: a dictionary key and a fixed suffix after its translation.
struct Caption
{
    QString key;
    QString suffix;
};
Caption caption(int mode);

// The older boards do not have the NAND commands and say so.
bool notAvailable(const QString &answer);

struct Status
{
    enum class Outcome { TooShort, NotAvailable, Judged };
    Outcome outcome = Outcome::TooShort;
    Verdict verdict = Verdict::None; // Pass or Fail once judged
};

// The status check of a finished answer of test `mode`.
Status status(const QString &answer, int mode);
// "COMUNICAÇÃO OK" / "COMUNICAÇÃO OFF" for a judged status; empty otherwise.
QString statusKey(Verdict verdict);

struct Size
{
    enum class Outcome {
        TooShort,     // not yet an answer
        NotAvailable, // the phone lacks the command
        Unreadable,   // no ":" or no "[" where the size line needs them, or nothing between
        TooLong,      // a cut of more than MaxSizeTextChars characters
        Read
    };
    Outcome outcome = Outcome::TooShort;
    QString sizeText; // the cut text, as read
    double megas = 0; // N: the value divided by 1,000,000, rounded down
    int classGb = 0;  // the size class in GB, 0 when N falls outside every class
};

// Cuts the size text between the first ":" and the first "[" and classifies its value.
Size size(const QString &answer);
// The hexadecimal reading of the size text: A-F (upper case only) and 0-9 count, anything else is 0.
double hexValue(const QString &sizeText);
// The class of N in GB; 0 for a value in a gap, below 7 or from 1300 on.
int sizeClass(double megas);
// "128 GB", or N followed by " GB " and `approx` when N has no class.
QString sizeCaption(const Size &size, const QString &approx);

// The size of a read answer is one of the phone's real capacities; unread sizes are not judged.
Verdict sizeVerdict(const Size &size);

} // namespace NandEngine
