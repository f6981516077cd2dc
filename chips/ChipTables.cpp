#include "ChipTables.h"

#include <QHash>

namespace {

const QString Volts = QStringLiteral(" V");
const QString Milliamps = QStringLiteral(" mA");
const QString Degrees = QStringLiteral(" º");

// The chip screens that judge against a nominal value allow 10 % either way, bounds excluded.
constexpr ChipBound BandLow{-10.0, false};
constexpr ChipBound BandHigh{10.0, false};

ChipRow shown(const QString &label, const QString &control, const QString &unit)
{
    ChipRow r;
    r.label = label;
    r.control = control;
    r.unit = unit;
    return r;
}

ChipRow banded(const QString &label, const QString &control, const QString &reference, const QString &deviationLabel,
               int image)
{
    ChipRow r = shown(label, control, Volts);
    r.reference = reference;
    r.rule = ChipRule::Judged;
    r.low = BandLow;
    r.high = BandHigh;
    r.deviationLabel = deviationLabel;
    r.image = image;
    return r;
}

QList<ChipRow> tigrisRows()
{
    ChipRow vbus = shown(QStringLiteral("tigris vbus :"), QStringLiteral("VBus_V"), Volts);
    vbus.reference = QStringLiteral("4.045");
    vbus.rule = ChipRule::Judged;
    vbus.low = ChipBound{8.0, true};
    vbus.warning = QStringLiteral("Baixa1");
    vbus.valuePaint = ValuePaint::Always;

    ChipRow ibus = shown(QStringLiteral("tigris ibus :"), QStringLiteral("VBus_A"), Milliamps);
    ibus.copies = {QStringLiteral("VBus_A1"), QStringLiteral("VBus_A2")};

    ChipRow vbat = shown(QStringLiteral("tigris vbat :"), QStringLiteral("VBat_V"), Volts);
    vbat.reference = QStringLiteral("4.000");
    vbat.rule = ChipRule::Judged;
    vbat.low = ChipBound{-10.0, false};
    vbat.high = ChipBound{15.0, false};
    vbat.warning = QStringLiteral("Baixa3");
    vbat.valuePaint = ValuePaint::Always;

    ChipRow vdd = shown(QStringLiteral("tigris vdd :"), QStringLiteral("VDD_V"), Volts);
    vdd.rule = ChipRule::FollowsBaixa3;
    vdd.valuePaint = ValuePaint::Always;

    ChipRow temp = shown(QStringLiteral("tigris die_temp :"), QStringLiteral("Temp"), Degrees);
    temp.temperature = true;

    ChipRow vbus1 = vbus;
    vbus1.label = QStringLiteral("tigris vbus1 :");
    vbus1.control = QStringLiteral("VBus_V1");
    vbus1.warning = QStringLiteral("Baixa2");

    ChipRow vbus2 = shown(QStringLiteral("tigris vbus2 :"), QStringLiteral("VBus_V2"), Volts);
    vbus2.rule = ChipRule::Measured;
    vbus2.valuePaint = ValuePaint::Always;

    return {vbus,
            ibus,
            vbat,
            shown(QStringLiteral("tigris ibat :"), QStringLiteral("VBat_A"), Milliamps),
            vdd,
            temp,
            vbus1,
            vbus2,
            shown(QStringLiteral("tigris vldo :"), QStringLiteral("lbVldo"), Volts),
            shown(QStringLiteral("tigris vntc :"), QStringLiteral("lbvntc"), Volts)};
}

QList<ChipRow> tristarRows(const QString &model)
{
    const QString family = model.left(4);
    const bool ip6 = family == QLatin1String("IP 6");
    const bool ip7 = family == QLatin1String("IP 7");
    const QString ldo = ip6 ? QStringLiteral("3") : QStringLiteral("7");

    auto railVoltage = [](const QString &label, int rail, const QString &reference, const QString &net) {
        ChipRow r = banded(label, QStringLiteral("Malha%1_V").arg(rail), reference, QStringLiteral("Porc%1").arg(rail), rail);
        r.valuePaint = ValuePaint::OnFailure;
        r.rail = rail;
        r.railName = net;
        return r;
    };

    ChipRow v1 = railVoltage(QStringLiteral("BIST ldo") + ldo + u':', 1, QStringLiteral("3.000"),
                             ip6 ? QStringLiteral("PP3V0_TRISTAR")
                                 : ip7 ? QStringLiteral("PP3V0_TRISTAR_ANT_PROX") : QStringLiteral("PP3V0_S2"));

    // Rail 1's current must reach its minimum: a deviation below zero fails.
    ChipRow a1 = shown(QStringLiteral("BIST ildo") + ldo + u':', QStringLiteral("Malha1_A"), Milliamps);
    const bool late = model.startsWith(QLatin1String("IP 8")) || model.startsWith(QLatin1String("IP X"));
    a1.reference = late ? QStringLiteral("3.350") : QStringLiteral("1.700");
    a1.rule = ChipRule::Judged;
    a1.low = ChipBound{0.0, true};
    a1.failLabels = {QStringLiteral("Porc1")};
    a1.valuePaint = ValuePaint::OnFailure;
    a1.image = 1;
    a1.okOnPass = false;

    ChipRow v2 = railVoltage(QStringLiteral("BIST buck3:"), 2, QStringLiteral("1.800"),
                             ip6 || ip7 ? QStringLiteral("PP1V8_SDRAM") : QStringLiteral("PP1V8_S2"));

    // The accessory rail varies with what is plugged in: found is good enough.
    ChipRow v3 = shown(QStringLiteral("BIST ldo6:"), QStringLiteral("Malha3_V"), Volts);
    v3.rule = ChipRule::Measured;
    v3.deviationLabel = QStringLiteral("Porc3");
    v3.fixedDeviation = QStringLiteral("ACC");
    v3.image = 3;
    v3.okOnPass = false;
    v3.rail = 3;
    v3.railName = ip6 ? QStringLiteral("PP3V3_ACC") : QStringLiteral("PP_ACC_VAR");

    return {v1,
            a1,
            v2,
            shown(QStringLiteral("ibuck3:"), QStringLiteral("Malha2_A"), Milliamps),
            v3,
            shown(QStringLiteral("BIST ildo6:"), QStringLiteral("Malha3_A"), Milliamps)};
}

QList<ChipRow> chestnutRows()
{
    return {banded(QStringLiteral("chestnut vldo1 :"), QStringLiteral("iLDO_V(1)"), QStringLiteral("5.700"),
                   QStringLiteral("Porc1"), 1),
            banded(QStringLiteral("chestnut vldo2 :"), QStringLiteral("iLDO_V(2)"), QStringLiteral("5.700"),
                   QStringLiteral("Porc2"), 2),
            banded(QStringLiteral("chestnut vldo3 :"), QStringLiteral("iLDO_V(3)"), QStringLiteral("5.100"),
                   QStringLiteral("Porc3"), 3),
            shown(QStringLiteral("chestnut ildo1 :"), QStringLiteral("iLDO_A(1)"), Milliamps),
            shown(QStringLiteral("chestnut ildo2 :"), QStringLiteral("iLDO_A(2)"), Milliamps),
            shown(QStringLiteral("chestnut ildo3 :"), QStringLiteral("iLDO_A(3)"), Milliamps),
            banded(QStringLiteral("chestnut vneg :"), QStringLiteral("VNEG_V"), QStringLiteral("-5.700"),
                   QStringLiteral("Porc4"), 4),
            shown(QStringLiteral("chestnut ineg :"), QStringLiteral("VNEG_A"), Milliamps),
            shown(QStringLiteral("chestnut vin :"), QStringLiteral("VIN_V"), Volts),
            shown(QStringLiteral("chestnut ground :"), QStringLiteral("gndV"), Volts),
            banded(QStringLiteral("chestnut vboost :"), QStringLiteral("BOOST_V"), QStringLiteral("6.000"),
                   QStringLiteral("Porc5"), 5)};
}

QList<ChipRow> acornRows()
{
    auto found = [](const QString &label, int index) {
        ChipRow r = shown(label, QStringLiteral("M%1").arg(index), Volts);
        r.rule = ChipRule::Measured;
        r.image = index;
        return r;
    };
    auto judged = [](const QString &label, int index, const QString &reference) {
        return banded(label, QStringLiteral("M%1").arg(index), reference, QStringLiteral("P%1").arg(index), index);
    };
    ChipRow temp = shown(QStringLiteral("acorn die_temp :"), QStringLiteral("Temp"), Degrees);
    temp.temperature = true;
    return {found(QStringLiteral("acorn ground :"), 0),
            found(QStringLiteral("acorn vin :"), 1),
            found(QStringLiteral("acorn vb :"), 2),
            judged(QStringLiteral("acorn vp :"), 3, QStringLiteral("10.000")),
            judged(QStringLiteral("acorn vn :"), 4, QStringLiteral("-6.700")),
            judged(QStringLiteral("acorn vh :"), 5, QStringLiteral("5.250")),
            found(QStringLiteral("acorn vl :"), 6),
            judged(QStringLiteral("acorn va :"), 7, QStringLiteral("3.500")),
            judged(QStringLiteral("acorn vc :"), 8, QStringLiteral("1.100")),
            judged(QStringLiteral("BIST buck4:"), 9, QStringLiteral("1.100")),
            judged(QStringLiteral("BIST buck3_sw2:"), 10, QStringLiteral("1.800")),
            temp,
            shown(QStringLiteral("acorn ia :"), QStringLiteral("AMP1"), Milliamps),
            shown(QStringLiteral("acorn in :"), QStringLiteral("AMP2"), Milliamps),
            shown(QStringLiteral("acorn ip :"), QStringLiteral("AMP3"), Milliamps),
            shown(QStringLiteral("acorn ih :"), QStringLiteral("AMP4"), Milliamps)};
}

// Designators by model pair, in the order IP 6, IP 6s, IP 7, IP 8 (IP X shares the IP 8 entry
// where the chip exists on it).
QString byModelPair(const QString &model, const QStringList &designators, bool onX)
{
    static const QList<QStringList> pairs = {{QStringLiteral("IP 6"), QStringLiteral("IP 6 Plus")},
                                             {QStringLiteral("IP 6s"), QStringLiteral("IP 6s Plus")},
                                             {QStringLiteral("IP 7"), QStringLiteral("IP 7 Plus")},
                                             {QStringLiteral("IP 8"), QStringLiteral("IP 8 Plus")}};
    for (qsizetype i = 0; i < pairs.size(); ++i)
        if (pairs[i].contains(model))
            return designators.value(i);
    if (onX && model == QLatin1String("IP X"))
        return designators.value(3);
    return {};
}

} // namespace

namespace ChipTables {

const QList<ChipDefinition> &definitions()
{
    static const QList<ChipDefinition> all = {
        {Chip::Tigris, QStringLiteral("Tigris"), QStringLiteral("tigris"), QStringLiteral("pmuadc --sel tigris --read all"),
         QStringLiteral("9"), true, false, true, true},
        {Chip::Tristar, QStringLiteral("Tristar"), QStringLiteral("tristar"), QStringLiteral("pmuadc --read all"),
         QStringLiteral("10"), true, true, false, true},
        {Chip::Chestnut, QStringLiteral("Chestnut"), QStringLiteral("chestnut"),
         QStringLiteral("pmuadc --sel chestnut --read all"), QStringLiteral("8"), true, true, true, true},
        {Chip::Acorn, QStringLiteral("Acorn"), QStringLiteral("acorn"), QStringLiteral("pmuadc --read all"),
         QStringLiteral("12"), false, true, false, false},
    };
    return all;
}

const ChipDefinition &definition(Chip chip)
{
    return definitions().at(int(chip));
}

std::optional<Chip> byEngine(const QString &engine)
{
    for (const ChipDefinition &d : definitions())
        if (d.engine == engine)
            return d.chip;
    return std::nullopt;
}

std::optional<Chip> byName(const QString &name)
{
    for (const ChipDefinition &d : definitions())
        if (d.name == name)
            return d.chip;
    return std::nullopt;
}

bool hasSecondVbus(const QString &model)
{
    return model == QLatin1String("IP 8") || model == QLatin1String("IP 8 Plus") || model == QLatin1String("IP X");
}

QList<ChipRow> rows(Chip chip, const QString &model)
{
    switch (chip) {
    case Chip::Tigris:
        return tigrisRows().mid(0, hasSecondVbus(model) ? 10 : 6);
    case Chip::Tristar:
        return tristarRows(model);
    case Chip::Chestnut:
        return chestnutRows();
    case Chip::Acorn:
        return acornRows();
    }
    return {};
}

QString designator(Chip chip, const QString &model)
{
    switch (chip) {
    case Chip::Tigris:
        return byModelPair(model, {QStringLiteral("U1401"), QStringLiteral("U2300"), QStringLiteral("U2101"),
                                   QStringLiteral("U3300")}, true);
    case Chip::Tristar:
        return byModelPair(model, {QStringLiteral("U1700"), QStringLiteral("U4500"), QStringLiteral("U4001"),
                                   QStringLiteral("U6300")}, true);
    case Chip::Chestnut:
        return byModelPair(model, {QStringLiteral("U1501"), QStringLiteral("U4000"), QStringLiteral("U3703"),
                                   QStringLiteral("U5600")}, false);
    case Chip::Acorn:
        break;
    }
    return {};
}

bool refuses(Chip chip, const QString &model)
{
    const bool x = model == QLatin1String("IP X");
    return (chip == Chip::Chestnut && x) || (chip == Chip::Acorn && !x);
}

std::pair<QString, int> splitControl(const QString &control)
{
    const qsizetype open = control.indexOf(u'(');
    if (open < 0 || !control.endsWith(u')'))
        return {control, -1};
    return {control.left(open), control.mid(open + 1, control.size() - open - 2).toInt()};
}

QString objectName(const QString &control)
{
    const auto [name, index] = splitControl(control);
    return index < 0 ? name : name + u'_' + QString::number(index);
}

} // namespace ChipTables
