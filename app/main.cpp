// The desktop program: builds the session, the serial link, the exchange and the main window,
// and registers the screens of the menu.
#include "ConnectionController.h"
#include "ConsoleExchange.h"
#include "Database.h"
#include "Dialogs.h"
#include "Http.h"
#include "Inicial.h"
#include "PortList.h"
#include "QtSerialPort.h"
#include "Screens.h"
#include "Session.h"
#include "Shell.h"
#include "Startup.h"
#include "StartupSteps.h"
#include "Termos.h"

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
    // An Access Config.vkt of the program before this one is carried over to SQLite first.
    std::optional<int> exitCode = StartupSteps::migrateConfig(path, dialogs);
    if (!exitCode)
        exitCode = Startup::checkConfig(path, dialogs);
    if (exitCode) {
        delete splash;
        return *exitCode;
    }
    if (QString error; !StartupSteps::upgradeConfig(path, &error))
        qWarning("Config.vkt could not be given its new columns: %s", qPrintable(error));

    Session session(path);
    Startup::initSession(session);
    dialogs.setSession(&session);

    QtShell shell;
    QtHttp http;
    if (!StartupSteps::verificaVersao(session, http, dialogs, shell, [splash] { splash->hide(); })) {
        delete splash;
        return 0;
    }
    if (!StartupSteps::termos(session, dialogs, [&session, splash] {
            splash->hide();
            return Termos(session).exec() == QDialog::Accepted;
        })) {
        delete splash;
        return 0;
    }

    QtSerialPortLink port;
    ConsoleExchange exchange(session, port);
    ConnectionController connection(session, exchange, port);
    connection.setModelLookup([&session](const QString &number) {
        return Database(session.configPath()).modeloRef(number);
    });
    PortList ports;
    const ScreenContext context{session, exchange, dialogs};
    Inicial inicial(context, connection, ports);
    Screens::registerAll(inicial, shell);

    delete splash;
    StartupSteps::perguntaImportacao(session, dialogs, nullptr);
    inicial.show();
    return app.exec();
}
