#include "ICCheck.h"

namespace ICCheck {

bool isHydra(const QString &model)
{
    return model == QLatin1String("IP 8") || model == QLatin1String("IP 8 Plus") || model == QLatin1String("IP X");
}

QString chipName(const QString &model)
{
    return isHydra(model) ? QStringLiteral("HYDRA") : QStringLiteral("TRISTAR");
}

QString command(int kind)
{
    switch (kind) {
    case DataKind:
        return QStringLiteral("tristar -p");
    case CommunicationKind:
        // The console takes the doubled blanks as they are; the command is sent exactly so.
        return QStringLiteral("tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx");
    default:
        return {};
    }
}

bool arrived(const QString &dados)
{
    return dados.size() > ArrivalLength;
}

Verdict judge(int kind, const QString &dados)
{
    if (kind < 0 || kind > CommunicationKind)
        return Verdict::None;
    return dados.size() > PassLength ? Verdict::Pass : Verdict::Fail;
}

QString statusKey(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Pass: return QStringLiteral("COMUNICAÇÃO OK");
    case Verdict::Fail: return QStringLiteral("COMUNICAÇÃO OFF");
    case Verdict::None: break;
    }
    return {};
}

} // namespace ICCheck
