#pragma once
// The main window: an MDI frame that owns the connection controls, the model choice and the
// menu of test screens. Which screens exist is decided by whoever builds the program: each one
// is registered with its menu element, so a screen not built yet is simply absent from the menu.

#include "PortList.h"
#include "TestScreen.h"

#include <QMainWindow>
#include <QMap>
#include <QPointer>
#include <functional>
#include <optional>

namespace Ui { class Inicial; }
class ConnectionController;
class QMdiSubWindow;
class QPushButton;

class Inicial : public QMainWindow
{
    Q_OBJECT
public:
    using ScreenFactory = std::function<QWidget *(const ScreenContext &)>;

    static const QStringList &modelos();

    Inicial(const ScreenContext &context, ConnectionController &connection, PortList &ports,
            QWidget *parent = nullptr);
    ~Inicial() override;

    // Adds menu element `botao` with its tooltip key; `testScreen` screens are closed when the
    // language changes. Element 0 adds no button: the screen opens by name from another screen.
    void registerScreen(int botao, const QString &name, const QString &tooltipKey, ScreenFactory factory,
                        bool testScreen = true);

    // Shows the single instance of a registered screen, creating it when it is not open.
    QWidget *openScreen(const QString &name);
    QWidget *screen(const QString &name) const;
    bool hasScreen(const QString &name) const { return m_screens.contains(name); }
    // Shows a window that a screen opens of its own (help, administration) inside the frame.
    void showChildWindow(QWidget *window);
    void closeTestScreens();

    void Traducao_Form_Inicial();
    // The status routine: "Branco", "Amarelo" or "Verde".
    void setStatus(const QString &name);
    QString status() const { return m_status; }

    // Remembers the selected model in Ultimo (at close) and restores it (at start).
    void gravaUltimo();
    void restauraUltimo();

    void fillPorts();

    // Where a new subwindow goes: its content's size within the frame's `area` (never below
    // `minimum`), one cascade step from the window opened before it (`previous`, negative when
    // there is none).
    static constexpr int CascadeStep = 28;
    static QRect placement(const QSize &wanted, const QSize &minimum, const QSize &area, const QPoint &previous);
    // What the screens get; the menu wiring outside the window needs the session too.
    const ScreenContext &context() const { return m_context; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    struct Registration
    {
        int botao = 0;
        QString tooltipKey;
        ScreenFactory factory;
        bool testScreen = true;
        QPushButton *button = nullptr;
        QPointer<QMdiSubWindow> window;
    };

    void wireConnection();
    void placeWindow(QMdiSubWindow *window);
    void selectModel(const QString &modelo);
    void paintConnectionState();

    Ui::Inicial *ui;
    ScreenContext m_context;
    ConnectionController &m_connection;
    PortList &m_ports;
    QMap<QString, Registration> m_screens;
    QString m_status;
    QString m_connectKey = QStringLiteral("Conectar"); // the connect button's caption key
    std::optional<PortEntry> m_chosenPort; // the device selected in cbPortas, kept while it is away
    bool m_connectionLost = false;         // the status line says so until the next connection
    bool m_fillingPorts = false;           // cbPortas is being refilled, not chosen from
};
