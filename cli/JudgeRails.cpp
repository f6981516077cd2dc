#include "JudgeRails.h"

#include "BuckEngine.h"
#include "Database.h"
#include "RailEngine.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QStringList Engines = {QStringLiteral("vcore"), QStringLiteral("buckldo"), QStringLiteral("buck-read"),
                             QStringLiteral("buck-check")};

QJsonObject row(const QString &name, const QJsonValue &label, const QString &caption, const QJsonValue &deviation,
                const QString &verdict)
{
    return {{QStringLiteral("name"), name}, {QStringLiteral("label"), label}, {QStringLiteral("caption"), caption},
            {QStringLiteral("deviation"), deviation}, {QStringLiteral("verdict"), verdict}};
}

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
        "  \"pmuadc --read all\" answer. A rail passes when its deviation is within 5 %;\n"
        "  it fails beyond that or when a rail with a reference gave no reading; a rail\n"
        "  without a reference is not judged (none). buck-read lists \"buck\" (none);\n"
        "  buck-check lists \"buckcheck N\" with the device's own PASS/FAIL.\n"
        "  Exit code: 0 nothing failed, 1 something failed, 2 bad use or unreadable input.\n");
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

std::optional<QJsonObject> judgeRailsAnswer(const RailsJudgeOptions &o, const QString &answer, QString *error)
{
    QJsonArray rows;
    bool failed = false;
    QJsonObject extra;
    if (o.engine == QLatin1String("vcore") || o.engine == QLatin1String("buckldo")) {
        Database db(o.db);
        if (!db.isOpen()) {
            *error = QStringLiteral("cannot open ") + o.db + QStringLiteral(": ") + db.lastError();
            return std::nullopt;
        }
        MasterFilter filter;
        filter.modelo = o.model;
        filter.tipo = o.engine == QLatin1String("vcore") ? 0 : 2;
        filter.withReftOnly = true;
        filter.order = MasterFilter::Order::ModeloOrig;
        const QList<MasterRow> master = db.masterRows(filter);
        if (!db.lastError().isEmpty()) {
            *error = db.lastError();
            return std::nullopt;
        }
        QList<RailReference> refs;
        for (const MasterRow &m : master)
            refs.append({m.malha, m.reft, m.refv, m.ci});
        RailSettings settings;
        settings.voltDecimals = o.voltDecimals;
        settings.ampDecimals = o.ampDecimals;
        const QList<RailMeasurement> readings = RailEngine::ProcessaLeituras(answer, refs, settings);
        for (int i = 0; i < readings.size(); ++i) {
            const RailVerdict v = RailEngine::verdict(readings[i], refs[i].refv, RailEngine::DefaultTolerancePercent);
            failed = failed || v == RailVerdict::Fail;
            rows.append(row(readings[i].malha, refs[i].reft, readings[i].leitura,
                            readings[i].porc.isEmpty() ? QJsonValue() : QJsonValue(readings[i].porc), verdictText(v)));
        }
        extra = {{QStringLiteral("tolerancePercent"), RailEngine::DefaultTolerancePercent},
                 {QStringLiteral("references"), int(refs.size())}};
    } else {
        const bool check = o.engine == QLatin1String("buck-check");
        const QList<BuckLine> lines = check ? ExtraiBistBuck(answer) : ExtraiLeiturasBuck(answer);
        int n = primeiroNumeroBuck(answer);
        for (const BuckLine &l : lines) {
            failed = failed || (check && !l.passed);
            rows.append(row(QStringLiteral("buck") + QString::number(n++), QJsonValue(), l.text.trimmed(), QJsonValue(),
                            check ? (l.passed ? QStringLiteral("pass") : QStringLiteral("fail")) : QStringLiteral("none")));
        }
    }
    return QJsonObject{{QStringLiteral("engine"), o.engine}, {QStringLiteral("model"), o.model},
                       {QStringLiteral("rows"), rows},
                       {QStringLiteral("status"), rows.isEmpty() ? QStringLiteral("empty")
                                                   : failed      ? QStringLiteral("fail")
                                                                 : QStringLiteral("pass")},
                       {QStringLiteral("extra"), extra}};
}

void printRailsReport(const QJsonObject &report, bool json, QTextStream &out)
{
    if (json) {
        out << QJsonDocument(report).toJson(QJsonDocument::Indented);
        return;
    }
    out << report.value(QStringLiteral("engine")).toString() << u' ' << report.value(QStringLiteral("model")).toString()
        << u'\n';
    for (const QJsonValue &v : report.value(QStringLiteral("rows")).toArray()) {
        const QJsonObject r = v.toObject();
        out << r.value(QStringLiteral("name")).toString().leftJustified(18) << u' '
            << r.value(QStringLiteral("caption")).toString().leftJustified(20) << u' '
            << r.value(QStringLiteral("deviation")).toString().leftJustified(10) << u' '
            << r.value(QStringLiteral("verdict")).toString() << u'\n';
    }
    out << QStringLiteral("status: ") << report.value(QStringLiteral("status")).toString() << u'\n';
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
        err << QStringLiteral("cannot read ") << answerFile << u'\n';
        return 2;
    }
    const auto report = judgeRailsAnswer(*options, QString::fromUtf8(file.readAll()), &error);
    if (!report) {
        err << error << u'\n';
        return 2;
    }
    printRailsReport(*report, options->json, out);
    return report->value(QStringLiteral("status")).toString() == QLatin1String("fail") ? 1 : 0;
}
