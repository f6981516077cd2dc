#include "JudgeI2C.h"

#include "Database.h"
#include "I2CEngine.h"
#include "ICCheck.h"
#include "JudgeReport.h"
#include "LiveExchange.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <optional>

namespace {

const QString I2CUsage = QStringLiteral(
    "usage: vekto-cli judge i2c --model M --bus N --answer FILE [--db FILE] [--json]\n"
    "       vekto-cli run i2c --port P --model M|auto [--bus N] [--db FILE] [--json]\n"
    "  Every device table i lists for the model on the bus passes when its three address\n"
    "  characters occur in the answer (COMUNICAÇÃO OK) and fails otherwise (COMUNICAÇÃO OFF).\n"
    "  run i2c without --bus probes the model's buses in the order of the automatic run.");
const QString ICUsage = QStringLiteral(
    "usage: vekto-cli judge ic --model M --mode K --answer FILE [--json]\n"
    "  K is the check kind: 1 \"tristar -p\", 2 the register read (0 is judged alike, 6 never).\n"
    "  An answer of 30 characters or fewer has not arrived; more than 200 is COMUNICAÇÃO OK.");

void addCommon(QCommandLineParser &parser)
{
    parser.addOption({QStringLiteral("model"), QStringLiteral("The model, as the model list shows it."), QStringLiteral("M")});
    parser.addOption({QStringLiteral("db"), QStringLiteral("The database (default: Config.vkt beside the program)."),
                      QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object.")});
}

bool parseArgs(QCommandLineParser &parser, const QString &command, const QStringList &args, const QString &usage,
               QTextStream &err)
{
    if (!parser.parse(QStringList{QStringLiteral("vekto-cli ") + command} + args) || !parser.positionalArguments().isEmpty()) {
        err << "vekto-cli: " << (parser.errorText().isEmpty() ? QStringLiteral("unexpected ") +
                                     parser.positionalArguments().join(u' ') : parser.errorText())
            << '\n' << usage << Qt::endl;
        return false;
    }
    return true;
}

QString dbPath(const QCommandLineParser &parser)
{
    const QString db = parser.value(QStringLiteral("db"));
    return db.isEmpty() ? QCoreApplication::applicationDirPath() + QStringLiteral("/Config.vkt") : db;
}

std::optional<int> busValue(const QString &text)
{
    bool ok = false;
    const int bus = text.trimmed().toInt(&ok);
    if (!ok || bus < 0 || bus >= I2CEngine::BusCount)
        return std::nullopt;
    return bus;
}

std::optional<QString> readAnswer(const QString &path, QTextStream &err)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        err << "vekto-cli: cannot read " << path << Qt::endl;
        return std::nullopt;
    }
    return QString::fromUtf8(file.readAll());
}

// The reference rows of each bus, read once; nothing when the database cannot be read.
class References
{
public:
    explicit References(const QString &path) : m_db(path, Database::Access::ReadOnly) {}
    std::optional<QStringList> rows(const QString &model, int bus, QTextStream &err)
    {
        const QStringList rows = m_db.isOpen() ? m_db.i2cTextsStartingWith(model, QString::number(bus)) : QStringList();
        if (!m_db.isOpen() || !m_db.lastError().isEmpty()) {
            err << "vekto-cli: cannot read " << m_db.path() << ": " << m_db.lastError() << Qt::endl;
            return std::nullopt;
        }
        return rows;
    }

private:
    Database m_db;
};

} // namespace

JudgeReport i2cReport(const QString &model, const QList<I2CBusResult> &buses)
{
    JudgeReport report;
    report.engine = QStringLiteral("i2c");
    report.model = model;
    QString failures;
    QJsonArray probed;
    for (const I2CBusResult &bus : buses) {
        probed.append(bus.bus);
        for (const I2CDeviceResult &d : bus.devices)
            report.rows.append({d.device.address, d.device.entry, d.line, QJsonValue(), d.verdict});
        failures = I2CEngine::appendFailures(failures, bus, model);
    }
    // The screen shows its "no failure" frame when the failure list stayed empty.
    report.extra = {{QStringLiteral("buses"), probed},
                    {QStringLiteral("failures"), failures},
                    {QStringLiteral("FrameResultadoOK"), failures.isEmpty()}};
    return report;
}

JudgeReport icReport(const QString &model, int kind, const QString &answer)
{
    JudgeReport report;
    report.engine = QStringLiteral("ic");
    report.model = model;
    const bool arrived = ICCheck::arrived(answer);
    report.statusVerdict = arrived ? ICCheck::judge(kind, answer) : Verdict::None;
    const QString status = ICCheck::statusKey(report.statusVerdict);
    report.status = status.isEmpty() ? QJsonValue() : QJsonValue(status);
    report.extra = {{QStringLiteral("chip"), ICCheck::chipName(model)},
                    {QStringLiteral("command"), ICCheck::command(kind)},
                    {QStringLiteral("arrived"), arrived},
                    {QStringLiteral("length"), int(answer.size())}};
    return report;
}

namespace {

void printText(const JudgeReport &report, QTextStream &out)
{
    report.print(out, false);
    const QString failures = report.extra.value(QStringLiteral("failures")).toString();
    if (!failures.isEmpty())
        out << '\n' << failures << '\n';
    else if (report.anyJudged())
        out << QStringLiteral("Nenhuma falha detectada em I2C\n");
}

} // namespace

int runJudgeI2C(const QStringList &args, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    addCommon(parser);
    parser.addOption({QStringLiteral("bus"), QStringLiteral("The bus the answer is of, 0 to 7."), QStringLiteral("N")});
    parser.addOption({QStringLiteral("answer"), QStringLiteral("The saved console answer."), QStringLiteral("FILE")});
    if (!parseArgs(parser, QStringLiteral("judge i2c"), args, I2CUsage, err))
        return 2;
    const QString model = parser.value(QStringLiteral("model"));
    const std::optional<int> bus = busValue(parser.value(QStringLiteral("bus")));
    if (model.isEmpty() || !bus || parser.value(QStringLiteral("answer")).isEmpty()) {
        err << "vekto-cli: --model, --bus 0..7 and --answer are needed\n" << I2CUsage << Qt::endl;
        return 2;
    }
    const std::optional<QString> answer = readAnswer(parser.value(QStringLiteral("answer")), err);
    if (!answer)
        return 2;
    References refs(dbPath(parser));
    const std::optional<QStringList> rows = refs.rows(model, *bus, err);
    if (!rows)
        return 2;
    const JudgeReport report = i2cReport(model, {I2CEngine::judge(*bus, *answer, *rows)});
    if (parser.isSet(QStringLiteral("json")))
        report.print(out, true);
    else
        printText(report, out);
    return report.exitCode();
}

int runJudgeIC(const QStringList &args, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    addCommon(parser);
    parser.addOption({QStringLiteral("mode"), QStringLiteral("The check kind (1 data, 2 communication)."),
                      QStringLiteral("K")});
    parser.addOption({QStringLiteral("answer"), QStringLiteral("The saved console answer."), QStringLiteral("FILE")});
    if (!parseArgs(parser, QStringLiteral("judge ic"), args, ICUsage, err))
        return 2;
    const QString model = parser.value(QStringLiteral("model"));
    bool ok = false;
    const int kind = parser.value(QStringLiteral("mode")).trimmed().toInt(&ok);
    if (model.isEmpty() || !ok || kind < 0 || kind > 0xFFFF || parser.value(QStringLiteral("answer")).isEmpty()) {
        err << "vekto-cli: --model, --mode K and --answer are needed\n" << ICUsage << Qt::endl;
        return 2;
    }
    const std::optional<QString> answer = readAnswer(parser.value(QStringLiteral("answer")), err);
    if (!answer)
        return 2;

    const JudgeReport report = icReport(model, kind, *answer);
    report.print(out, parser.isSet(QStringLiteral("json")));
    if (!parser.isSet(QStringLiteral("json")))
        out << QStringLiteral("chip: ") << ICCheck::chipName(model) << '\n';
    return report.exitCode();
}

int runRunI2C(const QStringList &args, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    addCommon(parser);
    parser.addOption({QStringLiteral("bus"), QStringLiteral("Probe this bus only, 0 to 7."), QStringLiteral("N")});
    parser.addOption({QStringLiteral("port"), QStringLiteral("The phone's serial port."), QStringLiteral("P")});
    if (!parseArgs(parser, QStringLiteral("run i2c"), args, I2CUsage, err))
        return 2;
    QString model = parser.value(QStringLiteral("model"));
    const QString portName = parser.value(QStringLiteral("port"));
    const std::optional<int> bus = busValue(parser.value(QStringLiteral("bus")));
    if (model.isEmpty() || portName.isEmpty() || (parser.isSet(QStringLiteral("bus")) && !bus)) {
        err << "vekto-cli: --port and --model are needed (--bus 0..7)\n" << I2CUsage << Qt::endl;
        return 2;
    }
    const QString db = dbPath(parser);
    if (!QFile::exists(db)) {
        err << "vekto-cli: cannot read " << db << Qt::endl;
        return 2;
    }

    LiveExchange live(db);
    if (model == QLatin1String("auto")) {
        const auto recognised = live.recogniseModel(portName);
        if (!recognised) {
            err << "vekto-cli: "
                << (live.lost() ? QStringLiteral("the device on %1 vanished").arg(portName)
                                : QStringLiteral("the model could not be recognised; give it with --model"))
                << Qt::endl;
            return 1;
        }
        model = *recognised;
    } else if (const QString problem = live.open(portName); !problem.isEmpty()) {
        err << "vekto-cli: " << problem << Qt::endl;
        return 1;
    }

    const QList<int> buses = bus ? QList<int>{*bus} : I2CAutoRun::sequence(I2CEngine::busLayout(model));
    References refs(db);
    QList<I2CBusResult> results;
    const bool json = parser.isSet(QStringLiteral("json"));
    for (int b : buses) {
        const std::optional<QStringList> rows = refs.rows(model, b, err);
        if (!rows)
            return 2;
        const std::optional<QString> answer = live.exchange(I2CEngine::command(b));
        if (!answer) {
            err << "vekto-cli: the device vanished during the answer on " << portName << Qt::endl;
            return 1;
        }
        results.append(I2CEngine::judge(b, *answer, *rows));
        if (!json) {
            out << QStringLiteral("I2C ") << b << '\n';
            i2cReport(model, {results.last()}).print(out, false);
        }
    }
    const JudgeReport report = i2cReport(model, results);
    if (json) {
        report.print(out, true);
    } else {
        const QString failures = report.extra.value(QStringLiteral("failures")).toString();
        out << '\n' << (failures.isEmpty() && report.anyJudged() ? QStringLiteral("Nenhuma falha detectada em I2C") : failures)
            << '\n';
        if (!bus)
            out << QStringLiteral("Teste Finalizados\n");
    }
    return report.exitCode();
}
