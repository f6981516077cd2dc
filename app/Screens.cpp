#include "Screens.h"

#include "BuckLdo.h"
#include "BuckTeste.h"
#include "Inicial.h"
#include "LinkMenu.h"
#include "Master.h"
#include "Session.h"
#include "Sobre.h"
#include "VCores.h"
#include "xIdioma.h"

#include <QMenuBar>

namespace Screens {

void registerAll(Inicial &inicial, Shell &shell)
{
    // A screen that opens another goes through the main window, so each stays one instance.
    const auto opener = [&inicial](const QString &name) { inicial.openScreen(name); };
    inicial.registerScreen(2, QStringLiteral("Master"), QStringLiteral("Modo Comandos e Comparador"),
                           [&inicial, &shell](const ScreenContext &ctx) -> QWidget * {
                               return new Master(ctx, shell, [&inicial](QWidget *w) { inicial.showChildWindow(w); });
                           });
    inicial.registerScreen(3, QStringLiteral("VCores"), QStringLiteral("VCore"),
                           [](const ScreenContext &ctx) -> QWidget * { return new VCores(ctx); });
    inicial.registerScreen(4, QStringLiteral("BuckLdo"), QStringLiteral("Buck / Ldo"),
                           [opener, &inicial](const ScreenContext &ctx) -> QWidget * {
                               auto *screen = new BuckLdo(ctx);
                               screen->setScreenOpener(opener, [&inicial](const QString &name) {
                                   return inicial.hasScreen(name);
                               });
                               return screen;
                           });
    inicial.registerScreen(10, QStringLiteral("xIdioma"), QStringLiteral("Idioma / Language"),
                           [&inicial](const ScreenContext &ctx) -> QWidget * {
                               return new xIdioma(ctx.session, ctx.dialogs, [&inicial] { inicial.closeTestScreens(); });
                           },
                           false);
    inicial.registerScreen(12, QStringLiteral("Sobre"), QStringLiteral("Sobre"),
                           [&shell](const ScreenContext &ctx) -> QWidget * { return new Sobre(ctx, shell); });
    // The maker's pages are one click away from the main window as well as from the about screen.
    auto *links = new LinkMenu(inicial.context().session, shell, &inicial);
    inicial.menuBar()->addMenu(links);
    QObject::connect(&inicial.context().session, &Session::idiomaChanged, links, &LinkMenu::reload);
    inicial.registerScreen(13, QStringLiteral("BuckTeste"), QStringLiteral("Buck Teste"),
                           [](const ScreenContext &ctx) -> QWidget * { return new BuckTeste(ctx); });
}

QStringList names()
{
    return {QStringLiteral("Master"), QStringLiteral("VCores"), QStringLiteral("BuckLdo"), QStringLiteral("xIdioma"),
            QStringLiteral("Sobre"), QStringLiteral("BuckTeste")};
}

} // namespace Screens
