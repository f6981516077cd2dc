#include "JudgeCompare.h"

#include "AutoComparador.h"
#include "CliOutput.h"
#include "Database.h"
#include "JudgeReport.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

const QString Usage = QStringLiteral(
    "usage: vekto-cli judge compare --model M --command C --answer FILE [--db FILE] [--json]");

// The one row of the console's mark, and the status that says why it could not be judged.
JudgedRow judge(const QString &command, const QString &answer, const std::optional<DadosRecord> &recorded,
                const QStringList &masks, QString *status)
{
    JudgedRow row{QStringLiteral("lbAutoComparador"), command, QStringLiteral("..."), QJsonValue(), Verdict::None};
    *status = QStringLiteral("ok");
    if (!recorded) {
        *status = QStringLiteral("no recorded answer");
        return row;
    }
    // The console never compares the answers of its long-answer commands; neither does the judge.
    const auto mark = AutoComparador::evaluate(answer, recorded->dados, masks,
                                               AutoComparador::isLongAnswerCommand(command));
    if (mark == AutoComparador::Mark::Unchanged) {
        *status = QStringLiteral("long answer, not compared");
        return row;
    }
    if (mark == AutoComparador::Mark::Shown) {
        row.caption = QStringLiteral("Auto Comparador OK");
        row.verdict = Verdict::Pass;
    } else {
        row.verdict = Verdict::Fail;
    }
    return row;
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
        return Cli::BadUse;
    }
    const QString model = parser.value(QStringLiteral("model"));
    const QString command = parser.value(QStringLiteral("command"));
    const QString answerPath = parser.value(QStringLiteral("answer"));
    if (model.isEmpty() || command.isEmpty() || answerPath.isEmpty() || !parser.positionalArguments().isEmpty()) {
        err << Usage << Qt::endl;
        return Cli::BadUse;
    }

    QFile answerFile(answerPath);
    if (!answerFile.open(QIODevice::ReadOnly)) {
        err << "vekto-cli: cannot read the answer " << answerPath << ": " << answerFile.errorString() << Qt::endl;
        return Cli::UnreadableFile;
    }
    const QString answer = QString::fromUtf8(answerFile.readAll());

    QString dbPath = parser.value(QStringLiteral("db"));
    if (dbPath.isEmpty())
        dbPath = QCoreApplication::applicationDirPath() + QStringLiteral("/Config.vkt");
    if (!QFileInfo(dbPath).isFile()) {
        err << "vekto-cli: " << Cli::databaseProblem(dbPath, QStringLiteral("file not found")) << Qt::endl;
        return Cli::UnreadableFile;
    }
    // Each read is checked at once: a later success must not hide an earlier failure.
    Database db(dbPath, Database::Access::ReadOnly);
    const std::optional<DadosRecord> recorded = db.dadosRecord(model, command);
    QStringList masks;
    if (db.lastError().isEmpty())
        masks = db.maskTexts();
    if (!db.lastError().isEmpty()) {
        err << "vekto-cli: " << Cli::databaseProblem(dbPath, db.lastError()) << Qt::endl;
        return Cli::UnreadableFile;
    }

    JudgeReport report;
    report.engine = QStringLiteral("compare");
    report.model = model;
    QString status;
    report.rows.append(judge(command, answer, recorded, masks, &status));
    report.status = status;
    report.print(out, parser.isSet(QStringLiteral("json")));
    return report.exitCode();
}
