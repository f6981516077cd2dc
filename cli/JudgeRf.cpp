#include "JudgeRf.h"

#include "CliOutput.h"
#include "LiveExchange.h"
#include "RadioEngine.h"
#include "Texts.h"

#include <QCommandLineParser>
#include <QFile>

namespace {

const QString JudgeUsage = QStringLiteral(
    "usage: vekto-cli judge rf --model M --radio 0-3|baseband|bluetooth|gps|wifi --answer FILE [--db FILE] [--json]");
const QString RunUsage = QStringLiteral(
    "usage: vekto-cli run rf --port P --model M|auto --radio 0-3|baseband|bluetooth|gps|wifi [--db FILE] [--json]");

void addCommonOptions(QCommandLineParser &parser)
{
    parser.addOption({QStringLiteral("model"), QStringLiteral("The model, as the model list shows it."), QStringLiteral("M")});
    parser.addOption({QStringLiteral("radio"), QStringLiteral("0 baseband, 1 Bluetooth, 2 GPS, 3 Wi-Fi."),
                      QStringLiteral("N")});
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object.")});
    // Accepted by every judge and run command alike; a radio verdict itself needs no references.
    parser.addOption({QStringLiteral("db"), QStringLiteral("The database (default: Config.vkt beside the program)."),
                      QStringLiteral("FILE")});
}

bool parseArgs(QCommandLineParser &parser, const QString &command, const QStringList &args, QTextStream &err,
               const QString &usage)
{
    if (!parser.parse(QStringList{QStringLiteral("vekto-cli ") + command} + args)) {
        err << "vekto-cli: " << parser.errorText() << '\n' << usage << Qt::endl;
        return false;
    }
    if (!parser.positionalArguments().isEmpty() || parser.value(QStringLiteral("model")).isEmpty() ||
        parseRadio(parser.value(QStringLiteral("radio"))) < 0) {
        err << usage << Qt::endl;
        return false;
    }
    return true;
}

void printReport(const JudgeReport &report, bool json, QTextStream &out, QTextStream &err)
{
    report.print(out, json);
    out.flush();
    // Why nothing was judged, in words, for whoever reads the table rather than the JSON.
    const QString message = report.extra.value(QStringLiteral("messageText")).toString();
    if (!json && !message.isEmpty())
        err << "vekto-cli: " << message << Qt::endl;
}

} // namespace

int parseRadio(const QString &text)
{
    static const QStringList names = {QStringLiteral("baseband"), QStringLiteral("bluetooth"), QStringLiteral("gps"),
                                      QStringLiteral("wifi")};
    const QString t = text.trimmed().toLower();
    bool number = false;
    const int n = t.toInt(&number);
    if (number)
        return n >= 0 && n < RadioEngine::RadioCount ? n : -1;
    return int(names.indexOf(t));
}

JudgeReport judgeRfAnswer(const QString &model, int radio, const QString &answer, quint8 idioma)
{
    JudgeReport report;
    report.engine = QStringLiteral("rf");
    report.model = model;
    report.status = QJsonValue::Null;
    const auto command = RadioEngine::command(radio, true, model);
    if (!command)
        return report;
    const quint8 byte = command->radio;
    report.extra.insert(QStringLiteral("radio"), RadioEngine::name(byte));
    JudgedRow row;
    row.name = RadioEngine::backgroundLabel(byte);
    row.label = QJsonValue::Null;
    row.deviation = QJsonValue::Null;
    if (!command->messageKey.isEmpty()) {
        // The screen shows this message and sends nothing: there is no verdict to give.
        report.extra.insert(QStringLiteral("message"), command->messageKey);
        if (const auto message = Texts::Mensagem(command->messageKey, idioma))
            report.extra.insert(QStringLiteral("messageText"), message->text);
        report.rows.append(row);
        return report;
    }
    report.extra.insert(QStringLiteral("command"), command->command);

    const RadioEngine::RadioResult result = RadioEngine::AnalisaResposta(byte, answer);
    row.verdict = result.verdict;
    report.extra.insert(QStringLiteral("background"), RadioEngine::colourText(result.colour));
    if (result.verdict != Verdict::None) {
        const QString verdictText = Texts::Traduz(result.verdictKey, idioma);
        row.caption = verdictText;
        if (!result.matchedKey.isEmpty())
            row.label = result.matchedKey;
        report.status = RadioEngine::status(result, verdictText);
        report.statusVerdict = result.verdict;
    }
    report.rows.append(row);
    return report;
}

int runJudgeRf(const QStringList &args, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    addCommonOptions(parser);
    parser.addOption({QStringLiteral("answer"), QStringLiteral("The saved console answer."), QStringLiteral("FILE")});
    if (!parseArgs(parser, QStringLiteral("judge rf"), args, err, JudgeUsage))
        return 2;
    const QString answerPath = parser.value(QStringLiteral("answer"));
    if (answerPath.isEmpty()) {
        err << JudgeUsage << Qt::endl;
        return 2;
    }
    QFile file(answerPath);
    if (!file.open(QIODevice::ReadOnly)) {
        err << "vekto-cli: cannot read the answer " << answerPath << ": " << file.errorString() << Qt::endl;
        return 2;
    }
    const JudgeReport report = judgeRfAnswer(parser.value(QStringLiteral("model")),
                                             parseRadio(parser.value(QStringLiteral("radio"))),
                                             QString::fromUtf8(file.readAll()));
    printReport(report, parser.isSet(QStringLiteral("json")), out, err);
    return report.exitCode();
}

int runRunRf(const QStringList &args, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    addCommonOptions(parser);
    parser.addOption({QStringLiteral("port"), QStringLiteral("The serial device to use."), QStringLiteral("P")});
    if (!parseArgs(parser, QStringLiteral("run rf"), args, err, RunUsage))
        return 2;
    const QString portName = parser.value(QStringLiteral("port"));
    if (portName.isEmpty()) {
        err << RunUsage << Qt::endl;
        return 2;
    }
    QString model = parser.value(QStringLiteral("model"));
    const int radio = parseRadio(parser.value(QStringLiteral("radio")));

    LiveExchange live(Cli::databasePath(parser));
    if (model == QLatin1String("auto")) {
        const auto recognised = live.recogniseModel(portName);
        if (!recognised) {
            err << (live.lost() ? QStringLiteral("the device on %1 vanished").arg(portName)
                                : QStringLiteral("the model could not be recognised; give it with --model"))
                << Qt::endl;
            return 1;
        }
        model = *recognised;
    } else if (const QString problem = live.open(portName); !problem.isEmpty()) {
        err << problem << Qt::endl;
        return 1;
    }

    const auto command = RadioEngine::command(radio, true, model);
    QString answer;
    if (command && command->messageKey.isEmpty()) {
        const std::optional<QString> console = live.exchange(command->command);
        if (!console) {
            err << "the device on " << portName << " vanished during the answer" << Qt::endl;
            return 1;
        }
        if (console->trimmed().isEmpty())
            err << "no answer from " << portName << Qt::endl;
        answer = *console;
    }
    const JudgeReport report = judgeRfAnswer(model, radio, answer);
    printReport(report, parser.isSet(QStringLiteral("json")), out, err);
    return report.exitCode();
}
