// vekto-cli: the tool's engines without a window, for scripts, support and tests.
#include "BoardTestCommand.h"
#include "CliCommands.h"
#include "CliOutput.h"
#include "JudgeChips.h"
#include "JudgeCompare.h"
#include "JudgeI2C.h"
#include "JudgeRails.h"
#include "JudgeRf.h"
#include "RunRails.h"

#include <QCoreApplication>
#include <QTextStream>
#include <functional>
#include <map>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vekto-cli"));

    const std::map<QString, std::function<int(const QStringList &)>> commands{
        {QStringLiteral("ports"), Cli::ports},
        {QStringLiteral("send"), Cli::send},
        {QStringLiteral("identify"), Cli::identify},
        {QStringLiteral("import"), Cli::importData},
        {QStringLiteral("update-check"), Cli::updateCheck},
        {QStringLiteral("refs"), Cli::refs},
        {QStringLiteral("judge"), [](const QStringList &a) {
             QTextStream out(stdout), err(stderr);
             if (a.value(0) == QLatin1String("compare"))
                 return runJudgeCompare(a.mid(1), out, err);
             if (isChipEngine(a.value(0)))
                 return runJudgeChips(a, out, err);
             if (isBoardTestEngine(a.value(0)))
                 return runBoardTestJudge(a, out, err);
             if (a.value(0) == QLatin1String("i2c"))
                 return runJudgeI2C(a.mid(1), out, err);
             if (a.value(0) == QLatin1String("ic"))
                 return runJudgeIC(a.mid(1), out, err);
             if (a.value(0) == QLatin1String("rf"))
                 return runJudgeRf(a.mid(1), out, err);
             return runJudgeRails(a, out, err);
         }},
        {QStringLiteral("run"), [](const QStringList &a) {
             QTextStream out(stdout), err(stderr);
             if (isChipEngine(a.value(0)))
                 return runRunChips(a, out, err);
             if (isBoardTestEngine(a.value(0)))
                 return runBoardTestLive(a, out, err);
             if (a.value(0) == QLatin1String("i2c"))
                 return runRunI2C(a.mid(1), out, err);
             if (a.value(0) == QLatin1String("rf"))
                 return runRunRf(a.mid(1), out, err);
             return runRunRails(a, out, err);
         }},
    };
    const QStringList args = app.arguments().mid(1);
    const auto command = args.isEmpty() ? commands.end() : commands.find(args.first());
    if (command == commands.end()) {
        Cli::err(QStringLiteral("usage: vekto-cli ports | send --port P TEXT | identify --port P [--db FILE]"
                               " | judge ENGINE ... | run ENGINE ... | import --from FILE [--db FILE]"
                               " | update-check [--url URL] | refs learn|undo|show|export|import ..."));
        return 2;
    }
    return command->second(args.mid(1));
}
