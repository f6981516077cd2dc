#include "CheckHistory.h"

#include "CheckSteps.h"
#include "Database.h"

#include <QFileInfo>

namespace {

QString problem(const QString &path, const QString &reason)
{
    return QStringLiteral("%1: %2").arg(path, reason.isEmpty() ? QStringLiteral("cannot be opened") : reason);
}

QString rowKey(const QString &step, const QString &name)
{
    return step + u'\n' + name;
}

} // namespace

namespace CheckHistory {

QString store(const QString &dbPath, CheckResult &result)
{
    // A missing file is never created here: the check would land in a file nobody reads.
    if (!QFileInfo(dbPath).isFile())
        return problem(dbPath, QStringLiteral("file not found"));
    Database db(dbPath);
    const std::optional<qint64> id = db.storeCheck(result.toRecord());
    if (!id)
        return problem(dbPath, db.lastError());
    result.storedId = *id;
    return {};
}

QList<CheckRecord> checks(const QString &dbPath, const QString &serial, QString *error)
{
    if (!QFileInfo(dbPath).isFile()) {
        if (error)
            *error = problem(dbPath, QStringLiteral("file not found"));
        return {};
    }
    Database db(dbPath, Database::Access::ReadOnly);
    const QList<CheckRecord> list = db.checks(serial);
    // A file from before the history has no tables yet: then it holds no checks either.
    const bool noTables = db.lastError().contains(QLatin1String("no such table"));
    if (error)
        *error = db.lastError().isEmpty() || noTables ? QString() : problem(dbPath, db.lastError());
    return list;
}

std::optional<CheckResult> load(const QString &dbPath, qint64 id, QString *error)
{
    Database db(dbPath, Database::Access::ReadOnly);
    const std::optional<CheckRecord> record = db.isOpen() ? db.check(id) : std::nullopt;
    if (!record) {
        if (error)
            *error = problem(dbPath, db.lastError().isEmpty() ? QStringLiteral("no check %1").arg(id) : db.lastError());
        return std::nullopt;
    }
    CheckResult result = CheckResult::fromRecord(*record);
    for (CheckStepResult &step : result.steps)
        step.detail = CheckSteps::detail(step.key, result.model);
    return result;
}

} // namespace CheckHistory

CheckComparison::CheckComparison(const CheckResult &earlier) : m_earlier(earlier)
{
    for (const CheckStepResult &step : earlier.steps)
        for (const JudgedRow &row : step.rows)
            m_rows.insert(rowKey(step.key, row.name), row);
}

std::optional<JudgedRow> CheckComparison::row(const QString &step, const QString &name) const
{
    const auto it = m_rows.constFind(rowKey(step, name));
    if (it == m_rows.cend())
        return std::nullopt;
    return *it;
}
