#include "JudgeCompare.h"

#include "AutoComparador.h"
#include "Database.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString Usage = QStringLiteral(
    "usage: vekto-cli judge compare --model M --command C --answer FILE [--db FILE] [--json]");

struct Verdict
{
    QString caption;
    QString verdict;
    QString status;
};

Verdict judge(const QString &command, const QString &answer, const std::optional<DadosRecord> &recorded,
              const QStringList &masks)
{
    if (!recorded)
        return {QStringLiteral("..."), QStringLiteral("none"), QStringLiteral("no recorded answer")};
    // The console never compares the answers of its long-answer commands; neither does the judge.
    const auto mark = AutoComparador::evaluate(answer, recorded->dados, masks,
                                               AutoComparador::isLongAnswerCommand(command));
    if (mark == AutoComparador::Mark::Unchanged)
        return {QStringLiteral("..."), QStringLiteral("none"), QStringLiteral("long answer, not compared")};
    if (mark == AutoComparador::Mark::Shown)
        return {QStringLiteral("Auto Comparador OK"), QStringLiteral("pass"), QStringLiteral("ok")};
    return {QStringLiteral("..."), QStringLiteral("fail"), QStringLiteral("ok")};
}

} // namespace

int runJudgeCompare(const QStringList &args, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Judges a saved console answer against the recorded one."));
    parser.addOption({QStringLiteral("model"), QStringLiteral("The model, as the model list shows it."), QStringLiteral("M")});
    parser.addOption({QStringLiteral("command"), QStringLiteral("The command that was sent."), QStringLiteral("C")});
    parser.addOption({QStringLiteral("answer"), QStringLiteral("The saved console answer."), QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("db"), QStringLiteral("The database (default: Config.vkt beside the program)."),
                      QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object.")});
    if (!parser.parse(QStringList{QStringLiteral("vekto-cli judge compare")} + args)) {
        err << "vekto-cli: " << parser.errorText() << '\n' << Usage << Qt::endl;
        return 2;
    }
    const QString model = parser.value(QStringLiteral("model"));
    const QString command = parser.value(QStringLiteral("command"));
    const QString answerPath = parser.value(QStringLiteral("answer"));
    if (model.isEmpty() || command.isEmpty() || answerPath.isEmpty() || !parser.positionalArguments().isEmpty()) {
        err << Usage << Qt::endl;
        return 2;
    }

    QFile answerFile(answerPath);
    if (!answerFile.open(QIODevice::ReadOnly)) {
        err << "vekto-cli: cannot read the answer " << answerPath << ": " << answerFile.errorString() << Qt::endl;
        return 1;
    }
    const QString answer = QString::fromUtf8(answerFile.readAll());

    QString dbPath = parser.value(QStringLiteral("db"));
    if (dbPath.isEmpty())
        dbPath = QCoreApplication::applicationDirPath() + QStringLiteral("/Config.vkt");
    if (!QFileInfo(dbPath).isFile()) {
        err << "vekto-cli: database " << dbPath << " not found" << Qt::endl;
        return 1;
    }
    Database db(dbPath, Database::Access::ReadOnly);
    if (!db.isOpen()) {
        err << "vekto-cli: cannot open the database " << dbPath << ": " << db.lastError() << Qt::endl;
        return 1;
    }
    const std::optional<DadosRecord> recorded = db.dadosRecord(model, command);
    const QStringList masks = db.maskTexts();
    if (!db.lastError().isEmpty()) {
        err << "vekto-cli: cannot read the database " << dbPath << ": " << db.lastError() << Qt::endl;
        return 1;
    }
    const Verdict v = judge(command, answer, recorded, masks);

    if (parser.isSet(QStringLiteral("json"))) {
        const QJsonObject row{{QStringLiteral("name"), QStringLiteral("lbAutoComparador")},
                              {QStringLiteral("label"), command},
                              {QStringLiteral("caption"), v.caption},
                              {QStringLiteral("deviation"), QJsonValue::Null},
                              {QStringLiteral("verdict"), v.verdict}};
        const QJsonObject result{{QStringLiteral("engine"), QStringLiteral("compare")},
                                 {QStringLiteral("model"), model},
                                 {QStringLiteral("rows"), QJsonArray{row}},
                                 {QStringLiteral("status"), v.status},
                                 {QStringLiteral("extra"), QJsonObject{}}};
        out << QJsonDocument(result).toJson(QJsonDocument::Compact) << Qt::endl;
    } else {
        out << "lbAutoComparador\t" << command << '\t' << v.caption << '\t' << v.verdict << Qt::endl;
        if (!recorded)
            out << "no recorded answer for " << model << " / " << command << Qt::endl;
    }
    return 0;
}
