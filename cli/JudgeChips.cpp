#include "JudgeChips.h"

#include "LiveExchange.h"
#include "Texts.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>

namespace {

const QString Usage = QStringLiteral(
    "usage: vekto-cli judge tigris|tristar|chestnut|acorn --model M --answer FILE [--json]\n"
    "       vekto-cli run   tigris|tristar|chestnut|acorn --port P --model M|auto [--db FILE] [--json]\n"
    "  Reads the chip's lines out of the answer and judges them as the chip's screen does.\n"
    "  Exit code: 0 nothing failed, 1 something failed or nothing could be judged,\n"
    "  2 bad use or an unreadable answer file.\n");

// English for the command line: what support and scripts read.
constexpr quint8 English = 2;

struct ChipOptions
{
    Chip chip = Chip::Tigris;
    QString model;
    QString answer;
    QString port;
    QString db;
    bool json = false;
};

std::optional<ChipOptions> parse(const QString &command, const QStringList &args, bool live, QTextStream &err)
{
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("model"), QStringLiteral("The model, as the model list shows it."), QStringLiteral("M")});
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object.")});
    if (live) {
        parser.addOption({QStringLiteral("port"), QStringLiteral("The serial port."), QStringLiteral("P")});
        parser.addOption({QStringLiteral("db"), QStringLiteral("The database (default: Config.vkt beside the program)."),
                          QStringLiteral("FILE")});
    } else {
        parser.addOption({QStringLiteral("answer"), QStringLiteral("The saved console answer."), QStringLiteral("FILE")});
    }
    const std::optional<Chip> chip = ChipTables::byEngine(args.value(0));
    if (!chip || !parser.parse(QStringList{QStringLiteral("vekto-cli ") + command} + args.mid(1))) {
        err << "vekto-cli: " << (chip ? parser.errorText() : QStringLiteral("unknown chip ") + args.value(0)) << '\n'
            << Usage;
        return std::nullopt;
    }
    ChipOptions o;
    o.chip = *chip;
    o.model = parser.value(QStringLiteral("model"));
    o.json = parser.isSet(QStringLiteral("json"));
    if (live) {
        o.port = parser.value(QStringLiteral("port"));
        o.db = parser.value(QStringLiteral("db"));
        if (o.db.isEmpty())
            o.db = QCoreApplication::applicationDirPath() + QStringLiteral("/Config.vkt");
    } else {
        o.answer = parser.value(QStringLiteral("answer"));
    }
    if (o.model.isEmpty() || (live ? o.port.isEmpty() : o.answer.isEmpty()) || !parser.positionalArguments().isEmpty()) {
        err << Usage;
        return std::nullopt;
    }
    return o;
}

int finish(const JudgeReport &report, bool json, QTextStream &out)
{
    report.print(out, json);
    out.flush();
    return report.exitCode();
}

} // namespace

bool isChipEngine(const QString &engine)
{
    return ChipTables::byEngine(engine).has_value();
}

JudgeReport chipReport(const ChipResult &result)
{
    JudgeReport report;
    report.engine = ChipTables::definition(result.chip).engine;
    report.model = result.model;
    QJsonObject copies;
    QJsonObject rails;
    for (const ChipReading &r : result.readings) {
        const std::optional<QString> deviation = r.deviationText();
        report.rows.append(JudgedRow{r.row.control, r.row.label, r.caption,
                                     deviation ? QJsonValue(*deviation) : QJsonValue(), r.verdict});
        for (const QString &copy : r.row.copies)
            copies.insert(copy, r.state == ChipReading::State::Reset ? QString() : r.caption);
        if (r.row.rail > 0)
            rails.insert(QStringLiteral("lbNomeMalha%1").arg(r.row.rail), r.row.railName);
    }
    QJsonObject images;
    const QMap<int, Verdict> shown = result.images();
    for (auto it = shown.cbegin(); it != shown.cend(); ++it)
        images.insert(QString::number(it.key()), it.value() == Verdict::Pass ? QStringLiteral("ok") : QStringLiteral("no"));

    report.extra.insert(QStringLiteral("lbUC"), result.designator);
    report.extra.insert(QStringLiteral("warnings"), QJsonArray::fromStringList(result.shownWarnings()));
    report.extra.insert(QStringLiteral("images"), images);
    if (!copies.isEmpty())
        report.extra.insert(QStringLiteral("copies"), copies);
    if (!rails.isEmpty())
        report.extra.insert(QStringLiteral("rails"), rails);
    if (result.chip == Chip::Tristar) {
        // "NORMAL" is written whatever happens; its colour says whether a rail failed.
        report.status = QStringLiteral("NORMAL");
        report.statusVerdict = result.anyFailed() ? Verdict::Fail : Verdict::Pass;
    }
    return report;
}

JudgeReport refusedReport(Chip chip, const QString &model)
{
    JudgeReport report;
    report.engine = ChipTables::definition(chip).engine;
    report.model = model;
    if (chip == Chip::Chestnut) {
        report.status = QStringLiteral("NOT FOR X!");
    } else {
        const auto message = Texts::Mensagem(QStringLiteral("SOMENTE_X"), English);
        report.status = message ? message->text : QStringLiteral("SOMENTE_X");
    }
    report.extra.insert(QStringLiteral("refused"), true);
    return report;
}

int runJudgeChips(const QStringList &args, QTextStream &out, QTextStream &err)
{
    const std::optional<ChipOptions> o = parse(QStringLiteral("judge"), args, false, err);
    if (!o)
        return 2;
    if (ChipTables::refuses(o->chip, o->model))
        return finish(refusedReport(o->chip, o->model), o->json, out);
    QFile file(o->answer);
    if (!file.open(QIODevice::ReadOnly)) {
        err << "vekto-cli: cannot read the answer " << o->answer << ": " << file.errorString() << Qt::endl;
        return 2;
    }
    const QString answer = QString::fromUtf8(file.readAll());
    const QString noReading = Texts::Traduz(QStringLiteral("Sem Medição"), English);
    return finish(chipReport(ChipEngine::CarregaDados(o->chip, o->model, answer, noReading)), o->json, out);
}

int runRunChips(const QStringList &args, QTextStream &out, QTextStream &err)
{
    std::optional<ChipOptions> o = parse(QStringLiteral("run"), args, true, err);
    if (!o)
        return 2;
    LiveExchange live(o->db);
    if (o->model == QLatin1String("auto")) {
        const auto model = live.recogniseModel(o->port);
        if (!model) {
            err << (live.lost() ? QStringLiteral("the device on %1 vanished").arg(o->port)
                                : QStringLiteral("the model could not be recognised; give it with --model"))
                << Qt::endl;
            return 1;
        }
        o->model = *model;
    } else if (const QString problem = live.open(o->port); !problem.isEmpty()) {
        err << problem << Qt::endl;
        return 1;
    }
    // A refused model sends nothing, as on the screen.
    if (ChipTables::refuses(o->chip, o->model))
        return finish(refusedReport(o->chip, o->model), o->json, out);

    const std::optional<QString> answer = live.exchange(ChipTables::definition(o->chip).command);
    if (!answer || answer->trimmed().isEmpty()) {
        err << (answer ? QStringLiteral("no answer from ") : QStringLiteral("the device vanished during the answer on "))
            << o->port << Qt::endl;
        return 1;
    }
    const QString noReading = Texts::Traduz(QStringLiteral("Sem Medição"), English);
    return finish(chipReport(ChipEngine::CarregaDados(o->chip, o->model, *answer, noReading)), o->json, out);
}
