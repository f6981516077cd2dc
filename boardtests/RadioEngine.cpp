#include "RadioEngine.h"

namespace RadioEngine {

namespace {

const QString Ip6 = QStringLiteral("IP 6");

struct RadioInfo
{
    const char *name;
    const char *background;
    const char *on;
    const char *off;
    QStringList keys;
};

const RadioInfo &info(quint8 radio)
{
    static const RadioInfo table[RadioCount] = {
        {"Baseband", "lbFundoBase", "baseband --on", "baseband --off",
         {QStringLiteral("Baseband is already powered on"), QStringLiteral("BB_HSIC_RDY"), QStringLiteral("on success"),
          QStringLiteral("OK")}},
        {"Bluetooth", "lbFundoBlue", "bluetooth --on", "bluetooth --off",
         {QStringLiteral("Already on"), QStringLiteral("on success"), QStringLiteral("OK")}},
        // GPS has no switch of its own on the console: switching Wi-Fi on powers it too.
        {"Gps", "lbFundoGps", "wifi --on", "wifi --off",
         {QStringLiteral("GPS is already on"), QStringLiteral("on success"), QStringLiteral("OK")}},
        {"Wifi", "lbFundoWifi", "wifi --on", "wifi --off",
         {QStringLiteral("Wifi is already on"), QStringLiteral("on success"), QStringLiteral("OK")}},
    };
    return table[radio < RadioCount ? radio : 0];
}

} // namespace

std::optional<RadioCommand> command(int index, bool on, const QString &modelo)
{
    if (index < 0 || index >= RadioCount)
        return std::nullopt;
    const auto radio = static_cast<quint8>(index);
    // The first model offers no Wi-Fi test of its own: the user is told so and nothing is sent.
    if (radio == Wifi && modelo == Ip6)
        return RadioCommand{QString(), radio, QStringLiteral("MSG_NAO_PARA_IP6")};
    const RadioInfo &r = info(radio);
    return RadioCommand{QString::fromLatin1(on ? r.on : r.off), radio, QString()};
}

QString name(quint8 radio)
{
    return QString::fromLatin1(info(radio).name);
}

QStringList successKeys(quint8 radio)
{
    return info(radio).keys;
}

QString backgroundLabel(quint8 radio)
{
    return QString::fromLatin1(info(radio).background);
}

QString colourText(const QColor &colour)
{
    // The colour texts of the screen descriptions are blue, green, red from the left.
    return QStringLiteral("&H00%1%2%3")
        .arg(colour.blue(), 2, 16, QLatin1Char('0'))
        .arg(colour.green(), 2, 16, QLatin1Char('0'))
        .arg(colour.red(), 2, 16, QLatin1Char('0'))
        .toUpper();
}

RadioResult AnalisaResposta(quint8 radio, const QString &answer)
{
    RadioResult result;
    const quint8 r = radio < RadioCount ? radio : quint8(Baseband);
    result.name = name(r);
    result.background = backgroundLabel(r);
    if (answer.trimmed().isEmpty())
        return result;
    for (const QString &key : successKeys(r)) {
        if (answer.contains(key, Qt::CaseSensitive)) {
            result.matchedKey = key;
            break;
        }
    }
    const bool ok = !result.matchedKey.isEmpty();
    result.verdict = ok ? Verdict::Pass : Verdict::Fail;
    result.verdictKey = ok ? QStringLiteral("COMUNICAÇÃO OK") : QStringLiteral("COMUNICAÇÃO OFF");
    result.colour = ok ? PassColour : FailColour;
    result.repeat = !ok;
    return result;
}

QString status(const RadioResult &result, const QString &translatedVerdict)
{
    return result.name + QStringLiteral("\r\n") + translatedVerdict;
}

QString repeatSuffix(const QString &translatedRepeat)
{
    return QStringLiteral("\r\n\r\n") + translatedRepeat;
}

QString tipoRf(const QString &modelo, int escolha)
{
    static const QStringList singleModem = {QStringLiteral("IP 6"), QStringLiteral("IP 6 Plus"), QStringLiteral("IP 6s"),
                                            QStringLiteral("IP 6s Plus")};
    if (modelo.isEmpty())
        return QString();
    if (singleModem.contains(modelo))
        return QStringLiteral("T");
    return escolha == 2 ? QStringLiteral("Q") : QStringLiteral("I");
}

} // namespace RadioEngine
