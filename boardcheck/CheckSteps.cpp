#include "CheckSteps.h"

#include "ChipEngine.h"
#include "ChipTables.h"
#include "Database.h"
#include "I2CEngine.h"
#include "ICCheck.h"
#include "JudgeChips.h"
#include "JudgeI2C.h"
#include "JudgeNand.h"
#include "JudgeOutros.h"
#include "JudgeRails.h"
#include "NandEngine.h"
#include "OutrosEngine.h"
#include "Texts.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

namespace {

// The give-ups of the screens these steps stand for: ticks and the tick interval in ms.
constexpr int RailTicks = 80, RailTickMs = 500;         // VCore, Buck / Ldo, the chip readouts
constexpr int BusTicks = 30, BusTickMs = 1000;          // I2C and IC screens
constexpr int NandSizeTickMs = 500, NandStatusTickMs = 100;
constexpr int OutrosTickMs = 250;

// The lines the phone printed: the echo of the command and the prompt taken away.
QStringList answerLines(const QString &answer, const QString &command)
{
    static const QRegularExpression prompt(QStringLiteral("\\[[0-9A-Fa-f]{8}:[0-9A-Fa-f]{8}\\] :-\\) ?$"));
    QStringList lines;
    bool echoSeen = false;
    for (QString line : answer.split(u'\n')) {
        line.remove(u'\r');
        line.remove(prompt);
        const QString trimmed = line.trimmed();
        if (trimmed.isEmpty())
            continue;
        if (!echoSeen && trimmed == command.trimmed()) {
            echoSeen = true;
            continue;
        }
        lines << trimmed;
    }
    return lines;
}

bool saidSomething(const QString &answer, const QString &command)
{
    return !answerLines(answer, command).isEmpty();
}

QList<JudgeReport> one(const JudgeReport &report)
{
    return {report};
}

CheckStep chipStep(Chip chip, const QString &key)
{
    const ChipDefinition &d = ChipTables::definition(chip);
    return {key, d.command, RailTicks, RailTickMs,
            [command = d.command](const QString &a) { return saidSomething(a, command); },
            [chip](const CheckContext &c, const QString &answer, QString *) {
                return one(chipReport(ChipEngine::CarregaDados(chip, c.model, answer)));
            }};
}

CheckStep railStep()
{
    const QString command = QStringLiteral("pmuadc --read all");
    return {QStringLiteral("rails"), command, RailTicks, RailTickMs,
            [command](const QString &a) { return saidSomething(a, command); },
            [](const CheckContext &c, const QString &answer, QString *problem) {
                QList<JudgeReport> reports;
                for (const QString &engine : {QStringLiteral("vcore"), QStringLiteral("buckldo")}) {
                    RailsJudgeOptions options;
                    options.engine = engine;
                    options.model = c.model;
                    options.db = c.dbPath;
                    const std::optional<JudgeReport> report = judgeRailsAnswer(options, answer, problem);
                    if (!report)
                        return QList<JudgeReport>();
                    reports << *report;
                }
                return reports;
            }};
}

CheckStep busStep(int bus)
{
    const QString command = I2CEngine::command(bus);
    return {QStringLiteral("i2c%1").arg(bus), command, BusTicks, BusTickMs,
            [command](const QString &a) { return saidSomething(a, command); },
            [bus](const CheckContext &c, const QString &answer, QString *problem) {
                Database db(c.dbPath, Database::Access::ReadOnly);
                const QStringList rows = db.isOpen() ? db.i2cTextsStartingWith(c.model, QString::number(bus)) : QStringList();
                if (!db.isOpen() || !db.lastError().isEmpty()) {
                    *problem = QStringLiteral("%1: %2").arg(c.dbPath, db.lastError());
                    return QList<JudgeReport>();
                }
                return one(i2cReport(c.model, {I2CEngine::judge(bus, answer, rows)}));
            }};
}

} // namespace

namespace CheckSteps {

QString serialCommand()
{
    return QStringLiteral("syscfg print SrNm");
}

QString unknownSerial()
{
    return QStringLiteral("unknown");
}

QString serialFromAnswer(const QString &answer)
{
    const QStringList lines = answerLines(answer, serialCommand());
    if (lines.isEmpty())
        return {};
    const QString first = lines.first();
    // A phone without the key, or one that did not take the command, names no serial.
    if (first.contains(QLatin1String("not found"), Qt::CaseInsensitive)
        || first.contains(QLatin1String("Command"))
        || first.contains(QLatin1String("rror")))
        return {};
    // "SrNm  C39TK0ABHG7F" as "syscfg list" prints it, or the bare value.
    const QStringList words = first.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    return words.size() > 1 && words.first() == QLatin1String("SrNm") ? words.last() : first;
}

QList<CheckStep> steps(const QString &model)
{
    QList<CheckStep> list;
    const QString serial = serialCommand();
    list.append({QStringLiteral("serial"), serial, BusTicks, BusTickMs,
                 [serial](const QString &a) { return saidSomething(a, serial); },
                 [](const CheckContext &c, const QString &answer, QString *) {
                     JudgeReport report;
                     report.model = c.model;
                     const QString value = serialFromAnswer(answer);
                     report.rows.append({QStringLiteral("SrNm"), QJsonValue(), value.isEmpty() ? unknownSerial() : value,
                                         QJsonValue(), Verdict::None});
                     return one(report);
                 }});
    list.append(railStep());
    list.append(chipStep(Chip::Tigris, QStringLiteral("tigris")));
    list.append(chipStep(Chip::Tristar, QStringLiteral("tristar")));
    list.append(ChipTables::refuses(Chip::Chestnut, model) ? chipStep(Chip::Acorn, QStringLiteral("acorn"))
                                                            : chipStep(Chip::Chestnut, QStringLiteral("chestnut")));
    for (int bus : I2CAutoRun::sequence(I2CEngine::busLayout(model)))
        list.append(busStep(bus));

    list.append({QStringLiteral("nandsize"), NandEngine::command(NandEngine::ModeSize), NandEngine::SizeTickLimit,
                 NandSizeTickMs,
                 [](const QString &a) { return NandEngine::size(a).outcome != NandEngine::Size::Outcome::TooShort; },
                 [](const CheckContext &c, const QString &answer, QString *) {
                     return one(judgeNandSize(c.model, answer));
                 }});
    list.append({QStringLiteral("nanduid"), NandEngine::command(NandEngine::ModeUid), NandEngine::StatusTickLimit,
                 NandStatusTickMs,
                 [](const QString &a) {
                     return NandEngine::status(a, NandEngine::ModeUid).outcome != NandEngine::Status::Outcome::TooShort;
                 },
                 [](const CheckContext &c, const QString &answer, QString *) {
                     return one(judgeNandStatus(c.model, NandEngine::ModeUid, answer));
                 }});
    for (int kind : {ICCheck::DataKind, ICCheck::CommunicationKind})
        list.append({QStringLiteral("ic%1").arg(kind), ICCheck::command(kind), BusTicks, BusTickMs, ICCheck::arrived,
                     [kind](const CheckContext &c, const QString &answer, QString *) {
                         return one(icReport(c.model, kind, answer));
                     }});
    const QString dram = OutrosEngine::teste(OutrosEngine::ModeDram)->command;
    list.append({QStringLiteral("dram"), dram, OutrosEngine::StatusTickLimit, OutrosTickMs,
                 [](const QString &a) { return OutrosEngine::status(a, OutrosEngine::ModeDram).complete; },
                 [](const CheckContext &c, const QString &answer, QString *) {
                     return one(judgeOutros(c.model, OutrosEngine::ModeDram, answer));
                 }});
    const QString battery = OutrosEngine::bateriaCommand();
    list.append({QStringLiteral("bateria"), battery, OutrosEngine::StatusTickLimit, OutrosTickMs,
                 [battery](const QString &a) { return saidSomething(a, battery); },
                 [battery](const CheckContext &c, const QString &answer, QString *) {
                     JudgeReport report;
                     report.model = c.model;
                     report.rows = batteryRows(answer);
                     return one(report);
                 }});
    return list;
}

QList<JudgedRow> batteryRows(const QString &answer)
{
    // Shown, never judged: charge and current change from one reading to the next. Each property
    // is listed once, as it first appears, so the log lines a talkative phone repeats between
    // them cannot bury the properties under thousands of rows.
    QList<JudgedRow> rows;
    QSet<QString> seen;
    for (const QString &line : answerLines(answer, OutrosEngine::bateriaCommand())) {
        const qsizetype colon = line.indexOf(u':');
        const QString name = colon > 0 ? line.left(colon).trimmed() : QStringLiteral("Bateria");
        if (seen.contains(name))
            continue;
        seen.insert(name);
        rows.append({name, QJsonValue(), colon > 0 ? line.mid(colon + 1).trimmed() : line, QJsonValue(), Verdict::None});
    }
    return rows;
}

QString title(const QString &key, const QString &model, quint8 idioma)
{
    if (key.startsWith(QLatin1String("i2c")))
        return QStringLiteral("I2C ") + key.mid(3);
    if (key == QLatin1String("tristar"))
        return ICCheck::chipName(model);
    if (key == QLatin1String("ic1") || key == QLatin1String("ic2"))
        return ICCheck::chipName(model) + QStringLiteral(" - ")
            + Texts::Traduz(key == QLatin1String("ic1") ? QStringLiteral("dados")
                                                        : QStringLiteral("comunicação"),
                            idioma);
    if (const std::optional<Chip> chip = ChipTables::byEngine(key))
        return ChipTables::definition(*chip).name;
    const QHash<QString, QString> titles = {
        {QStringLiteral("serial"), Texts::Traduz(QStringLiteral("Número de série"), idioma)},
        {QStringLiteral("rails"), Texts::Traduz(QStringLiteral("Tensões (VCore, Buck / Ldo)"), idioma)},
        {QStringLiteral("nandsize"), Texts::Traduz(QStringLiteral("Tamanho da NAND"), idioma)},
        {QStringLiteral("nanduid"), Texts::Traduz(QStringLiteral("Identificador da NAND"), idioma)},
        {QStringLiteral("dram"), Texts::Traduz(QStringLiteral("DRAM"), idioma)},
        {QStringLiteral("bateria"), Texts::Traduz(QStringLiteral("Bateria"), idioma)},
    };
    return titles.value(key, key);
}

QString detail(const QString &key, const QString &model)
{
    if (!key.startsWith(QLatin1String("i2c")))
        return {};
    bool ok = false;
    const int bus = key.mid(3).toInt(&ok);
    return ok ? I2CEngine::connectorText(model, bus) : QString();
}

QList<JudgedRow> rowsOf(const JudgeReport &report, const QString &statusName)
{
    QList<JudgedRow> rows = report.rows;
    // A status without a verdict only sums the rows up ("pass", "empty"): it adds nothing.
    if (!report.status.isNull() && report.statusVerdict != Verdict::None)
        rows.append({statusName, QJsonValue(), report.status.toString(), QJsonValue(), report.statusVerdict});
    return rows;
}

} // namespace CheckSteps
