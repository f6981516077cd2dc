#include "CheckCommand.h"

#include "BoardCheck.h"
#include "CheckHistory.h"
#include "CheckReport.h"
#include "CheckSteps.h"
#include "CliOutput.h"
#include "Database.h"
#include "LiveExchange.h"

#include <QCommandLineParser>
#include <QEventLoop>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QString CheckUsage = QStringLiteral(
    "usage: vekto-cli check --port P --model M|auto [--report FILE.html|FILE.pdf] [--json] [--db FILE]\n"
    "  Runs every test of the model (serial number, rails, chip readouts, I2C buses, NAND, IC\n"
    "  checks, DRAM, battery), one line per step on standard error, and stores the check in the\n"
    "  board's history. Exit code: 0 everything judged passed; 1 a failure, a step without\n"
    "  answer, a pulled cable or nothing judged; 2 bad use or a file that cannot be used.");
const QString HistoryUsage = QStringLiteral(
    "usage: vekto-cli history --serial S [--db FILE] [--json]\n"
    "  Lists the stored checks of one board, newest first.");

quint8 sessionLanguage(const QString &db)
{
    const std::optional<quint8> idioma = Database(db, Database::Access::ReadOnly).idioma();
    return idioma && *idioma >= 1 && *idioma <= 3 ? *idioma : 1;
}

void printText(const CheckResult &r, QTextStream &out)
{
    out << QStringLiteral("check %1 %2 %3\n").arg(r.model, r.serial, r.when.toString(Qt::ISODate));
    QString lastStep;
    for (const CheckLine &line : r.failuresFirst()) {
        const QString step = line.step->key;
        if (!line.row) {
            out << step.leftJustified(10) << QStringLiteral(" no answer\n");
            continue;
        }
        out << step.leftJustified(10) << u' ' << line.row->name.leftJustified(18) << u' '
            << line.row->caption.leftJustified(24) << u' ' << line.row->deviation.toString().leftJustified(8) << u' '
            << verdictText(line.row->verdict);
        if (line.row->verdict == Verdict::Fail && !line.step->detail.isEmpty())
            out << QStringLiteral("  (") << line.step->detail << u')';
        out << u'\n';
    }
    if (!r.complete())
        out << QStringLiteral("INCOMPLETE: %1 of %2 steps\n").arg(r.steps.size()).arg(r.totalSteps);
    if (!r.anyJudged())
        out << QStringLiteral("nothing could be judged\n");
}

} // namespace

int runCheck(const QStringList &args, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("port"), QStringLiteral("The phone's serial port."), QStringLiteral("P")});
    parser.addOption({QStringLiteral("model"), QStringLiteral("The model, or auto."), QStringLiteral("M")});
    parser.addOption({QStringLiteral("report"), QStringLiteral("Write the report (.html or .pdf)."), QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("db"), QStringLiteral("The database."), QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object.")});
    if (!parser.parse(QStringList{QStringLiteral("vekto-cli check")} + args) || !parser.positionalArguments().isEmpty()) {
        err << "vekto-cli: " << (parser.errorText().isEmpty() ? QStringLiteral("unexpected ") +
                                     parser.positionalArguments().join(u' ') : parser.errorText())
            << '\n' << CheckUsage << Qt::endl;
        return Cli::BadUse;
    }
    QString model = parser.value(QStringLiteral("model"));
    const QString portName = parser.value(QStringLiteral("port"));
    const QString report = parser.value(QStringLiteral("report"));
    const QString db = Cli::databasePath(parser);
    const QString suffix = QFileInfo(report).suffix().toLower();
    if (model.isEmpty() || portName.isEmpty()
        || (!report.isEmpty() && suffix != QLatin1String("html") && suffix != QLatin1String("pdf"))) {
        err << "vekto-cli: --port and --model are needed; --report ends in .html or .pdf\n" << CheckUsage << Qt::endl;
        return Cli::BadUse;
    }
    if (!QFileInfo(db).isFile()) {
        err << Cli::databaseProblem(db, QStringLiteral("file not found")) << Qt::endl;
        return Cli::UnreadableFile;
    }

    LiveExchange live(db);
    if (model == QLatin1String("auto")) {
        const std::optional<QString> recognised = live.recogniseModel(portName);
        if (!recognised) {
            err << "vekto-cli: "
                << (live.lost() ? QStringLiteral("the device on %1 vanished").arg(portName)
                                : QStringLiteral("the model could not be recognised; give it with --model"))
                << Qt::endl;
            return Cli::DeviceProblem;
        }
        model = *recognised;
    } else if (const QString problem = live.open(portName); !problem.isEmpty()) {
        err << "vekto-cli: " << problem << Qt::endl;
        return Cli::DeviceProblem;
    }

    const quint8 idioma = sessionLanguage(db);
    BoardCheck check(live.session(), live.consoleExchange());
    QObject::connect(&check, &BoardCheck::stepStarted, &check, [&](int index, int total, const QString &key) {
        err << QStringLiteral("[%1/%2] %3").arg(index + 1).arg(total).arg(CheckSteps::title(key, model, idioma))
            << Qt::endl;
    });
    QEventLoop loop;
    QObject::connect(&check, &BoardCheck::finished, &loop, &QEventLoop::quit);
    if (!check.start(model, db)) {
        err << "vekto-cli: the phone on " << portName << " is not ready" << Qt::endl;
        return Cli::DeviceProblem;
    }
    loop.exec();
    CheckResult result = check.result();
    if (result.end == CheckResult::End::Lost)
        err << "vekto-cli: the device on " << portName << " vanished; the check is incomplete ("
            << result.steps.size() << " of " << result.totalSteps << " steps)" << Qt::endl;

    int code = result.exitCode();
    if (const QString problem = CheckHistory::store(db, result); !problem.isEmpty()) {
        err << "vekto-cli: the check was not stored: " << problem << Qt::endl;
        code = Cli::UnreadableFile;
    }
    if (!report.isEmpty()) {
        CheckComparison none;
        const QString problem = CheckReport::write(report, result, none, idioma);
        if (!problem.isEmpty()) {
            err << "vekto-cli: " << problem << Qt::endl;
            code = Cli::UnreadableFile;
        }
    }
    if (parser.isSet(QStringLiteral("json")))
        out << QJsonDocument(result.toJson()).toJson(QJsonDocument::Indented);
    else
        printText(result, out);
    out.flush();
    return code;
}

int runHistory(const QStringList &args, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("serial"), QStringLiteral("The board's serial number."), QStringLiteral("S")});
    parser.addOption({QStringLiteral("db"), QStringLiteral("The database."), QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON array.")});
    if (!parser.parse(QStringList{QStringLiteral("vekto-cli history")} + args) || !parser.positionalArguments().isEmpty()
        || !parser.isSet(QStringLiteral("serial"))) {
        err << "vekto-cli: " << (parser.errorText().isEmpty() ? QStringLiteral("--serial is needed") : parser.errorText())
            << '\n' << HistoryUsage << Qt::endl;
        return Cli::BadUse;
    }
    QString error;
    const QString db = Cli::databasePath(parser);
    const QList<CheckRecord> list = CheckHistory::checks(db, parser.value(QStringLiteral("serial")), &error);
    if (!error.isEmpty()) {
        err << "vekto-cli: cannot read the history: " << error << Qt::endl;
        return Cli::UnreadableFile;
    }
    if (parser.isSet(QStringLiteral("json"))) {
        QJsonArray array;
        for (const CheckRecord &c : list) {
            const std::optional<CheckResult> full = CheckHistory::load(db, c.id);
            array.append(full ? full->toJson() : QJsonObject{{QStringLiteral("storedId"), c.id}});
        }
        out << QJsonDocument(array).toJson(QJsonDocument::Indented);
    } else {
        for (const CheckRecord &c : list) {
            const std::optional<CheckResult> full = CheckHistory::load(db, c.id);
            out << c.id << u'\t' << c.data << u'\t' << c.modelo << u'\t' << c.serie << u'\t' << c.versao << u'\t'
                << (c.completa ? QStringLiteral("complete") : QStringLiteral("incomplete")) << u'\t'
                // Only a check whose every step answered and passed reads "pass".
                << (full && full->exitCode() == 0 ? QStringLiteral("pass") : QStringLiteral("fail")) << u'\n';
        }
        if (list.isEmpty())
            out << QStringLiteral("no stored check for this serial number\n");
    }
    return 0;
}
