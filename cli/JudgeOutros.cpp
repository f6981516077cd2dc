#include "JudgeOutros.h"

#include "OutrosEngine.h"
#include "Texts.h"

JudgeReport judgeOutros(const QString &model, int mode, const QString &answer)
{
    const std::optional<OutrosEngine::Teste> teste = OutrosEngine::teste(mode);
    const OutrosEngine::Status status = OutrosEngine::status(answer, mode);
    JudgeReport report;
    report.engine = QStringLiteral("outros");
    report.model = model;
    report.extra = {{QStringLiteral("mode"), mode},
                    {QStringLiteral("command"), teste ? teste->command : QString()},
                    {QStringLiteral("keyWord"), teste ? teste->keyWord : QString()},
                    {QStringLiteral("answered"), status.complete}};
    if (status.verdict != Verdict::None) {
        report.status = Texts::Traduz(status.verdict == Verdict::Pass ? QStringLiteral("COMUNICAÇÃO OK")
                                                                      : QStringLiteral("COMUNICAÇÃO OFF"),
                                      1);
        report.statusVerdict = status.verdict;
    }
    return report;
}
