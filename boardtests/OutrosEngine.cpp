#include "OutrosEngine.h"

namespace OutrosEngine {

std::optional<Teste> teste(int mode)
{
    switch (mode) {
    case ModeTristarId:
        return Teste{QStringLiteral("tristar -p"), QStringLiteral("TRISTAR"), false};
    case ModeTristarRead:
        // The double blanks are how the command has always been sent; the console ignores them.
        return Teste{QStringLiteral("tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx"),
                     QStringLiteral("TRISTAR"), false};
    case ModeDram:
        return Teste{QStringLiteral("testmemory"), QStringLiteral("DRAM"), false};
    case ModeDram1Mb:
        return Teste{QStringLiteral("testmemory --1MB"), QStringLiteral("DRAM"), true};
    default:
        return std::nullopt;
    }
}

bool isDram(int mode)
{
    return mode == ModeDram || mode == ModeDram1Mb;
}

Status status(const QString &answer, int mode)
{
    if (answer.size() <= MinChars)
        return {};
    if (!isDram(mode))
        return {true, Verdict::None};
    // "Pass" anywhere, "Passed" included; the comparison is case-sensitive like the phone's text.
    return {true, answer.contains(QLatin1String("Pass")) ? Verdict::Pass : Verdict::Fail};
}

QString bateriaCommand()
{
    return QStringLiteral("battery --properties");
}

QString bateriaKeyWord()
{
    return QStringLiteral("BATERIA");
}

} // namespace OutrosEngine
