#include "RailLearning.h"

#include "Database.h"
#include "RefOrigins.h"

#include <QRegularExpression>
#include <algorithm>

namespace RailLearning {

std::optional<SlotReading> readSlot(const QString &slot)
{
    // The grid writes volts with a point and currents with a comma; either separator is read so
    // a value typed in by hand in the other form still counts.
    static const QRegularExpression form(QStringLiteral("^(-?)(\\d{1,6})(?:[.,](\\d{1,6}))? (V|mA)$"));
    const auto m = form.match(slot.trimmed());
    if (!m.hasMatch())
        return std::nullopt;
    SlotReading r;
    r.unit = m.captured(4) == QLatin1String("V") ? Unit::Volts : Unit::Milliamps;
    const QString fraction = m.captured(3);
    r.decimals = int(fraction.size());
    // More than three decimals are not a grid form; they are cut, not rounded, as the grid cuts.
    const QString thousandths = (fraction + QStringLiteral("000")).left(3);
    r.thousandths = m.captured(2).toLongLong() * 1000 + thousandths.toLongLong();
    if (!m.captured(1).isEmpty())
        r.thousandths = -r.thousandths;
    return r;
}

namespace {

// Thousandths rounded half away from zero to `decimals`, written with `separator`.
QString formatted(qint64 thousandths, int decimals, QChar separator)
{
    decimals = std::clamp(decimals, 0, 3);
    qint64 step = 1;
    for (int i = decimals; i < 3; ++i)
        step *= 10;
    const bool negative = thousandths < 0;
    qint64 magnitude = negative ? -thousandths : thousandths;
    magnitude = (magnitude + step / 2) / step; // in units of the last kept decimal
    qint64 scale = 1;
    for (int i = 0; i < decimals; ++i)
        scale *= 10;
    QString text = QString::number(magnitude / scale);
    if (decimals > 0)
        text += separator + QStringLiteral("%1").arg(magnitude % scale, decimals, 10, QLatin1Char('0'));
    return (negative && magnitude != 0 ? QStringLiteral("-") : QString()) + text;
}

// The middle reading, or the mean of the two middle ones, in thousandths; halves round away
// from zero so the result never depends on the order the slots were filled in.
qint64 median(QList<qint64> values)
{
    std::sort(values.begin(), values.end());
    const qsizetype n = values.size();
    if (n % 2 == 1)
        return values.at(n / 2);
    const qint64 sum = values.at(n / 2 - 1) + values.at(n / 2);
    return sum >= 0 ? (sum + 1) / 2 : (sum - 1) / 2;
}

} // namespace

RailPlan planRail(const MasterRow &row)
{
    RailPlan plan;
    plan.malha = row.malha;
    plan.oldRefv = row.refv;
    QList<SlotReading> readings;
    for (const QString &slot : {row.g1, row.g2, row.g3})
        if (const auto r = readSlot(slot))
            readings.append(*r);
    plan.readings = int(readings.size());
    if (readings.isEmpty())
        return plan;
    const Unit unit = readings.first().unit;
    if (std::any_of(readings.begin(), readings.end(), [unit](const SlotReading &r) { return r.unit != unit; })) {
        plan.outcome = Outcome::MixedUnits;
        return plan;
    }
    QList<qint64> values;
    int decimals = 0;
    for (const SlotReading &r : readings) {
        values.append(r.thousandths);
        decimals = std::max(decimals, r.decimals);
    }
    const qint64 middle = median(values);
    plan.outcome = Outcome::Learned;
    if (middle == 0)
        plan.newRefv = QStringLiteral("0"); // the form of a rail that is off: never judged
    else if (unit == Unit::Volts)
        plan.newRefv = formatted(middle, 3, u'.');
    else
        plan.newRefv = formatted(middle, decimals, u',');
    return plan;
}

int Plan::learnable() const
{
    return int(std::count_if(rails.begin(), rails.end(), [](const RailPlan &r) { return r.outcome == Outcome::Learned; }));
}

Plan plan(const QString &model, const QList<MasterRow> &rows)
{
    Plan p;
    p.model = model;
    for (const MasterRow &row : rows)
        if (row.modelo.compare(model, Qt::CaseInsensitive) == 0)
            p.rails.append(planRail(row));
    return p;
}

bool learn(Database &db, const Plan &plan, const Context &context, QString *error)
{
    QList<RefUndoRow> before;
    for (const RailPlan &rail : plan.rails)
        if (rail.outcome == Outcome::Learned)
            before.append({rail.malha, rail.oldRefv, db.refOrigin(RefOrigins::Rail, plan.model, rail.malha)});
    const bool ok = !before.isEmpty() && db.transaction([&] {
        if (!db.setRefUndo(plan.model, before))
            return false;
        for (const RailPlan &rail : plan.rails) {
            if (rail.outcome != Outcome::Learned)
                continue;
            RefOrigin origin;
            origin.kind = RefOrigins::Rail;
            origin.model = plan.model;
            origin.item = rail.malha;
            origin.value = rail.newRefv;
            origin.source = RefOrigins::Learned;
            origin.boards = rail.readings;
            origin.serials = context.serials;
            origin.at = context.at;
            origin.version = context.version;
            if (!db.setRefv({plan.model, rail.malha}, rail.newRefv) || !db.setRefOrigin(origin))
                return false;
        }
        return true;
    });
    if (!ok && error)
        *error = before.isEmpty() ? QString() : db.lastError();
    return ok;
}

bool canUndo(Database &db, const QString &model)
{
    return !db.refUndo(model).isEmpty();
}

bool undo(Database &db, const QString &model, QString *error)
{
    const QList<RefUndoRow> rows = db.refUndo(model);
    const bool ok = !rows.isEmpty() && db.transaction([&] {
        for (const RefUndoRow &row : rows) {
            if (!db.setRefv({model, row.malha}, row.refv))
                return false;
            const bool restored = row.origin ? db.setRefOrigin(*row.origin)
                                             : db.deleteRefOrigin(RefOrigins::Rail, model, row.malha);
            if (!restored)
                return false;
        }
        return db.setRefUndo(model, {});
    });
    if (!ok && error)
        *error = rows.isEmpty() ? QString() : db.lastError();
    return ok;
}

} // namespace RailLearning
