#include "JudgeRails.h"

#include "BuckEngine.h"
#include "CliOutput.h"
#include "Database.h"
#include "RailEngine.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

const QStringList Engines = {QStringLiteral("vcore"), QStringLiteral("buckldo"), QStringLiteral("buck-read"),
                             QStringLiteral("buck-check")};

QString defaultDb()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/Config.vkt");
}

} // namespace

QString railsHelp()
{
    return QStringLiteral(
        "judge vcore|buckldo|buck-read|buck-check --model M --answer FILE [--db F]\n"
        "      [--volt-decimals 1..3] [--amp-decimals 0..3] [--json]\n"
        "run   vcore|buckldo|buck-read|buck-check --port P --model M|auto [--db F] [...same options]\n"
        "  vcore/buckldo read every reference rail of class 0/2 of the model out of a\n"
        "  \"pmuadc --read all\" answer. A rail passes when its deviation is within %1 %;\n"
        "  it fails beyond that, when a rail with a reference gave no reading or a value\n"
        "  that cannot be one; a rail whose reference is missing or 0 is not judged (none).\n"
        "  buck-read lists \"buck\" (none); buck-check lists \"buckcheck N\" with the\n"
        "  device's own PASS/FAIL.\n"
        "  Exit code: 0 nothing failed, 1 something failed or nothing could be judged,\n"
        "  2 bad use or an unreadable file.\n").arg(RailEngine::DefaultTolerancePercent);
}

std::optional<RailsJudgeOptions> parseRailsOptions(const QStringList &args, QStringList *rest, QString *error)
{
    RailsJudgeOptions o;
    if (args.isEmpty() || !Engines.contains(args.first())) {
        *error = QStringLiteral("unknown engine; one of: ") + Engines.join(QStringLiteral(", "));
        return std::nullopt;
    }
    o.engine = args.first();
    for (int i = 1; i < args.size(); ++i) {
        const QString &a = args[i];
        auto value = [&]() -> std::optional<QString> {
            if (i + 1 >= args.size())
                return std::nullopt;
            return args[++i];
        };
        if (a == QLatin1String("--json")) {
            o.json = true;
            continue;
        }
        const auto v = value();
        if (!v) {
            *error = a + QStringLiteral(" needs a value");
            return std::nullopt;
        }
        bool ok = true;
        if (a == QLatin1String("--model"))
            o.model = *v;
        else if (a == QLatin1String("--db"))
            o.db = *v;
        else if (a == QLatin1String("--volt-decimals"))
            o.voltDecimals = v->toInt(&ok);
        else if (a == QLatin1String("--amp-decimals"))
            o.ampDecimals = v->toInt(&ok);
        else
            *rest << a << *v;
        if (!ok || o.voltDecimals < 1 || o.voltDecimals > 3 || o.ampDecimals < 0 || o.ampDecimals > 3) {
            *error = QStringLiteral("decimals: volts 1 to 3, milliamps 0 to 3");
            return std::nullopt;
        }
    }
    if (o.db.isEmpty())
        o.db = defaultDb();
    return o;
}

std::optional<JudgeReport> judgeRailsAnswer(const RailsJudgeOptions &o, const QString &answer, QString *error)
{
    JudgeReport report;
    report.engine = o.engine;
    report.model = o.model;
    if (o.engine == QLatin1String("vcore") || o.engine == QLatin1String("buckldo")) {
        if (!QFileInfo(o.db).isFile()) {
            *error = Cli::databaseProblem(o.db, QStringLiteral("file not found"));
            return std::nullopt;
        }
        Database db(o.db, Database::Access::ReadOnly);
        MasterFilter filter;
        filter.modelo = o.model;
        filter.tipo = o.engine == QLatin1String("vcore") ? 0 : 2;
        filter.withReftOnly = true;
        filter.order = MasterFilter::Order::ModeloOrig;
        const QList<MasterRow> master = db.masterRows(filter);
        if (!db.lastError().isEmpty()) {
            *error = Cli::databaseProblem(o.db, db.lastError());
            return std::nullopt;
        }
        QList<RailReference> refs;
        for (const MasterRow &m : master)
            refs.append({m.malha, m.reft, m.refv, m.ci});
        RailSettings settings;
        settings.voltDecimals = o.voltDecimals;
        settings.ampDecimals = o.ampDecimals;
        const QList<RailMeasurement> readings = RailEngine::ProcessaLeituras(answer, refs, settings);
        for (int i = 0; i < readings.size(); ++i)
            report.rows.append({readings[i].malha, refs[i].reft, readings[i].leitura,
                                readings[i].porc.isEmpty() ? QJsonValue() : QJsonValue(readings[i].porc),
                                RailEngine::verdict(readings[i], refs[i].refv, RailEngine::DefaultTolerancePercent)});
        report.extra = {{QStringLiteral("tolerancePercent"), RailEngine::DefaultTolerancePercent},
                        {QStringLiteral("references"), int(refs.size())}};
        // An unknown model ("IP7") has no rails: said plainly, and nothing passes.
        if (refs.isEmpty())
            report.extra.insert(QStringLiteral("problem"),
                                QStringLiteral("no reference rails for model \"%1\" in %2").arg(o.model, o.db));
    } else {
        const bool check = o.engine == QLatin1String("buck-check");
        const QList<BuckLine> lines = check ? ExtraiBistBuck(answer) : ExtraiLeiturasBuck(answer);
        int n = primeiroNumeroBuck(answer);
        for (const BuckLine &l : lines)
            report.rows.append({QStringLiteral("buck") + QString::number(n++), QJsonValue(), l.text.trimmed(),
                                QJsonValue(), check ? (l.passed ? Verdict::Pass : Verdict::Fail) : Verdict::None});
    }
    report.status = report.rows.isEmpty() ? QStringLiteral("empty")
                    : report.anyFailed()  ? QStringLiteral("fail")
                    : report.anyJudged()  ? QStringLiteral("pass")
                                          : QStringLiteral("not judged");
    return report;
}

int runJudgeRails(const QStringList &args, QTextStream &out, QTextStream &err)
{
    QString error;
    QStringList rest;
    const auto options = parseRailsOptions(args, &rest, &error);
    QString answerFile;
    for (int i = 0; i + 1 < rest.size(); i += 2) {
        if (rest[i] == QLatin1String("--answer"))
            answerFile = rest[i + 1];
        else
            error = QStringLiteral("unknown option ") + rest[i];
    }
    if (!options || !error.isEmpty() || answerFile.isEmpty() || options->model.isEmpty()) {
        err << (error.isEmpty() ? QStringLiteral("--model and --answer are needed") : error) << u'\n' << railsHelp();
        return 2;
    }
    QFile file(answerFile);
    if (!file.open(QIODevice::ReadOnly)) {
        err << QStringLiteral("cannot read the answer ") << answerFile << QStringLiteral(": ") << file.errorString()
            << u'\n';
        return Cli::UnreadableFile;
    }
    const auto report = judgeRailsAnswer(*options, QString::fromUtf8(file.readAll()), &error);
    if (!report) {
        err << error << u'\n';
        return Cli::UnreadableFile;
    }
    if (const QString problem = report->extra.value(QStringLiteral("problem")).toString(); !problem.isEmpty())
        err << problem << u'\n';
    report->print(out, options->json);
    return report->exitCode();
}
