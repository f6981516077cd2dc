#include "RunRails.h"

#include "CliOutput.h"
#include "JudgeRails.h"
#include "LiveExchange.h"

int runRunRails(const QStringList &args, QTextStream &out, QTextStream &err)
{
    QString error;
    QStringList rest;
    auto options = parseRailsOptions(args, &rest, &error);
    QString portName;
    int buck = 5;
    for (int i = 0; i + 1 < rest.size(); i += 2) {
        if (rest[i] == QLatin1String("--port"))
            portName = rest[i + 1];
        else if (rest[i] == QLatin1String("--buck"))
            buck = QString(rest[i + 1]).remove(u' ').toInt();
        else
            error = QStringLiteral("unknown option ") + rest[i];
    }
    if (!options || !error.isEmpty() || portName.isEmpty() || options->model.isEmpty() || buck < 1 || buck > 99) {
        err << (error.isEmpty() ? QStringLiteral("--port and --model are needed (--buck 1..99)") : error) << u'\n'
            << railsHelp();
        return Cli::BadUse;
    }

    LiveExchange live(options->db);
    if (options->model == QLatin1String("auto")) {
        const auto model = live.recogniseModel(portName);
        if (!model && !live.databaseError().isEmpty()) {
            err << live.databaseError() << u'\n';
            return Cli::UnreadableFile;
        }
        if (!model) {
            err << (live.lost() ? QStringLiteral("the device on %1 vanished").arg(portName)
                                : QStringLiteral("the model could not be recognised; give it with --model"))
                << u'\n';
            return Cli::DeviceProblem;
        }
        options->model = *model;
    } else if (const QString problem = live.open(portName); !problem.isEmpty()) {
        err << problem << u'\n';
        return Cli::DeviceProblem;
    }

    QString command = QStringLiteral("pmuadc --read all");
    if (options->engine == QLatin1String("buck-read"))
        command = QStringLiteral("buck");
    else if (options->engine == QLatin1String("buck-check"))
        command = QStringLiteral("buckcheck ") + QString::number(buck);
    const std::optional<QString> answer = live.exchange(command);
    if (!answer || answer->trimmed().isEmpty()) {
        err << (answer ? QStringLiteral("no answer from ") : QStringLiteral("the device vanished during the answer on "))
            << portName << u'\n';
        return Cli::DeviceProblem;
    }
    const auto report = judgeRailsAnswer(*options, *answer, &error);
    if (!report) {
        err << error << u'\n';
        return Cli::UnreadableFile;
    }
    if (const QString problem = report->extra.value(QStringLiteral("problem")).toString(); !problem.isEmpty())
        err << problem << u'\n';
    report->print(out, options->json);
    return report->exitCode();
}
