// The board check against the simulated phone, "IP 7" and "IP X": its wall time beside the sum
// of its steps' own exchanges (each ends as its answer ends) and beside the sum of the give-up
// budgets of the screens the steps stand for. What the check adds of its own is the difference
// between the first two, per step.

#include "BoardCheck.h"
#include "CheckSteps.h"
#include "LiveExchange.h"
#include "e2e/SimProcess.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTextStream>

namespace {

int measure(const QString &model, QTextStream &out)
{
    SimProcess sim;
    if (const QString error = sim.start(model, QStringLiteral("good")); !error.isEmpty()) {
        out << error << Qt::endl;
        return 1;
    }
    ConfigCopy config;
    if (!config.ok())
        return 1;
    LiveExchange live(config.path());
    if (const QString problem = live.open(sim.port()); !problem.isEmpty()) {
        out << problem << Qt::endl;
        return 1;
    }
    BoardCheck check(live.session(), live.consoleExchange());
    QEventLoop loop;
    QObject::connect(&check, &BoardCheck::finished, &loop, &QEventLoop::quit);
    if (!check.start(model, config.path()))
        return 1;
    loop.exec();
    const CheckResult &r = check.result();
    qint64 exchanges = 0;
    int exchanged = 0;
    for (const CheckStepResult &s : r.steps) {
        exchanges += s.exchangeMs;
        exchanged += s.exchangeMs > 0;
    }
    qint64 budgets = 0;
    for (const CheckStep &s : CheckSteps::steps(model))
        budgets += qint64(s.tickLimit) * s.tickMs;
    out << QStringLiteral("| %1 | %2 of %3 | %4 | %5 ms | %6 ms | %7 ms | %8 s | %9 |\n")
               .arg(model)
               .arg(r.steps.size())
               .arg(r.totalSteps)
               .arg(exchanged)
               .arg(r.wallMs)
               .arg(exchanges)
               .arg(double(r.wallMs - exchanges) / qMax<qsizetype>(1, r.steps.size()), 0, 'f', 1)
               .arg(budgets / 1000.0, 0, 'f', 1)
               .arg(r.exitCode() == 0 ? QStringLiteral("pass") : QStringLiteral("FAIL"));
    return r.exitCode();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    if (!SimProcess::available()) {
        out << "vekto-sim or Config.vkt was not built" << Qt::endl;
        return 1;
    }
    out << "| model | steps | exchanges | wall time | sum of exchanges | own work per step | budgets | verdict |\n"
           "|---|---|---|---|---|---|---|---|\n";
    int code = 0;
    for (const QString &model : {QStringLiteral("IP 7"), QStringLiteral("IP X")})
        code |= measure(model, out);
    return code;
}
