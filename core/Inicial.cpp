#include "Inicial.h"
#include "ui_Inicial.h"

#include "ConnectionController.h"
#include "ConsoleExchange.h"
#include "Database.h"
#include "Dialogs.h"
#include "PortList.h"
#include "Session.h"

#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextCursor>

namespace {

// The status light: a filled circle in the colour of its name.
QPixmap statusPicture(const QColor &colour)
{
    QPixmap pixmap(20, 20);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::darkGray, 1));
    painter.setBrush(colour);
    painter.drawEllipse(2, 2, 16, 16);
    return pixmap;
}

constexpr int PortNumberRole = Qt::UserRole + 1;

} // namespace

const QStringList &Inicial::modelos()
{
    static const QStringList list = {
        QStringLiteral("IP 6"), QStringLiteral("IP 6 Plus"), QStringLiteral("IP 6s"),
        QStringLiteral("IP 6s Plus"), QStringLiteral("IP 7"), QStringLiteral("IP 7 Plus"),
        QStringLiteral("IP 8"), QStringLiteral("IP 8 Plus"), QStringLiteral("IP X"),
    };
    return list;
}

Inicial::Inicial(const ScreenContext &context, ConnectionController &connection, PortList &ports,
                 QWidget *parent)
    : QMainWindow(parent), ui(new Ui::Inicial), m_context(context), m_connection(connection), m_ports(ports)
{
    ui->setupUi(this);
    ui->ComboAparelhos->addItems(modelos());
    ui->ComboAparelhosX->addItems(modelos());
    ui->ComboAparelhosX->hide();
    ui->ComboAparelhos->setCurrentText(QStringLiteral("IP 7"));
    ui->ComboAparelhosX->setCurrentText(QStringLiteral("IP 7"));
    static_cast<QVBoxLayout *>(ui->FrameMenu->layout())->addStretch();
    // On a small display a window larger than the frame is scrolled to, never cut off.
    ui->mdiArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    ui->mdiArea->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);

    connect(ui->ComboAparelhos, &QComboBox::currentTextChanged, this, &Inicial::selectModel);
    connect(ui->ComboAparelhosX, &QComboBox::currentTextChanged, this, &Inicial::selectModel);
    connect(&m_context.session, &Session::modeloChanged, this, [this](const QString &modelo) {
        ui->ComboAparelhos->setCurrentText(modelo);
        ui->ComboAparelhosX->setCurrentText(modelo);
    });
    connect(&m_context.session, &Session::connectionFlagChanged, this, &Inicial::paintConnectionState);
    connect(&m_context.session, &Session::idiomaChanged, this, &Inicial::Traducao_Form_Inicial);
    connect(&m_ports, &PortList::changed, this, &Inicial::fillPorts);
    // The list only matters while a port can be picked: connected, nothing is watched or scanned.
    connect(&m_context.session, &Session::connectionFlagChanged, &m_ports,
            [this](const QString &flag) { m_ports.setWatching(flag == QLatin1String("0")); });
    m_ports.setWatching(m_context.session.connectionFlag() == QLatin1String("0"));
    // Whatever selects a port (the technician, a script, a test) makes it the chosen device.
    connect(ui->cbPortas, &QComboBox::currentIndexChanged, this, [this](int index) {
        const auto entries = m_ports.ports();
        if (!m_fillingPorts && index >= 0 && index < entries.size())
            m_chosenPort = entries.at(index);
    });
    wireConnection();

    // Main window load: translate, light white, title with the version, ports, counter at zero.
    Traducao_Form_Inicial();
    setStatus(QStringLiteral("Branco"));
    m_context.session.setWindowTitle(QStringLiteral("Pelorin Vekto ") + m_context.session.versao());
    setWindowTitle(m_context.session.windowTitle());
    fillPorts();
    m_connection.resetValidationCount();
    restauraUltimo();
}

Inicial::~Inicial()
{
    delete ui;
}

void Inicial::wireConnection()
{
    ConsoleExchange &exchange = m_context.exchange;
    connect(ui->Botoes_1, &QPushButton::clicked, this, [this] {
        m_connection.connectClicked(ui->cbPortas->currentData().toString(),
                                    ui->cbPortas->currentData(PortNumberRole).toString());
    });
    connect(&exchange, &ConsoleExchange::consoleCleared, ui->txtConsole, &QPlainTextEdit::clear);
    connect(&exchange, &ConsoleExchange::consoleAppended, this, [this](const QString &text) {
        // Appending at the end keeps a 50-slice answer linear: the earlier text is never re-set.
        // The console text keeps the device's CRs; the box shows one line break per line.
        QTextCursor cursor(ui->txtConsole->document());
        cursor.movePosition(QTextCursor::End);
        cursor.insertText(QString(text).remove(u'\r'));
    });
    connect(&exchange, &ConsoleExchange::captionChanged, this, &QWidget::setWindowTitle);
    connect(&m_connection, &ConnectionController::statusLightChanged, this, &Inicial::setStatus);
    connect(&m_connection, &ConnectionController::buttonCaptionChanged, this, [this](const QString &key) {
        m_connectKey = key;
        paintConnectionState();
    });
    connect(&m_connection, &ConnectionController::modelNumberChanged, ui->lbModeloNumero, &QLabel::setText);
    connect(&m_connection, &ConnectionController::modelRecognised, this, [this](const QString &modelo) {
        ui->ComboAparelhos->setCurrentText(modelo);
        ui->ComboAparelhosX->setCurrentText(modelo);
    });
    connect(&m_connection, &ConnectionController::focusModelCombo, this, [this] {
        (ui->ComboAparelhosX->isVisible() ? ui->ComboAparelhosX : ui->ComboAparelhos)->setFocus();
    });
    connect(&m_connection, &ConnectionController::message, this, [this](const QString &key, const QString &porta) {
        m_context.dialogs.Mensagem(this, key, m_context.session.idioma(), porta);
    });
    // A pulled cable is said on the status line until the next connection; the readings stay.
    connect(&m_connection, &ConnectionController::connectionLost, this, [this] {
        m_connectionLost = true;
        paintConnectionState();
    });
    // After a failed or lost connection the list is scanned afresh: a pulled box must not stay listed.
    connect(&m_connection, &ConnectionController::refillPorts, this, [this] {
        m_ports.refresh();
        fillPorts();
    });
}

void Inicial::registerScreen(int botao, const QString &name, const QString &tooltipKey, ScreenFactory factory,
                             bool testScreen)
{
    Registration reg;
    reg.botao = botao;
    reg.tooltipKey = tooltipKey;
    reg.factory = std::move(factory);
    reg.testScreen = testScreen;
    if (botao <= 0) {
        // No menu button: a screen that other screens open by name.
        m_screens.insert(name, reg);
        return;
    }
    reg.button = new QPushButton(ui->FrameMenu);
    reg.button->setObjectName(QStringLiteral("Botoes_%1").arg(botao));
    reg.button->setToolTip(m_context.session.Traduz(tooltipKey));
    reg.button->setText(m_context.session.Traduz(tooltipKey));
    reg.button->setMinimumHeight(34);

    // Menu buttons stay in the order of their element numbers, above the closing stretch.
    auto *layout = static_cast<QVBoxLayout *>(ui->FrameMenu->layout());
    int at = 0;
    for (const Registration &other : std::as_const(m_screens))
        if (other.button && other.botao < botao)
            ++at;
    layout->insertWidget(at, reg.button);
    connect(reg.button, &QPushButton::clicked, this, [this, name] { openScreen(name); });
    m_screens.insert(name, reg);
}

QWidget *Inicial::openScreen(const QString &name)
{
    auto it = m_screens.find(name);
    if (it == m_screens.end())
        return nullptr;
    if (it->window) {
        it->window->showNormal();
        ui->mdiArea->setActiveSubWindow(it->window);
        return it->window->widget();
    }
    QWidget *widget = it->factory(m_context);
    QMdiSubWindow *window = ui->mdiArea->addSubWindow(widget);
    window->setAttribute(Qt::WA_DeleteOnClose);
    it->window = window;
    placeWindow(window);
    window->show();
    return widget;
}

QRect Inicial::placement(const QSize &wanted, const QSize &minimum, const QSize &area, const QPoint &previous)
{
    // As large as the content asks, within the frame; never below what the content needs, so a
    // screen larger than a small display scrolls in the frame instead of being clipped.
    const QSize size = wanted.boundedTo(area).expandedTo(minimum);
    // Each new window a step below and right of the last one, its title bar never hidden; back
    // to the corner when the step would push it out of the frame.
    QPoint at = previous.x() < 0 ? QPoint(0, 0) : previous + QPoint(CascadeStep, CascadeStep);
    if (at.x() + size.width() > area.width() || at.y() + size.height() > area.height())
        at = QPoint(0, 0);
    return QRect(at, size);
}

void Inicial::placeWindow(QMdiSubWindow *window)
{
    QPoint previous(-1, -1);
    for (QMdiSubWindow *other : ui->mdiArea->subWindowList(QMdiArea::CreationOrder))
        if (other != window && !other->isHidden())
            previous = other->pos();
    window->setGeometry(placement(window->sizeHint(), window->minimumSizeHint(), ui->mdiArea->viewport()->size(),
                                  previous));
}

QWidget *Inicial::screen(const QString &name) const
{
    const auto it = m_screens.constFind(name);
    if (it == m_screens.constEnd() || !it->window)
        return nullptr;
    return it->window->widget();
}

void Inicial::showChildWindow(QWidget *window)
{
    QMdiSubWindow *sub = ui->mdiArea->addSubWindow(window);
    sub->setAttribute(Qt::WA_DeleteOnClose);
    placeWindow(sub);
    sub->show();
}

void Inicial::closeTestScreens()
{
    for (Registration &reg : m_screens) {
        if (reg.testScreen && reg.window) {
            QMdiSubWindow *window = reg.window;
            reg.window = nullptr;
            window->close();
            delete window; // at once: no screen may keep captions of the old language
        }
    }
}

void Inicial::Traducao_Form_Inicial()
{
    const Session &s = m_context.session;
    ui->lbFramePorta->setText(s.Traduz(QStringLiteral("Porta COM")));
    ui->cbPortas->setToolTip(s.Traduz(QStringLiteral("Porta COM de comunicação com o dispositivo")));
    ui->lbModelo->setText(s.Traduz(QStringLiteral("Modelo do dispositivo")));
    ui->ComboAparelhos->setToolTip(s.Traduz(QStringLiteral("Selecione o modelo do dispositivo")));
    ui->ComboAparelhosX->setToolTip(ui->ComboAparelhos->toolTip());
    ui->dockConsole->setWindowTitle(s.Traduz(QStringLiteral("Console")));
    for (const Registration &reg : std::as_const(m_screens)) {
        if (!reg.button)
            continue;
        reg.button->setToolTip(s.Traduz(reg.tooltipKey));
        reg.button->setText(s.Traduz(reg.tooltipKey));
    }
    paintConnectionState();
}

void Inicial::paintConnectionState()
{
    const Session &s = m_context.session;
    const QString flag = s.connectionFlag();
    if (flag != QLatin1String("0"))
        m_connectionLost = false;
    ui->lbConexao->setText(s.Traduz(m_connectionLost ? QStringLiteral("Conexão perdida")
                                                     : ConnectionController::labelKey(flag)));
    // The button says what the controller says: "Conectando" lasts until the phone is validated,
    // although the flag is "1" as soon as the first answer ended.
    ui->Botoes_1->setText(s.Traduz(m_connectKey));
    ui->Botoes_1->setToolTip(s.Traduz(m_connectKey));
}

void Inicial::setStatus(const QString &name)
{
    QColor colour = Qt::white;
    if (name == QLatin1String("Amarelo"))
        colour = QColor(255, 210, 0);
    else if (name == QLatin1String("Verde"))
        colour = QColor(0, 190, 0);
    else if (name != QLatin1String("Branco"))
        return;
    m_status = name;
    ui->ImgStatus->setPixmap(statusPicture(colour));
    ui->ImgStatus->setProperty("status", name);
}

void Inicial::selectModel(const QString &modelo)
{
    if (modelos().contains(modelo))
        m_context.session.setModelo(modelo);
}

void Inicial::fillPorts()
{
    const QScopedValueRollback filling(m_fillingPorts, true);
    ui->cbPortas->clear();
    const auto entries = m_ports.ports();
    for (const PortEntry &e : entries) {
        ui->cbPortas->addItem(e.displayText, e.portName);
        ui->cbPortas->setItemData(ui->cbPortas->count() - 1, e.numberText, PortNumberRole);
    }
    // The device chosen before, when it is there (again); none when it is not, so the next
    // Conectar can never join another board. Nothing chosen yet: the last (highest) port.
    const int at = PortList::reselect(entries, m_chosenPort);
    ui->cbPortas->setCurrentIndex(at);
    if (at >= 0)
        m_chosenPort = entries.at(at);
}

void Inicial::gravaUltimo()
{
    Database db(m_context.session.configPath());
    if (!db.setUltimoModelo(ui->ComboAparelhos->currentText()))
        qWarning("Could not remember the last model: %s", qPrintable(db.lastError()));
}

void Inicial::restauraUltimo()
{
    Database db(m_context.session.configPath());
    if (const auto modelo = db.ultimoModelo(); modelo && modelos().contains(*modelo))
        m_context.session.setModelo(*modelo);
    ui->ComboAparelhos->setCurrentText(m_context.session.modelo());
    ui->ComboAparelhosX->setCurrentText(m_context.session.modelo());
}

void Inicial::closeEvent(QCloseEvent *event)
{
    gravaUltimo();
    ui->mdiArea->closeAllSubWindows();
    event->accept();
}
