#include "NandEngine.h"

#include <array>
#include <cmath>

namespace NandEngine {

namespace {

struct SizeClass
{
    int from;
    int to;
    int gb;
};

// The ranges around each capacity leave gaps on purpose: a value between two classes is not a
// size any of these phones is sold with, so it is shown as the bare number, "approximately".
constexpr std::array<SizeClass, 8> Classes{{
    {7, 12, 8},
    {14, 20, 16},
    {22, 39, 32},
    {46, 79, 64},
    {81, 139, 128},
    {191, 349, 256},
    {351, 699, 512},
    {701, 1299, 1024},
}};

} // namespace

QString command(int mode)
{
    switch (mode) {
    case ModeUid: return QStringLiteral("nanduid");
    case ModeSize: return QStringLiteral("nandsize");
    case ModeInfo: return QStringLiteral("nand --getinfo");
    case ModeSyscfg: return QStringLiteral("syscfg list");
    default: return {};
    }
}

Caption caption(int mode)
{
    switch (mode) {
    case ModeUid: return {QStringLiteral("Identificação Única NAND"), {}};
    case ModeSize: return {QStringLiteral("Tamanho da NAND"), {}};
    case ModeInfo: return {QStringLiteral("Informações da NAND"), {}};
    case ModeSyscfg: return {QStringLiteral("Leitura"), QStringLiteral(" Syscfg Nand")};
    case ModeRails: return {QStringLiteral("Tensões"), QStringLiteral(" NAND")};
    default: return {};
    }
}

bool notAvailable(const QString &answer)
{
    return answer.contains(QLatin1String("not found"));
}

Status status(const QString &answer, int mode)
{
    if (answer.size() < StatusMinChars)
        return {};
    if (notAvailable(answer))
        return {Status::Outcome::NotAvailable, Verdict::None};
    bool good = false;
    if (mode == ModeSyscfg)
        good = answer.size() >= SyscfgMinChars;
    else
        // "Pass" also covers "Passed"; "name:" is the vendor line of the information block.
        good = answer.contains(QLatin1String("Pass")) || answer.contains(QLatin1String("name:"));
    return {Status::Outcome::Judged, good ? Verdict::Pass : Verdict::Fail};
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

double hexValue(const QString &sizeText)
{
    double value = 0;
    double weight = 1;
    for (qsizetype i = sizeText.size() - 1; i >= 0; --i, weight *= 16) {
        const char16_t c = sizeText.at(i).unicode();
        int digit = 0;
        if (c >= u'0' && c <= u'9')
            digit = c - u'0';
        else if (c >= u'A' && c <= u'F')
            digit = 10 + (c - u'A');
        value += digit * weight;
    }
    return value;
}

int sizeClass(double megas)
{
    for (const SizeClass &c : Classes)
        if (megas >= c.from && megas <= c.to)
            return c.gb;
    return 0;
}

Size size(const QString &answer)
{
    Size s;
    if (answer.size() < SizeMinChars)
        return s;
    if (notAvailable(answer)) {
        s.outcome = Size::Outcome::NotAvailable;
        return s;
    }
    // The value runs from just after the first ":" to the line end before the prompt's "[":
    // the two characters before "[" are the CR LF that close the size line.
    const qsizetype colon = answer.indexOf(u':');
    const qsizetype bracket = answer.indexOf(u'[');
    const qsizetype length = bracket - colon - 3;
    if (colon < 0 || bracket < 0 || length <= 0) {
        s.outcome = Size::Outcome::Unreadable;
        return s;
    }
    s.sizeText = answer.mid(colon + 1, length);
    if (length > MaxSizeTextChars) {
        s.outcome = Size::Outcome::TooLong;
        return s;
    }
    s.outcome = Size::Outcome::Read;
    s.megas = std::floor(hexValue(s.sizeText) / 1000000.0);
    s.classGb = sizeClass(s.megas);
    return s;
}

QString sizeCaption(const Size &size, const QString &approx)
{
    if (size.outcome != Size::Outcome::Read)
        return {};
    if (size.classGb > 0)
        return QString::number(size.classGb) + QStringLiteral(" GB");
    return QString::number(size.megas, 'f', 0) + QStringLiteral(" GB ") + approx;
}

Verdict sizeVerdict(const Size &size)
{
    if (size.outcome != Size::Outcome::Read)
        return Verdict::None;
    return size.classGb > 0 ? Verdict::Pass : Verdict::Fail;
}

} // namespace NandEngine
