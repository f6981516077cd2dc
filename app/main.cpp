// The desktop program: builds the session, the serial link, the exchange and the main window,
// and registers the screens of the menu.
#include "BuckLdo.h"
#include "BuckTeste.h"
#include "ConnectionController.h"
#include "ConsoleExchange.h"
#include "Database.h"
#include "Dialogs.h"
#include "Inicial.h"
#include "Master.h"
#include "PortList.h"
#include "QtSerialPort.h"
#include "Session.h"
#include "Shell.h"
#include "Startup.h"
#include "VCores.h"
#include "xIdioma.h"

#include <QApplication>
#include <QSplashScreen>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Pelorin Vekto"));
    QApplication::setApplicationVersion(QString::fromLatin1(Startup::Versao));

    QtDialogs dialogs;
    QSplashScreen *splash = Startup::showPicture();
    const QString path = Startup::configPath(QCoreApplication::applicationDirPath());
    if (const auto exitCode = Startup::checkConfig(path, dialogs)) {
        delete splash;
        return *exitCode;
    }

    Session session(path);
    Startup::initSession(session);
    dialogs.setSession(&session);

    QtSerialPortLink port;
    ConsoleExchange exchange(session, port);
    ConnectionController connection(session, exchange, port);
    connection.setModelLookup([&session](const QString &number) {
        return Database(session.configPath()).modeloRef(number);
    });
    PortList ports;
    const ScreenContext context{session, exchange, dialogs};
    Inicial inicial(context, connection, ports);

    // Every screen opens a screen of its own kind through the main window, so it stays one instance.
    const auto opener = [&inicial](const QString &name) { inicial.openScreen(name); };
    QtShell shell;
    inicial.registerScreen(2, QStringLiteral("Master"), QStringLiteral("Modo Comandos e Comparador"),
                           [&inicial, &shell](const ScreenContext &ctx) -> QWidget * {
                               return new Master(ctx, shell, [&inicial](QWidget *w) { inicial.showChildWindow(w); });
                           });
    inicial.registerScreen(3, QStringLiteral("VCores"), QStringLiteral("VCore"),
                           [](const ScreenContext &ctx) -> QWidget * { return new VCores(ctx); });
    inicial.registerScreen(4, QStringLiteral("BuckLdo"), QStringLiteral("Buck / Ldo"),
                           [opener](const ScreenContext &ctx) -> QWidget * {
                               auto *screen = new BuckLdo(ctx);
                               screen->setScreenOpener(opener);
                               return screen;
                           });
    inicial.registerScreen(13, QStringLiteral("BuckTeste"), QStringLiteral("Buck Teste"),
                           [](const ScreenContext &ctx) -> QWidget * { return new BuckTeste(ctx); });
    inicial.registerScreen(10, QStringLiteral("xIdioma"), QStringLiteral("Idioma / Language"),
                           [&inicial](const ScreenContext &ctx) -> QWidget * {
                               return new xIdioma(ctx.session, ctx.dialogs, [&inicial] { inicial.closeTestScreens(); });
                           }, false);

    inicial.show();
    splash->finish(&inicial);
    delete splash;
    return app.exec();
}
