#include "I2CEngine.h"

namespace {

QString family(const QString &model)
{
    return model.left(4);
}

// The headings already in the failure list, one line each, so a description that happens to
// contain "I2C 2" never passes for a heading.
bool hasHeading(const QString &failures, const QString &heading)
{
    const QStringList lines = QString(failures).remove(u'\r').split(u'\n');
    return lines.contains(heading);
}

} // namespace

bool I2CBusResult::anyFailed() const
{
    for (const I2CDeviceResult &d : devices)
        if (d.verdict == Verdict::Fail)
            return true;
    return false;
}

namespace I2CEngine {

I2CEntry parseEntry(const QString &entry)
{
    I2CEntry e;
    e.entry = entry;
    e.address = entry.mid(1, 3);
    e.wellFormed = e.address.size() == 3;
    const qsizetype dash = entry.indexOf(u'-');
    // A row without "-" still names its device: everything after the address.
    e.description = dash >= 0 ? entry.mid(dash + 1) : entry.mid(4);
    return e;
}

QString command(int bus)
{
    return QStringLiteral("i2c -s ") + QString::number(bus);
}

BusLayout busLayout(const QString &model)
{
    BusLayout l{};
    auto disable = [&l](std::initializer_list<int> buses) {
        for (int b : buses)
            l[b].enabled = false;
    };
    auto hide = [&l](std::initializer_list<int> buses) {
        for (int b : buses)
            l[b].visible = false;
    };
    const QString f = family(model);
    if (f == QLatin1String("IP 6")) {
        disable({3});
        hide({3, 4, 5, 6, 7});
    } else if (f == QLatin1String("IP 7")) {
        disable({5});
        hide({6, 7});
    } else if (f == QLatin1String("IP 8")) {
        disable({5});
    } else if (f == QLatin1String("IP X")) {
        disable({1, 2});
    }
    if (model == QLatin1String("IP 7 Plus"))
        disable({3});
    else if (model == QLatin1String("IP 8 Plus"))
        disable({1});
    return l;
}

int autoTesteRow(const QString &model)
{
    const QString f = family(model);
    if (f == QLatin1String("IP 6"))
        return 3;
    if (f == QLatin1String("IP 7"))
        return 5;
    return BusCount;
}

QString connectorText(const QString &model, int bus)
{
    // The two "IP 7 Plus" texts name the same flex with the words in another order than the
    // "IP 7" ones; technicians search the schematics for these exact texts, so they stay.
    struct Row
    {
        const char *model;
        int bus;
        const char *text;
    };
    static const Row rows[] = {
        {"IP 6", 2, "J1110 - Flex Front Camera and Prox. Sensor Cable"},
        {"IP 6 Plus", 2, "J1110 - Flex Front Camera and Prox. Sensor Cable"},
        {"IP 7", 2, "J4503 - Flex Front Camera and Prox. Sensor Cable"},
        {"IP 7", 3, "Codec Audio"},
        {"IP 7", 4, "Flex Front Camera and Prox. Sensor Cable"},
        {"IP 7 Plus", 2, "J4503 - Flex Front Camera and Sensor Prox. Cable"},
        {"IP 7 Plus", 4, "Flex Front Camera and Sensor Prox. Cable"},
        {"IP 8", 1, "DOCK"},
        {"IP 8", 3, "DOCK"},
        {"IP 8 Plus", 3, "0X51 - RF"},
    };
    for (const Row &r : rows)
        if (r.bus == bus && model == QLatin1String(r.model))
            return QString::fromUtf8(r.text);
    return {};
}

QString pdfName(const QString &model)
{
    // Only the "IP 6s" extract lacks the leading x; the files ship under these names.
    if (model.startsWith(QLatin1String("IP 6s")))
        return QStringLiteral("A9.pdf");
    if (model.startsWith(QLatin1String("IP 6")))
        return QStringLiteral("xA8.pdf");
    if (model.startsWith(QLatin1String("IP 7")))
        return QStringLiteral("xA10.pdf");
    if (model.startsWith(QLatin1String("IP 8")) || model.startsWith(QLatin1String("IP X")))
        return QStringLiteral("xA11.pdf");
    return {};
}

I2CBusResult judge(int bus, const QString &answer, const QStringList &entries, const I2CTexts &texts)
{
    I2CBusResult result;
    result.bus = bus;
    for (const QString &text : entries) {
        I2CDeviceResult d;
        d.device = parseEntry(text);
        const QString named = d.device.address + QStringLiteral(" - ") + d.device.description + QStringLiteral(" - ");
        if (!d.device.wellFormed) {
            // An empty or cut address would be "found" in any answer: say so instead of passing it.
            d.verdict = Verdict::None;
            d.line = text + QStringLiteral(" - ") + texts.invalid;
        } else {
            // A plain substring search over the whole answer, as the console lists addresses
            // inside longer text ("device answered at 0x74").
            d.verdict = answer.contains(d.device.address) ? Verdict::Pass : Verdict::Fail;
            d.line = named + (d.verdict == Verdict::Pass ? texts.ok : texts.off);
        }
        result.devices.append(d);
    }
    return result;
}

QString appendFailures(const QString &failures, const I2CBusResult &result, const QString &model)
{
    if (!result.anyFailed())
        return failures;
    QString out = failures;
    const QString heading = QStringLiteral("I2C ") + QString::number(result.bus);
    if (!hasHeading(out, heading)) {
        if (!out.isEmpty())
            out += QStringLiteral("\n\n");
        out += heading;
        const QString connector = connectorText(model, result.bus);
        if (!connector.isEmpty())
            out += u'\n' + connector + u' ';
    }
    for (const I2CDeviceResult &d : result.devices)
        if (d.verdict == Verdict::Fail)
            out += u'\n' + d.device.address + QStringLiteral(" - ") + d.device.description;
    return out;
}

} // namespace I2CEngine

I2CAutoRun::Step I2CAutoRun::tick(const StateOf &state)
{
    Step step;
    if (m_counter >= I2CEngine::BusCount) {
        step.finish = true;
        return step;
    }
    if (state(m_counter).enabled)
        step.probe = m_counter;
    ++m_counter;
    // A probe always leaves a test waiting: the tick ends there.
    if (step.probe >= 0)
        return step;
    // After a skipped bus, a hidden next button ends the run; past the last bus the next tick does.
    if (m_counter < I2CEngine::BusCount && !state(m_counter).visible)
        step.finish = true;
    return step;
}

QList<int> I2CAutoRun::sequence(const I2CEngine::BusLayout &layout)
{
    QList<int> probed;
    I2CAutoRun run;
    run.start();
    for (int guard = 0; guard < 2 * I2CEngine::BusCount + 2; ++guard) {
        const Step s = run.tick([&layout](int bus) { return layout[bus]; });
        if (s.probe >= 0)
            probed << s.probe;
        if (s.finish)
            break;
    }
    return probed;
}
