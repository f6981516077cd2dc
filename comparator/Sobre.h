#pragma once
// The about screen: product, version, the maker's remote-support pages, and the menu entry that
// imports a previous installation's data at any time (the start-up asks at most twice).

#include "TestScreen.h"

#include <functional>

class LinkMenu;
class QAction;
class QLabel;
class QMenuBar;
class Shell;

class Sobre : public TestScreen
{
    Q_OBJECT
public:
    // `chooseFile` asks for a "User.vkt" when none lies beside the program (empty: cancelled);
    // without one a file box is shown.
    Sobre(const ScreenContext &ctx, Shell &shell, std::function<QString()> chooseFile = {},
          QWidget *parent = nullptr);

    void retranslate() override;

    // "Sincronizar Dados Salvos": imports User.vkt beside the program, or a file the technician picks.
    void sincronizar();

private:
    QString chooseUserFile();

    Shell &m_shell;
    std::function<QString()> m_chooseFile;
    QMenuBar *m_menuBar;
    QMenu *m_menuDados;
    QAction *m_sync;
    LinkMenu *m_links;
    QLabel *m_produto;
    QLabel *m_versao;
    QLabel *m_suporte;
    QLabel *m_autorais;
};
