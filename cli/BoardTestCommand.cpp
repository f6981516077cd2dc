#include "BoardTestCommand.h"

#include "JudgeNand.h"
#include "JudgeOutros.h"
#include "LiveExchange.h"
#include "NandEngine.h"
#include "OutrosEngine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <functional>
#include <optional>

namespace {

struct Engine
{
    QString name;
    QList<int> modes; // empty: the engine takes no --mode
    std::function<QString(int mode)> command;
    std::function<JudgeReport(const QString &model, int mode, const QString &answer)> judge;
};

const QList<Engine> &engines()
{
    static const QList<Engine> list = {
        {QStringLiteral("nand-size"), {},
         [](int) { return NandEngine::command(NandEngine::ModeSize); },
         [](const QString &model, int, const QString &answer) { return judgeNandSize(model, answer); }},
        {QStringLiteral("nand-status"),
         {NandEngine::ModeUid, NandEngine::ModeSize, NandEngine::ModeInfo, NandEngine::ModeSyscfg},
         [](int mode) { return NandEngine::command(mode); }, judgeNandStatus},
        {QStringLiteral("outros"),
         {OutrosEngine::ModeTristarId, OutrosEngine::ModeTristarRead, OutrosEngine::ModeDram, OutrosEngine::ModeDram1Mb},
         [](int mode) { return OutrosEngine::teste(mode)->command; }, judgeOutros},
    };
    return list;
}

const Engine *engine(const QString &name)
{
    for (const Engine &e : engines())
        if (e.name == name)
            return &e;
    return nullptr;
}

QString usage(const QString &verb)
{
    const QString source = verb == QLatin1String("judge") ? QStringLiteral("--answer FILE")
                                                          : QStringLiteral("--port P");
    return QStringLiteral("usage: vekto-cli %1 nand-size --model M %2 [--db FILE] [--json]\n"
                          "       vekto-cli %1 nand-status --model M --mode 0..3 %2 [--db FILE] [--json]\n"
                          "       vekto-cli %1 outros --model M --mode 1|2|5|6 %2 [--db FILE] [--json]\n"
                          "  nand-size reads the size line of \"nandsize\" (pass: a real capacity class);\n"
                          "  nand-status: 0 nanduid, 1 nandsize, 2 nand --getinfo, 3 syscfg list;\n"
                          "  outros: 1/2 Tristar readouts (not judged), 5/6 DRAM tests.\n"
                          "  Exit code: 0 nothing failed, 1 a failure or nothing judged, 2 bad use.")
        .arg(verb, source);
}

struct Options
{
    const Engine *engine = nullptr;
    QString model;
    int mode = 0;
    QString answerFile;
    QString port;
    QString db;
    bool json = false;
};

std::optional<Options> parse(const QString &verb, const QStringList &args, QTextStream &err)
{
    Options o;
    o.engine = engine(args.value(0));
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("model"), QStringLiteral("The model, as the model list shows it."), QStringLiteral("M")});
    parser.addOption({QStringLiteral("mode"), QStringLiteral("The test: the index of the screen's button."), QStringLiteral("N")});
    parser.addOption({QStringLiteral("answer"), QStringLiteral("The saved console answer."), QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("port"), QStringLiteral("The serial device."), QStringLiteral("P")});
    parser.addOption({QStringLiteral("db"), QStringLiteral("The database (default: Config.vkt beside the program)."),
                      QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object.")});
    if (!o.engine || !parser.parse(QStringList{QStringLiteral("vekto-cli")} + args.mid(1))) {
        err << "vekto-cli: " << (o.engine ? parser.errorText() : QStringLiteral("unknown engine")) << '\n'
            << usage(verb) << Qt::endl;
        return std::nullopt;
    }
    o.model = parser.value(QStringLiteral("model"));
    o.answerFile = parser.value(QStringLiteral("answer"));
    o.port = parser.value(QStringLiteral("port"));
    o.db = parser.value(QStringLiteral("db"));
    if (o.db.isEmpty())
        o.db = QCoreApplication::applicationDirPath() + QStringLiteral("/Config.vkt");
    o.json = parser.isSet(QStringLiteral("json"));

    QString problem;
    if (o.model.isEmpty())
        problem = QStringLiteral("--model is needed");
    else if (verb == QLatin1String("judge") && (o.answerFile.isEmpty() || parser.isSet(QStringLiteral("port"))))
        problem = QStringLiteral("judge takes --answer FILE, not --port");
    else if (verb == QLatin1String("run") && (o.port.isEmpty() || parser.isSet(QStringLiteral("answer"))))
        problem = QStringLiteral("run takes --port P, not --answer");
    else if (!parser.positionalArguments().isEmpty())
        problem = QStringLiteral("unexpected ") + parser.positionalArguments().join(u' ');
    else if (verb == QLatin1String("judge") && o.model == QLatin1String("auto"))
        problem = QStringLiteral("--model auto needs a phone: use run");
    if (problem.isEmpty() && !o.engine->modes.isEmpty()) {
        bool ok = false;
        o.mode = parser.value(QStringLiteral("mode")).toInt(&ok);
        if (!ok || !o.engine->modes.contains(o.mode))
            problem = QStringLiteral("--mode must be one of the engine's tests");
    } else if (problem.isEmpty() && parser.isSet(QStringLiteral("mode"))) {
        problem = o.engine->name + QStringLiteral(" takes no --mode");
    }
    if (!problem.isEmpty()) {
        err << "vekto-cli: " << problem << '\n' << usage(verb) << Qt::endl;
        return std::nullopt;
    }
    return o;
}

int report(const Options &o, const QString &answer, QTextStream &out)
{
    const JudgeReport r = o.engine->judge(o.model, o.mode, answer);
    r.print(out, o.json);
    out.flush();
    return r.exitCode();
}

} // namespace

bool isBoardTestEngine(const QString &name)
{
    return engine(name) != nullptr;
}

int runBoardTestJudge(const QStringList &args, QTextStream &out, QTextStream &err)
{
    const std::optional<Options> o = parse(QStringLiteral("judge"), args, err);
    if (!o)
        return 2;
    QFile file(o->answerFile);
    if (!file.open(QIODevice::ReadOnly)) {
        err << "vekto-cli: cannot read the answer " << o->answerFile << ": " << file.errorString() << Qt::endl;
        return 2;
    }
    return report(*o, QString::fromUtf8(file.readAll()), out);
}

int runBoardTestLive(const QStringList &args, QTextStream &out, QTextStream &err)
{
    std::optional<Options> o = parse(QStringLiteral("run"), args, err);
    if (!o)
        return 2;
    LiveExchange live(o->db);
    if (o->model == QLatin1String("auto")) {
        const std::optional<QString> model = live.recogniseModel(o->port);
        if (!model) {
            err << "vekto-cli: "
                << (live.lost() ? QStringLiteral("the device on %1 vanished").arg(o->port)
                                : QStringLiteral("the model could not be recognised; give it with --model"))
                << Qt::endl;
            return 1;
        }
        o->model = *model;
    } else if (const QString problem = live.open(o->port); !problem.isEmpty()) {
        err << "vekto-cli: " << problem << Qt::endl;
        return 1;
    }
    const std::optional<QString> answer = live.exchange(o->engine->command(o->mode));
    if (!answer) {
        err << "vekto-cli: the device on " << o->port << " vanished during the answer" << Qt::endl;
        return 1;
    }
    if (answer->trimmed().isEmpty())
        err << "vekto-cli: no answer from " << o->port << Qt::endl;
    return report(*o, *answer, out);
}
