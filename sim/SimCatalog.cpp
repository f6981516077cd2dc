#include "SimCatalog.h"

#include <array>
#include <utility>

namespace {
const std::array<std::pair<Profile, const char *>, 9> kProfiles{{
    {Profile::Good, "good"},
    {Profile::Silent, "silent"},
    {Profile::Chatty, "chatty"},
    {Profile::Unplug, "unplug"},
    {Profile::Garbage, "garbage"},
    {Profile::RejectOnce, "reject-once"},
    {Profile::I2cMissing, "i2c-missing"},
    {Profile::LowRail, "low-rail"},
    {Profile::DeadRadio, "dead-radio"},
}};
}

const QList<SimModel> &SimCatalog::models()
{
    static const QList<SimModel> list{
        {QStringLiteral("IP 6"), QStringLiteral("ip6"), QStringLiteral("A1549")},
        {QStringLiteral("IP 6 Plus"), QStringLiteral("ip6plus"), QStringLiteral("A1522")},
        {QStringLiteral("IP 6s"), QStringLiteral("ip6s"), QStringLiteral("A1633")},
        {QStringLiteral("IP 6s Plus"), QStringLiteral("ip6splus"), QStringLiteral("A1634")},
        {QStringLiteral("IP 7"), QStringLiteral("ip7"), QStringLiteral("A1660")},
        {QStringLiteral("IP 7 Plus"), QStringLiteral("ip7plus"), QStringLiteral("A1661")},
        {QStringLiteral("IP 8"), QStringLiteral("ip8"), QStringLiteral("A1863")},
        {QStringLiteral("IP 8 Plus"), QStringLiteral("ip8plus"), QStringLiteral("A1864")},
        {QStringLiteral("IP X"), QStringLiteral("ipx"), QStringLiteral("A1865")},
    };
    return list;
}

std::optional<SimModel> SimCatalog::modelByName(const QString &name)
{
    for (const SimModel &m : models())
        if (m.name == name)
            return m;
    return std::nullopt;
}

QStringList SimCatalog::profileNames()
{
    QStringList names;
    for (const auto &p : kProfiles)
        names << QString::fromLatin1(p.second);
    return names;
}

std::optional<Profile> SimCatalog::profileByName(const QString &name)
{
    for (const auto &p : kProfiles)
        if (name == QLatin1String(p.second))
            return p.first;
    return std::nullopt;
}

QString SimCatalog::profileName(Profile profile)
{
    for (const auto &p : kProfiles)
        if (p.first == profile)
            return QString::fromLatin1(p.second);
    return {};
}
