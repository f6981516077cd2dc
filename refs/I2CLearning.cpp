#include "I2CLearning.h"

#include "Database.h"
#include "RefOrigins.h"

#include <QRegularExpression>

namespace I2CLearning {

QStringList addresses(const QString &answer)
{
    static const QRegularExpression address(QStringLiteral("\\b0(x[0-9A-Fa-f]{2})\\b"));
    QStringList found;
    for (auto it = address.globalMatch(answer); it.hasNext();) {
        const QString a = it.next().captured(1);
        if (!found.contains(a))
            found << a;
    }
    return found;
}

Plan plan(const QString &model, const QStringList &current, const QMap<int, QString> &answers)
{
    Plan p;
    p.model = model;
    QMap<int, QStringList> answered;
    for (auto it = answers.begin(); it != answers.end(); ++it)
        answered.insert(it.key(), addresses(it.value()));
    QMap<int, QStringList> listed; // addresses already on each probed bus
    for (const QString &entry : current) {
        const int bus = entry.left(1).toInt();
        const bool probed = !entry.isEmpty() && entry.at(0).isDigit() && answered.contains(bus);
        if (!probed) {
            p.entries << entry;
            continue;
        }
        const QString address = entry.mid(1, 3);
        if (address.size() == 3 && answered.value(bus).contains(address)) {
            p.entries << entry;
            p.learned << entry;
            listed[bus] << address;
        } else {
            p.removed << entry;
        }
    }
    for (auto it = answered.begin(); it != answered.end(); ++it) {
        for (const QString &address : it.value()) {
            if (listed.value(it.key()).contains(address))
                continue;
            const QString entry = QString::number(it.key()) + address + u'-';
            p.entries << entry;
            p.learned << entry;
            p.added << entry;
        }
    }
    return p;
}

bool learn(Database &db, const Plan &plan, const QString &at, const QString &version, QString *error)
{
    // Entries on buses the run did not probe keep their origins; the others are the board's now.
    const bool ok = db.transaction([&] {
        for (const QStringList *entries : {&plan.removed, &plan.learned})
            for (const QString &entry : *entries)
                if (!db.deleteRefOrigin(RefOrigins::I2c, plan.model, entry))
                    return false;
        if (!db.replaceI2cEntries(plan.model, plan.entries))
            return false;
        for (const QString &entry : plan.learned) {
            RefOrigin origin;
            origin.kind = RefOrigins::I2c;
            origin.model = plan.model;
            origin.item = entry;
            origin.value = entry;
            origin.source = RefOrigins::Learned;
            origin.boards = 1;
            origin.at = at;
            origin.version = version;
            if (!db.setRefOrigin(origin))
                return false;
        }
        return true;
    });
    if (!ok && error)
        *error = db.lastError();
    return ok;
}

} // namespace I2CLearning
