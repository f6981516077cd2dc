#include "CheckResult.h"

#include "DatabaseRecords.h"

#include <QJsonArray>

bool CheckStepResult::anyFailed() const
{
    for (const JudgedRow &r : rows)
        if (r.verdict == Verdict::Fail)
            return true;
    return false;
}

bool CheckResult::anyFailed() const
{
    for (const CheckStepResult &s : steps)
        if (s.anyFailed())
            return true;
    return false;
}

bool CheckResult::anyJudged() const
{
    for (const CheckStepResult &s : steps)
        for (const JudgedRow &r : s.rows)
            if (r.verdict != Verdict::None)
                return true;
    return false;
}

int CheckResult::noAnswerCount() const
{
    int n = 0;
    for (const CheckStepResult &s : steps)
        n += s.outcome == CheckStepResult::Outcome::NoAnswer;
    return n;
}

int CheckResult::exitCode() const
{
    return anyFailed() || !anyJudged() || noAnswerCount() > 0 || !complete() ? 1 : 0;
}

QList<CheckLine> CheckResult::failuresFirst() const
{
    QList<CheckLine> bad;
    QList<CheckLine> rest;
    for (const CheckStepResult &s : steps) {
        if (s.outcome == CheckStepResult::Outcome::NoAnswer)
            bad.append({&s, nullptr});
        for (const JudgedRow &r : s.rows)
            (r.verdict == Verdict::Fail ? bad : rest).append({&s, &r});
    }
    return bad + rest;
}

QJsonObject CheckResult::toJson() const
{
    QJsonArray stepArray;
    for (const CheckStepResult &s : steps) {
        QJsonArray rowArray;
        for (const JudgedRow &r : s.rows)
            rowArray.append(QJsonObject{{QStringLiteral("name"), r.name},
                                        {QStringLiteral("label"), r.label},
                                        {QStringLiteral("caption"), r.caption},
                                        {QStringLiteral("deviation"), r.deviation},
                                        {QStringLiteral("verdict"), verdictText(r.verdict)}});
        QJsonObject step{{QStringLiteral("step"), s.key},
                         {QStringLiteral("answered"), s.outcome == CheckStepResult::Outcome::Judged},
                         {QStringLiteral("rows"), rowArray}};
        if (!s.detail.isEmpty())
            step.insert(QStringLiteral("detail"), s.detail);
        if (!s.problem.isEmpty())
            step.insert(QStringLiteral("problem"), s.problem);
        stepArray.append(step);
    }
    static const char *ends[] = {"complete", "lost", "cancelled"};
    return {{QStringLiteral("engine"), QStringLiteral("check")},
            {QStringLiteral("model"), model},
            {QStringLiteral("serial"), serial},
            {QStringLiteral("version"), version},
            {QStringLiteral("date"), when.toString(Qt::ISODate)},
            {QStringLiteral("status"), QString::fromLatin1(ends[int(end)])},
            {QStringLiteral("complete"), complete()},
            {QStringLiteral("stepsRun"), int(steps.size())},
            {QStringLiteral("stepsTotal"), totalSteps},
            {QStringLiteral("failed"), anyFailed()},
            {QStringLiteral("judged"), anyJudged()},
            {QStringLiteral("noAnswer"), noAnswerCount()},
            {QStringLiteral("storedId"), storedId},
            {QStringLiteral("steps"), stepArray}};
}

CheckRecord CheckResult::toRecord() const
{
    CheckRecord record;
    record.id = storedId;
    record.data = when.toString(Qt::ISODate);
    record.modelo = model;
    record.serie = serial;
    record.versao = version;
    record.completa = complete();
    for (const CheckStepResult &s : steps) {
        if (s.outcome == CheckStepResult::Outcome::NoAnswer)
            record.rows.append({s.key, QString(), QString(), QString(), QString(), QString::fromLatin1(NoAnswerVerdict)});
        for (const JudgedRow &r : s.rows)
            record.rows.append({s.key, r.name, r.label.toString(), r.caption, r.deviation.toString(),
                                verdictText(r.verdict)});
    }
    return record;
}

CheckResult CheckResult::fromRecord(const CheckRecord &record)
{
    CheckResult result;
    result.storedId = record.id;
    result.when = QDateTime::fromString(record.data, Qt::ISODate);
    result.model = record.modelo;
    result.serial = record.serie;
    result.version = record.versao;
    result.end = record.completa ? End::Complete : End::Lost;
    for (const CheckRowRecord &r : record.rows) {
        if (result.steps.isEmpty() || result.steps.last().key != r.etapa)
            result.steps.append({r.etapa, {}, CheckStepResult::Outcome::Judged, {}, {}});
        CheckStepResult &step = result.steps.last();
        if (r.veredito == QLatin1String(NoAnswerVerdict)) {
            step.outcome = CheckStepResult::Outcome::NoAnswer;
            continue;
        }
        const Verdict verdict = r.veredito == QLatin1String("pass")   ? Verdict::Pass
                                : r.veredito == QLatin1String("fail") ? Verdict::Fail
                                                                      : Verdict::None;
        step.rows.append({r.nome, r.rotulo.isEmpty() ? QJsonValue() : QJsonValue(r.rotulo), r.legenda,
                          r.desvio.isEmpty() ? QJsonValue() : QJsonValue(r.desvio), verdict});
    }
    result.totalSteps = int(result.steps.size());
    return result;
}
