// vekto-sim: one simulated phone on a pseudo-terminal, for the desktop program and its tests.

#include "AnswerStore.h"
#include "Board.h"
#include "PtyServer.h"
#include "SignalWatcher.h"
#include "SimCatalog.h"
#include "SimRegistration.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vekto-sim"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Simulated phone diagnostics console on a pseudo-terminal."));
    parser.addHelpOption();
    const QCommandLineOption modelOpt(QStringLiteral("model"), QStringLiteral("Board model, e.g. \"IP 7\"."),
                                      QStringLiteral("name"), QStringLiteral("IP 7"));
    const QCommandLineOption profileOpt(QStringLiteral("profile"), QStringLiteral("Board profile."),
                                        QStringLiteral("name"), QStringLiteral("good"));
    const QCommandLineOption answersOpt(QStringLiteral("answers"),
                                        QStringLiteral("Folder whose answer files override the built-in ones."),
                                        QStringLiteral("dir"));
    const QCommandLineOption listOpt(QStringLiteral("list-profiles"), QStringLiteral("Print the profile names."));
    parser.addOptions({modelOpt, profileOpt, answersOpt, listOpt});
    parser.process(app);

    QTextStream err(stderr);
    if (parser.isSet(listOpt)) {
        QTextStream(stdout) << SimCatalog::profileNames().join(QLatin1Char('\n')) << '\n';
        return 0;
    }
    const auto model = SimCatalog::modelByName(parser.value(modelOpt));
    if (!model) {
        QStringList names;
        for (const SimModel &m : SimCatalog::models())
            names << m.name;
        err << "vekto-sim: unknown model \"" << parser.value(modelOpt) << "\"; one of: " << names.join(QStringLiteral(", "))
            << '\n';
        return 2;
    }
    const auto profile = SimCatalog::profileByName(parser.value(profileOpt));
    if (!profile) {
        err << "vekto-sim: unknown profile \"" << parser.value(profileOpt) << "\"; one of: "
            << SimCatalog::profileNames().join(QStringLiteral(", ")) << '\n';
        return 2;
    }

    PtyServer server(Board(AnswerStore(parser.value(answersOpt)), *model, *profile));
    if (!server.start()) {
        err << "vekto-sim: cannot open a pseudo-terminal: " << server.errorString() << '\n';
        return 1;
    }
    SimRegistration registration(server.slavePath(), QStringLiteral("vekto-sim %1 (%2)")
                                                         .arg(model->name, SimCatalog::profileName(*profile)));
    if (!registration.ok())
        err << "vekto-sim: could not register in " << SimRegistration::folder() << '\n' << Qt::flush;
    // Registered first, so whoever reads this line also finds the port in the shared folder.
    std::fputs((server.slavePath() + QLatin1Char('\n')).toLocal8Bit().constData(), stdout);
    std::fflush(stdout);


    SignalWatcher signals_;
    QObject::connect(&signals_, &SignalWatcher::stopRequested, &app, &QCoreApplication::quit);
    QObject::connect(&server, &PtyServer::unplugged, &app, &QCoreApplication::quit);
    return app.exec();
}
