#include "Screens.h"

#include "Bateria.h"
#include "BuckLdo.h"
#include "BuckTeste.h"
#include "Acorn.h"
#include "Chestnut.h"
#include "Checagem.h"
#include "I2C.h"
#include "IC.h"
#include "Inicial.h"
#include "LinkMenu.h"
#include "Master.h"
#include "Nand.h"
#include "Outros.h"
#include "Displays.h"
#include "RFs.h"
#include "RFs_Esq.h"
#include "Session.h"
#include "Tigris.h"
#include "Tristar.h"
#include "Sobre.h"
#include "VCores.h"
#include "xIdioma.h"

#include <QMenuBar>

namespace Screens {

void registerAll(Inicial &inicial, Shell &shell)
{
    // A screen that opens another goes through the main window, so each stays one instance.
    const auto opener = [&inicial](const QString &name) { return inicial.openScreen(name); };
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
    inicial.registerScreen(8, QStringLiteral("IC"), QStringLiteral("Testes IC's"),
                           [&inicial](const ScreenContext &ctx) -> QWidget * {
                               return new IC(ctx, [&inicial](const QString &name, bool hydra) {
                                   // The same Tristar screen reads the Hydra chip; only its title differs.
                                   if (auto *tristar = qobject_cast<Tristar *>(inicial.openScreen(name)))
                                       tristar->setHydra(hydra);
                               });
                           });
    inicial.registerScreen(9, QStringLiteral("I2C"), QStringLiteral("Testes de Leitura I2C"),
                           [&shell](const ScreenContext &ctx) -> QWidget * { return new I2C(ctx, shell); });
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
    // No menu element of its own: it opens from the Buck / Ldo screen's Botao2.
    inicial.registerScreen(0, QStringLiteral("BuckTeste"), QStringLiteral("Buck Teste"),
                           [](const ScreenContext &ctx) -> QWidget * { return new BuckTeste(ctx); });
    // The chip readouts have no menu element: the IC and display screens open them by name.
    inicial.registerScreen(0, QStringLiteral("Tigris"), QStringLiteral("Tigris"),
                           [](const ScreenContext &ctx) -> QWidget * { return new Tigris(ctx); });
    inicial.registerScreen(0, QStringLiteral("Tristar"), QStringLiteral("Tristar"),
                           [](const ScreenContext &ctx) -> QWidget * { return new Tristar(ctx); });
    inicial.registerScreen(0, QStringLiteral("Chestnut"), QStringLiteral("Chestnut"),
                           [](const ScreenContext &ctx) -> QWidget * { return new Chestnut(ctx); });
    inicial.registerScreen(0, QStringLiteral("Acorn"), QStringLiteral("Acorn"),
                           [](const ScreenContext &ctx) -> QWidget * { return new Acorn(ctx); });
    // Screens that open others and work with what they opened (the NAND rails in VCores).
    const auto openAndReturn = [&inicial](const QString &name) { return inicial.openScreen(name); };
    inicial.registerScreen(7, QStringLiteral("Nand"), QStringLiteral("Testes de Memória Nand"),
                           [openAndReturn, &shell](const ScreenContext &ctx) -> QWidget * {
                               return new Nand(ctx, shell, openAndReturn);
                           });
    inicial.registerScreen(17, QStringLiteral("Outros"), QStringLiteral("Testes Adicionais"),
                           [openAndReturn, &shell](const ScreenContext &ctx) -> QWidget * {
                               return new Outros(ctx, shell, openAndReturn);
                           });
    inicial.registerScreen(0, QStringLiteral("Bateria"), QStringLiteral("Bateria"),
                           [](const ScreenContext &ctx) -> QWidget * { return new Bateria(ctx); });
    inicial.registerScreen(5, QStringLiteral("RFs"), QStringLiteral("Testes de Comunicação RF"),
                           [opener](const ScreenContext &ctx) -> QWidget * {
                               auto *screen = new RFs(ctx);
                               screen->setScreenOpener(opener);
                               return screen;
                           });
    inicial.registerScreen(0, QStringLiteral("RFs_Esq"), QStringLiteral("TensoesRF"),
                           [](const ScreenContext &ctx) -> QWidget * { return new RFs_Esq(ctx); });
    inicial.registerScreen(6, QStringLiteral("Displays"), QStringLiteral("Testes de Display"),
                           [opener, &inicial](const ScreenContext &ctx) -> QWidget * {
                               auto *screen = new Displays(ctx);
                               screen->setScreenOpener(opener, [&inicial](const QString &name) {
                                   return inicial.hasScreen(name);
                               });
                               return screen;
                           });
    // Every test of the model in one run, after the elements the program always had.
    inicial.registerScreen(18, QStringLiteral("Checagem"), QStringLiteral("Checagem da placa"),
                           [](const ScreenContext &ctx) -> QWidget * { return new Checagem(ctx); });
}

QStringList names()
{
    return {QStringLiteral("Master"), QStringLiteral("VCores"), QStringLiteral("BuckLdo"), QStringLiteral("xIdioma"),
            QStringLiteral("BuckTeste"), QStringLiteral("Tigris"), QStringLiteral("Tristar"), QStringLiteral("Chestnut"),
            QStringLiteral("Acorn"), QStringLiteral("Nand"), QStringLiteral("Outros"), QStringLiteral("Bateria"),
            QStringLiteral("IC"), QStringLiteral("I2C"), QStringLiteral("RFs"), QStringLiteral("RFs_Esq"),
            QStringLiteral("Displays"), QStringLiteral("Sobre"), QStringLiteral("Checagem")};
}

} // namespace Screens
