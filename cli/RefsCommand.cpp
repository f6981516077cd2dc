// vekto-cli refs: the references of the shop's own good boards without a window. `learn` and
// `undo` do what the rail screens' buttons do, `show` lists each rail with its reference and
// origin, `export` and `import` carry references between benches in a reference file.
#include "CliCommands.h"
#include "CliOutput.h"

#include "Database.h"
#include "RailLearning.h"
#include "RefFile.h"
#include "RefImport.h"
#include "RefOrigins.h"
#include "Startup.h"
#include "Texts.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace Cli {

namespace {

struct Options
{
    QString action;
    QString model;
    QString db;
    QString out;
    QString from;
    bool json = false;
    quint8 idioma = 1;
};

void printJson(const QJsonObject &object)
{
    out(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Indented)).trimmed());
}

QString now()
{
    return RefOrigins::stamp(QDateTime::currentDateTimeUtc());
}

// Opens the database for the action, giving a file made before origins were kept its tables.
// Prints the reason and returns false when the file cannot serve.
bool openDatabase(const Options &o, Database &db, bool writes)
{
    if (!QFileInfo(o.db).isFile()) {
        err(databaseProblem(o.db, QStringLiteral("file not found")));
        return false;
    }
    if (writes) {
        QString detail;
        if (Database::check(o.db, &detail) != DatabaseProblem::None) {
            err(databaseProblem(o.db, detail));
            return false;
        }
    }
    if (!db.isOpen()) {
        err(databaseProblem(o.db, db.lastError()));
        return false;
    }
    if (writes && !db.addMissingTables()) {
        err(databaseProblem(o.db, db.lastError()));
        return false;
    }
    return true;
}

QString outcomeName(RailLearning::Outcome outcome)
{
    switch (outcome) {
    case RailLearning::Outcome::Learned: return QStringLiteral("learned");
    case RailLearning::Outcome::NoReading: return QStringLiteral("no reading");
    case RailLearning::Outcome::MixedUnits: return QStringLiteral("mixed units");
    }
    return {};
}

int learn(const Options &o)
{
    Database db(o.db);
    if (!openDatabase(o, db, true))
        return UnreadableFile;
    MasterFilter filter;
    filter.modelo = o.model;
    filter.order = MasterFilter::Order::ModeloOrig;
    const RailLearning::Plan plan = RailLearning::plan(o.model, db.masterRows(filter));
    if (plan.rails.isEmpty()) {
        err(Texts::Traduz(QStringLiteral("REF_MODELO_SEM_MALHAS"), o.idioma) + u' ' + o.model);
        return 1;
    }
    const int learnable = plan.learnable();
    QString error;
    const bool learned =
        learnable > 0 && RailLearning::learn(db, plan, {now(), QString::fromLatin1(Startup::Versao), {}}, &error);
    if (o.json) {
        QJsonArray rails;
        for (const RailLearning::RailPlan &r : plan.rails)
            rails.append(QJsonObject{{QStringLiteral("name"), r.malha},
                                     {QStringLiteral("old"), r.oldRefv},
                                     {QStringLiteral("new"), r.outcome == RailLearning::Outcome::Learned ? QJsonValue(r.newRefv) : QJsonValue()},
                                     {QStringLiteral("readings"), r.readings},
                                     {QStringLiteral("outcome"), outcomeName(r.outcome)}});
        printJson({{QStringLiteral("command"), QStringLiteral("refs learn")}, {QStringLiteral("model"), o.model},
                   {QStringLiteral("learned"), learned ? learnable : 0}, {QStringLiteral("rails"), rails}});
    } else {
        for (const RailLearning::RailPlan &r : plan.rails)
            out(QStringLiteral("%1\t%2\t%3\t%4 readings\t%5")
                    .arg(r.malha, r.oldRefv,
                         r.outcome == RailLearning::Outcome::Learned ? r.newRefv : QStringLiteral("-"))
                    .arg(r.readings)
                    .arg(outcomeName(r.outcome)));
    }
    if (learnable == 0) {
        err(Texts::Traduz(QStringLiteral("REF_SEM_GRAVACOES"), o.idioma));
        return 1;
    }
    if (!learned) {
        err(Texts::Traduz(QStringLiteral("DB_ERRO_GRAVACAO"), o.idioma) + u' ' + error);
        return 1;
    }
    return 0;
}

int undo(const Options &o)
{
    Database db(o.db);
    if (!openDatabase(o, db, true))
        return UnreadableFile;
    if (!RailLearning::canUndo(db, o.model)) {
        err(Texts::Traduz(QStringLiteral("REF_NADA_A_DESFAZER"), o.idioma));
        return 1;
    }
    QString error;
    if (!RailLearning::undo(db, o.model, &error)) {
        err(Texts::Traduz(QStringLiteral("DB_ERRO_GRAVACAO"), o.idioma) + u' ' + error);
        return 1;
    }
    out(QStringLiteral("%1: the references before the last learning are back").arg(o.model));
    return 0;
}

QJsonValue originJson(const std::optional<RefOrigin> &origin, const QString &value)
{
    if (!origin)
        return QJsonObject{{QStringLiteral("state"), RefOrigins::stateName(RefOrigins::State::Unknown)}};
    return QJsonObject{{QStringLiteral("state"), RefOrigins::stateName(RefOrigins::state(origin, value))},
                       {QStringLiteral("source"), origin->source}, {QStringLiteral("boards"), origin->boards},
                       {QStringLiteral("serials"), origin->serials}, {QStringLiteral("at"), origin->at},
                       {QStringLiteral("version"), origin->version}, {QStringLiteral("file"), origin->file},
                       {QStringLiteral("fileDate"), origin->fileDate}};
}

int show(const Options &o)
{
    Database db(o.db, Database::Access::ReadOnly);
    if (!openDatabase(o, db, false))
        return UnreadableFile;
    MasterFilter filter;
    filter.modelo = o.model;
    filter.order = MasterFilter::Order::ModeloOrig;
    const QList<MasterRow> rows = db.masterRows(filter);
    if (!db.lastError().isEmpty()) {
        err(databaseProblem(o.db, db.lastError()));
        return UnreadableFile;
    }
    if (rows.isEmpty()) {
        err(Texts::Traduz(QStringLiteral("REF_MODELO_SEM_MALHAS"), o.idioma) + u' ' + o.model);
        return 1;
    }
    // A file from before origins were kept has no table for them: every origin is unknown.
    QHash<QString, RefOrigin> origins;
    for (const RefOrigin &origin : db.refOrigins(RefOrigins::Rail, o.model))
        origins.insert(origin.item.toUpper(), origin);
    QJsonArray rails;
    for (const MasterRow &row : rows) {
        const auto it = origins.constFind(row.malha.toUpper());
        const std::optional<RefOrigin> origin = it == origins.constEnd() ? std::nullopt : std::optional(*it);
        if (o.json) {
            rails.append(QJsonObject{{QStringLiteral("name"), row.malha}, {QStringLiteral("tipo"), row.tipo},
                                     {QStringLiteral("refv"), row.refv},
                                     {QStringLiteral("origin"), originJson(origin, row.refv)}});
        } else {
            out(QStringLiteral("%1\t%2\t%3\t%4")
                    .arg(row.malha, row.refv, RefOrigins::stateName(RefOrigins::state(origin, row.refv)),
                         RefOrigins::describe(origin, row.refv, o.idioma).replace(u'\n', QLatin1String("; "))));
        }
    }
    if (o.json)
        printJson({{QStringLiteral("command"), QStringLiteral("refs show")}, {QStringLiteral("model"), o.model},
                   {QStringLiteral("rails"), rails}});
    return 0;
}

int exportFile(const Options &o)
{
    Database db(o.db, Database::Access::ReadOnly);
    if (!openDatabase(o, db, false))
        return UnreadableFile;
    const bool all = o.model.compare(QLatin1String("all"), Qt::CaseInsensitive) == 0;
    if (!all && db.masterRows([&] { MasterFilter f; f.modelo = o.model; return f; }()).isEmpty()) {
        err(Texts::Traduz(QStringLiteral("REF_MODELO_SEM_MALHAS"), o.idioma) + u' ' + o.model);
        return 1;
    }
    const RefBundle bundle = RefFile::collect(db, all ? QStringList() : QStringList{o.model}, now(),
                                              QString::fromLatin1(Startup::Versao));
    // Written beside and renamed over: an interrupted export never leaves half a file.
    QSaveFile file(o.out);
    if (!file.open(QIODevice::WriteOnly) || file.write(RefFile::write(bundle)) < 0 || !file.commit()) {
        err(QStringLiteral("cannot write %1: %2").arg(o.out, file.errorString()));
        return UnreadableFile;
    }
    int rails = 0, entries = 0, dados = 0;
    for (const RefFileModel &m : bundle.models) {
        rails += int(m.rails.size());
        entries += int(m.i2c.size());
        dados += int(m.dados.size());
    }
    if (o.json)
        printJson({{QStringLiteral("command"), QStringLiteral("refs export")}, {QStringLiteral("file"), o.out},
                   {QStringLiteral("models"), int(bundle.models.size())}, {QStringLiteral("rails"), rails},
                   {QStringLiteral("i2c"), entries}, {QStringLiteral("dados"), dados},
                   {QStringLiteral("masks"), int(bundle.masks.size())}});
    else
        out(QStringLiteral("%1: %2 models, %3 rails, %4 I2C entries, %5 recorded answers, %6 masks")
                .arg(o.out).arg(bundle.models.size()).arg(rails).arg(entries).arg(dados).arg(bundle.masks.size()));
    return 0;
}

QJsonObject countJson(const RefImport::Count &c)
{
    return {{QStringLiteral("added"), c.added}, {QStringLiteral("replaced"), c.replaced}, {QStringLiteral("same"), c.same}};
}

int importFile(const Options &o)
{
    Database db(o.db);
    if (!openDatabase(o, db, true))
        return UnreadableFile;
    const RefImport::Report report = RefImport::runFile(db, o.from);
    if (!report.ok()) {
        err(Texts::Traduz(report.messageKey(), o.idioma) + u' ' + report.detail);
        return report.problem == RefImport::Problem::ConfigFailed ? 1 : UnreadableFile;
    }
    if (o.json) {
        QJsonArray conflicts;
        for (const RefImport::Conflict &c : report.conflicts)
            conflicts.append(QJsonObject{{QStringLiteral("kind"), c.kind}, {QStringLiteral("model"), c.model},
                                         {QStringLiteral("item"), c.item}, {QStringLiteral("local"), c.local},
                                         {QStringLiteral("incoming"), c.incoming}});
        printJson({{QStringLiteral("command"), QStringLiteral("refs import")}, {QStringLiteral("file"), o.from},
                   {QStringLiteral("rails"), countJson(report.rails)}, {QStringLiteral("i2c"), countJson(report.i2c)},
                   {QStringLiteral("dados"), countJson(report.dados)}, {QStringLiteral("masksAdded"), report.masksAdded},
                   {QStringLiteral("conflicts"), conflicts}});
    } else {
        const auto line = [](const QString &what, const RefImport::Count &c) {
            return QStringLiteral("%1\t%2 added\t%3 replaced\t%4 already equal").arg(what).arg(c.added).arg(c.replaced).arg(c.same);
        };
        out(line(QStringLiteral("rails"), report.rails));
        out(line(QStringLiteral("i2c lists"), report.i2c));
        out(line(QStringLiteral("dados"), report.dados));
        out(QStringLiteral("masks\t%1 added").arg(report.masksAdded));
        if (!report.conflicts.isEmpty()) {
            out(Texts::Traduz(QStringLiteral("REF_CONFLITOS"), o.idioma));
            for (const RefImport::Conflict &c : report.conflicts)
                out(QStringLiteral("%1\t%2\t%3\there: %4\tfile: %5").arg(c.kind, c.model, c.item, c.local, c.incoming));
        }
    }
    // Conflicts mean something in the file did not come over: the caller must look.
    return report.conflicts.isEmpty() ? 0 : 1;
}

} // namespace

int refs(const QStringList &args)
{
    const QString usage = QStringLiteral(
        "usage: vekto-cli refs learn|undo|show --model M [--db FILE] [--json]\n"
        "       vekto-cli refs export --model M|all --out FILE [--db FILE] [--json]\n"
        "       vekto-cli refs import --from FILE [--db FILE] [--json]");
    Options o;
    o.action = args.value(0);
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("model"), QStringLiteral("The model, or \"all\" for export."), QStringLiteral("M")});
    parser.addOption({QStringLiteral("out"), QStringLiteral("The reference file to write."), QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("from"), QStringLiteral("The reference file to import."), QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("db"), QStringLiteral("The database (default: Config.vkt beside the program)."),
                      QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object.")});
    if (!parse(parser, QStringLiteral("refs ") + o.action, args.mid(1)))
        return BadUse;
    o.model = parser.value(QStringLiteral("model"));
    o.out = parser.value(QStringLiteral("out"));
    o.from = parser.value(QStringLiteral("from"));
    o.db = databasePath(parser);
    o.json = parser.isSet(QStringLiteral("json"));
    const bool modelAction = o.action == QLatin1String("learn") || o.action == QLatin1String("undo")
                             || o.action == QLatin1String("show");
    const bool ok = parser.positionalArguments().isEmpty()
                    && ((modelAction && !o.model.isEmpty())
                        || (o.action == QLatin1String("export") && !o.model.isEmpty() && !o.out.isEmpty())
                        || (o.action == QLatin1String("import") && !o.from.isEmpty()));
    if (!ok) {
        err(usage);
        return BadUse;
    }
    if (QFileInfo(o.db).isFile())
        o.idioma = qBound<quint8>(1, Database(o.db, Database::Access::ReadOnly).idioma().value_or(1), 3);
    if (o.action == QLatin1String("learn"))
        return learn(o);
    if (o.action == QLatin1String("undo"))
        return undo(o);
    if (o.action == QLatin1String("show"))
        return show(o);
    if (o.action == QLatin1String("export"))
        return exportFile(o);
    return importFile(o);
}

} // namespace Cli
