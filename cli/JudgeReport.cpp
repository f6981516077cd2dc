#include "JudgeReport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTextStream>

bool JudgeReport::anyFailed() const
{
    if (statusVerdict == Verdict::Fail)
        return true;
    for (const JudgedRow &r : rows)
        if (r.verdict == Verdict::Fail)
            return true;
    return false;
}

bool JudgeReport::anyJudged() const
{
    if (statusVerdict != Verdict::None)
        return true;
    for (const JudgedRow &r : rows)
        if (r.verdict != Verdict::None)
            return true;
    return false;
}

int JudgeReport::exitCode() const
{
    return anyFailed() || !anyJudged() ? 1 : 0;
}

QJsonObject JudgeReport::toJson() const
{
    QJsonArray array;
    for (const JudgedRow &r : rows)
        array.append(QJsonObject{{QStringLiteral("name"), r.name},
                                 {QStringLiteral("label"), r.label},
                                 {QStringLiteral("caption"), r.caption},
                                 {QStringLiteral("deviation"), r.deviation},
                                 {QStringLiteral("verdict"), verdictText(r.verdict)}});
    return {{QStringLiteral("engine"), engine}, {QStringLiteral("model"), model}, {QStringLiteral("rows"), array},
            {QStringLiteral("status"), status}, {QStringLiteral("extra"), extra}};
}

void JudgeReport::print(QTextStream &out, bool json) const
{
    if (json) {
        out << QJsonDocument(toJson()).toJson(QJsonDocument::Indented);
        return;
    }
    out << engine << u' ' << model << u'\n';
    for (const JudgedRow &r : rows)
        out << r.name.leftJustified(18) << u' ' << r.caption.leftJustified(20) << u' '
            << r.deviation.toString().leftJustified(10) << u' ' << verdictText(r.verdict) << u'\n';
    if (!status.isNull())
        out << QStringLiteral("status: ") << status.toString() << u'\n';
    if (!anyJudged())
        out << QStringLiteral("nothing could be judged\n");
}
