#include "ChipFaults.h"

#include <QList>
#include <QPair>

namespace {

// Per command, the labels whose value drops: the Tigris bus, the first Chestnut LDO, and in the
// PMU answer the rail 2 self test (Tristar) and the Acorn positive rail (present on IP X only).
const QList<QPair<QString, QList<QByteArray>>> &lowered()
{
    static const QList<QPair<QString, QList<QByteArray>>> table = {
        {QStringLiteral("pmuadc --sel tigris --read all"), {"tigris vbus :"}},
        {QStringLiteral("pmuadc --sel chestnut --read all"), {"chestnut vldo1 :"}},
        {QStringLiteral("pmuadc --read all"), {"BIST buck3:", "acorn vp :"}},
    };
    return table;
}

QByteArray lowerValue(QByteArray body, const QByteArray &label)
{
    const qsizetype p = body.indexOf(label);
    if (p < 0)
        return body;
    const qsizetype s = p + label.size() + 1;
    const qsizetype e = body.indexOf(' ', s);
    if (e < 0)
        return body;
    bool ok = false;
    const double v = body.mid(s, e - s).toDouble(&ok);
    if (ok)
        body.replace(s, e - s, QByteArray::number(v * 0.8, 'f', 3));
    return body;
}

} // namespace

QByteArray ChipFaults::lowerJudgedValue(const QString &normalisedCommand, QByteArray body)
{
    for (const auto &[command, labels] : lowered())
        if (command == normalisedCommand)
            for (const QByteArray &label : labels)
                body = lowerValue(body, label);
    return body;
}
