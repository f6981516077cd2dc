#pragma once
// The one verdict every engine gives a judged value. Screens turn it into a colour and the
// command line into "pass"/"fail"/"none" and an exit code, so both read the same number-based
// judgement and a text cut for display can never decide it.

#include <QString>

enum class Verdict { Pass, Fail, None };

inline QString verdictText(Verdict v)
{
    switch (v) {
    case Verdict::Pass: return QStringLiteral("pass");
    case Verdict::Fail: return QStringLiteral("fail");
    case Verdict::None: break;
    }
    return QStringLiteral("none");
}
