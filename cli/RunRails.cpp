#include "RunRails.h"

#include "ConsoleExchange.h"
#include "JudgeRails.h"
#include "Database.h"
#include "QtSerialPort.h"
#include "Session.h"

#include <QEventLoop>
#include <QRegularExpression>
#include <QTimer>

namespace {

// One command and its whole answer; empty when the device vanished.
QString exchangeOnce(Session &session, ConsoleExchange &exchange, SerialPort &port, const QString &command)
{
    QEventLoop loop;
    bool lost = false;
    const auto lostConnection = QObject::connect(&port, &SerialPort::lost, &loop, [&] {
        lost = true;
        loop.quit();
    });
    const auto finished = QObject::connect(&exchange, &ConsoleExchange::answerFinished, &loop, [&] {
        // The slice of the finishing tick is appended right after the hand-over.
        QTimer::singleShot(0, &loop, &QEventLoop::quit);
    });
    session.setConnectionFlag(QStringLiteral("1"));
    exchange.setCommandField(command);
    exchange.EnviaComando();
    loop.exec();
    QObject::disconnect(lostConnection);
    QObject::disconnect(finished);
    return lost ? QString() : exchange.console();
}

} // namespace

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
        return 2;
    }

    Session session(options->db);
    QtSerialPortLink port;
    if (const int e = port.open(portName); e != SerialPort::NoError) {
        err << QStringLiteral("cannot open port ") << portName << QStringLiteral(" (") << e << QStringLiteral(")\n");
        return 1;
    }
    ConsoleExchange exchange(session, port);

    if (options->model == QLatin1String("auto")) {
        static const QRegularExpression number(QStringLiteral("\\bA\\d{4}\\b"));
        const auto match = number.match(exchangeOnce(session, exchange, port, QStringLiteral("syscfg print RMd#")));
        const auto model = match.hasMatch() ? Database(options->db).modeloRef(match.captured()) : std::nullopt;
        if (!model) {
            err << QStringLiteral("the model could not be recognised; give it with --model\n");
            return 1;
        }
        options->model = *model;
    }

    QString command = QStringLiteral("pmuadc --read all");
    if (options->engine == QLatin1String("buck-read"))
        command = QStringLiteral("buck");
    else if (options->engine == QLatin1String("buck-check"))
        command = QStringLiteral("buckcheck ") + QString::number(buck);
    const QString answer = exchangeOnce(session, exchange, port, command);
    port.close();
    if (answer.trimmed().isEmpty()) {
        err << QStringLiteral("no answer from ") << portName << u'\n';
        return 1;
    }
    const auto report = judgeRailsAnswer(*options, answer, &error);
    if (!report) {
        err << error << u'\n';
        return 2;
    }
    printRailsReport(*report, options->json, out);
    return report->value(QStringLiteral("status")).toString() == QLatin1String("fail") ? 1 : 0;
}
