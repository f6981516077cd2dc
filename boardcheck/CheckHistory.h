#pragma once
// Stores board checks in Config.vkt and reads them back, so a board's check before a repair and
// the one after it can be laid side by side. A check is stored whole or not at all.

#include "CheckResult.h"
#include "DatabaseRecords.h"

#include <QHash>
#include <QString>
#include <optional>

namespace CheckHistory {

// Stores `result` and sets its storedId. Empty when stored; otherwise why not, naming the file
// (then nothing of the check is in the file).
QString store(const QString &dbPath, CheckResult &result);

// The stored checks of `serial`, newest first, without their rows. `error` names the file when
// it cannot be read.
QList<CheckRecord> checks(const QString &dbPath, const QString &serial, QString *error = nullptr);

// One stored check with its rows.
std::optional<CheckResult> load(const QString &dbPath, qint64 id, QString *error = nullptr);

} // namespace CheckHistory

// The rows of an earlier check, found by step and name, for the "before" column.
class CheckComparison
{
public:
    CheckComparison() = default;
    explicit CheckComparison(const CheckResult &earlier);

    bool isEmpty() const { return m_rows.isEmpty(); }
    const CheckResult &earlier() const { return m_earlier; }
    // The earlier row of the same step and name; nothing when the earlier check lacks it.
    std::optional<JudgedRow> row(const QString &step, const QString &name) const;

private:
    CheckResult m_earlier;
    QHash<QString, JudgedRow> m_rows;
};
