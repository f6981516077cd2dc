// The desktop program: builds the session, the serial link, the exchange and the main window,
// and registers the screens of the menu.
#include "ConnectionController.h"
#include "ConsoleExchange.h"
#include "Database.h"
#include "Dialogs.h"
#include "Inicial.h"
#include "PortList.h"
#include "QtSerialPort.h"
#include "Screens.h"
#include "Session.h"
#include "Shell.h"
#include "Startup.h"

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

    QtShell shell;
    Screens::registerAll(inicial, shell);

    inicial.show();
    splash->finish(&inicial);
    delete splash;
    return app.exec();
}
