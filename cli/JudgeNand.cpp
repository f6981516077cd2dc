#include "JudgeNand.h"

#include "NandEngine.h"
#include "Texts.h"

namespace {

// The command line speaks the screens' own language, Portuguese.
QString pt(const QString &key)
{
    return Texts::Traduz(key, 1);
}

QString outcomeName(NandEngine::Size::Outcome outcome)
{
    switch (outcome) {
    case NandEngine::Size::Outcome::TooShort: return QStringLiteral("too-short");
    case NandEngine::Size::Outcome::NotAvailable: return QStringLiteral("not-available");
    case NandEngine::Size::Outcome::Unreadable: return QStringLiteral("unreadable");
    case NandEngine::Size::Outcome::TooLong: return QStringLiteral("too-long");
    case NandEngine::Size::Outcome::Read: break;
    }
    return QStringLiteral("read");
}

} // namespace

JudgeReport judgeNandSize(const QString &model, const QString &answer)
{
    const NandEngine::Size size = NandEngine::size(answer);
    QString caption;
    switch (size.outcome) {
    case NandEngine::Size::Outcome::Read:
        caption = NandEngine::sizeCaption(size, pt(QStringLiteral("APROX.")));
        break;
    case NandEngine::Size::Outcome::NotAvailable:
        caption = pt(QStringLiteral("Não disponível para 6/6P"));
        break;
    default:
        caption = pt(QStringLiteral("Tamanho não identificado"));
        break;
    }
    JudgeReport report;
    report.engine = QStringLiteral("nand-size");
    report.model = model;
    // The size line has no label of its own: it is cut between the first ":" and the prompt.
    report.rows.append({QStringLiteral("lbNand"), QJsonValue(), QStringLiteral("NAND ") + caption, QJsonValue(),
                        NandEngine::sizeVerdict(size)});
    report.extra = {{QStringLiteral("outcome"), outcomeName(size.outcome)}};
    if (size.outcome == NandEngine::Size::Outcome::Read || size.outcome == NandEngine::Size::Outcome::TooLong)
        report.extra.insert(QStringLiteral("sizeText"), size.sizeText);
    if (size.outcome == NandEngine::Size::Outcome::Read) {
        report.extra.insert(QStringLiteral("megas"), size.megas);
        report.extra.insert(QStringLiteral("classGb"), size.classGb > 0 ? QJsonValue(size.classGb) : QJsonValue());
    }
    return report;
}

JudgeReport judgeNandStatus(const QString &model, int mode, const QString &answer)
{
    const NandEngine::Status status = NandEngine::status(answer, mode);
    JudgeReport report;
    report.engine = QStringLiteral("nand-status");
    report.model = model;
    report.extra = {{QStringLiteral("mode"), mode}, {QStringLiteral("command"), NandEngine::command(mode)}};
    switch (status.outcome) {
    case NandEngine::Status::Outcome::TooShort:
        report.extra.insert(QStringLiteral("answered"), false);
        break;
    case NandEngine::Status::Outcome::NotAvailable:
        report.extra.insert(QStringLiteral("replacement"), pt(QStringLiteral("Não disponível para 6/6P")));
        break;
    case NandEngine::Status::Outcome::Judged:
        report.status = pt(NandEngine::statusKey(status.verdict));
        report.statusVerdict = status.verdict;
        break;
    }
    return report;
}
