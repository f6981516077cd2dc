#pragma once
// The free command console: the technician sends any console command, reads the answer beside
// the one recorded from a known-good board of the same model, and sees at once whether the two
// match. It is also where recorded answers, their notes, the command list and the masking texts
// are kept up to date, so it holds one connection to Config.vkt for its bound views.

#include "Masker.h"
#include "MaskTable.h"
#include "TestScreen.h"

#include <QPointer>
#include <functional>
#include <memory>

namespace Ui {
class Master;
}
class BoundRecordView;
class Database;
class Shell;
class fmHelp;
class zAjustes;

class Master : public TestScreen
{
    Q_OBJECT
public:
    static constexpr const char *ScreenId = "1";

    // `showWindow` puts a further window (help, administration) into the main window; without
    // one the window shows on its own.
    Master(const ScreenContext &ctx, Shell &shell, std::function<void(QWidget *)> showWindow = {},
           QWidget *parent = nullptr);
    ~Master() override;

    void retranslate() override;
    // The console and the recorded answer side by side, each wide enough for a full line.
    QSize sizeHint() const override { return QSize(1180, 700).expandedTo(TestScreen::sizeHint()); }

    // Decides whether the mark that the answer matches the recorded one shows.
    void AutoComparador();
    // Points both bound views at the recorded answer and the notes of `command`.
    void BuscaDadosGravados(const QString &command);

    // Button handlers, public so the main window's keyboard and the tests reach them alike.
    void send();
    void recordAnswer();        // btSalvar
    void deleteRecordedAnswer(); // btExcluir
    void saveEdits();           // btSalvarAtualizacoes
    void addCommand();          // btNovo
    void deleteCommand();       // btApagar
    void restartDevice();       // btReiniciar
    void clearConsole();        // btLimpar
    void showHelp();            // btHelp
    void openHelpPdf();         // btHelpPdf
    void maskRecordedAnswer();  // Command1
    void addMaskText();         // Command2
    void openAdjustments();     // Command3
    // btSalvarConsole: the console text, exactly as received, into a file the user picks.
    void saveConsole();
    // Ctrl+F shows the find bar; Enter/F3 find the next, Shift+Enter/Shift+F3 the previous
    // occurrence in the console, ignoring letter case and wrapping at the ends.
    void showFindBar();
    bool findInConsole(bool backward = false);

    // The help file of a language, beside the program.
    static QString helpPdfName(quint8 idioma);

    bool waiting() const { return m_waiting; }
    fmHelp *helpWindow() const;
    zAjustes *adjustmentsWindow() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void handOver(const QString &answer);
    void fillCommandList();
    void showLanguageBoxes();
    void updateDeviceLabel();
    void setBorder(int value);
    void sendForThisScreen(const QString &command);
    bool writeSucceeded(bool ok);
    void showWindow(QWidget *window);

    std::unique_ptr<Ui::Master> ui;
    Shell &m_shell;
    std::function<void(QWidget *)> m_showWindow;
    std::unique_ptr<Database> m_db;
    MaskTable m_masks;
    GrowingMaskedText m_maskedConsole; // the console masked, one answer at a time
    BoundRecordView *m_data1 = nullptr; // the recorded answer (Dados)
    BoundRecordView *m_data2 = nullptr; // the command's notes (Comandos)
    QPointer<fmHelp> m_help;
    QPointer<zAjustes> m_adjustments;
    bool m_waiting = false;
};
