#include "Displays.h"

#include "AguardeLabel.h"
#include "ConsoleExchange.h"
#include "Session.h"
#include "ui_Displays.h"

#include <QTimer>

namespace {

const QString ScreenId = QStringLiteral("3");
const QString Acorn = QStringLiteral("Acorn");
const QString Chestnut = QStringLiteral("Chestnut");
// The one model whose display power chip is read by the Chestnut screen.
const QString ChestnutModel = QStringLiteral("IP X");

struct Button
{
    const char *key;
    const char *suffix;
    const char *command;
};

// btBl 0..5; 6 and 7 open the chip readouts.
const Button Buttons[6] = {
    {"Testar", " BackLight", "bl -n"},          {"Desligar", " BackLight", "bl --off"},
    {"Testar Todos Níveis", "", "bl -r"},     {"Nível", "  1 Low", "bl -l"},
    {"Nível", "  2 Medium", "bl -m"},          {"Nível", "  3 Hight", "bl -h"},
};

} // namespace

Displays::Displays(const ScreenContext &context, QWidget *parent)
    : TestScreen(context, QStringLiteral("Displays"), parent), ui(std::make_unique<Ui::Displays>())
{
    ui->setupUi(this);
    m_aguarde = new AguardeLabel(ui->lbAguarde, session(), QString(), this);
    ui->Slider1->setRange(SliderMinimum, SliderMaximum);
    ui->Slider1->setSingleStep(1);
    ui->Slider1->setPageStep(SliderPageStep);
    // Without tracking the slider reports a drag once, when it is let go: one command per
    // release instead of one per pixel.
    ui->Slider1->setTracking(false);
    ui->lbInfoLevel->setNum(ui->Slider1->value());
    connect(ui->Slider1, &QSlider::sliderMoved, ui->lbInfoLevel, qOverload<int>(&QLabel::setNum));
    connect(ui->Slider1, &QSlider::valueChanged, this, &Displays::Slider1Change);
    for (int i = 0; i < ButtonCount; ++i)
        connect(button(i), &QPushButton::clicked, this, [this, i] { btBl(i); });
    button(6)->setVisible(false);
    button(7)->setVisible(false);

    connect(&session(), &Session::connectionFlagChanged, this, [this](const QString &flag) {
        if (flag == QLatin1String("0"))
            m_pendingLevel.reset();
        else if (flag == QLatin1String("1") && m_pendingLevel)
            // After the finished exchange has been handed over everywhere, not inside it.
            QTimer::singleShot(0, this, &Displays::sendPendingLevel);
    });
    connect(&session(), &Session::modeloChanged, this, &Displays::retranslate);
    exchange().registerReceiver(ScreenId, this, {[this](const QString &answer) { ui->txtDados->setPlainText(answer); }, {}});
    retranslate();
}

Displays::~Displays() = default;

QTimer &Displays::timerAguarde()
{
    return m_aguarde->timer();
}

void Displays::onTimerAguarde()
{
    m_aguarde->onTimerAguarde();
}

QString Displays::command(int index)
{
    if (index < 0 || index >= 6)
        return QString();
    return QString::fromLatin1(Buttons[index].command);
}

QString Displays::caption(int index, const QString &modelo, const std::function<QString(const QString &)> &traduz)
{
    if (index >= 0 && index < 6)
        return traduz(QString::fromUtf8(Buttons[index].key)) + QString::fromLatin1(Buttons[index].suffix);
    const QString tensoes = traduz(QStringLiteral("Tensões"));
    if (index == 6)
        return tensoes + u' ' + (modelo == ChestnutModel ? Chestnut : Acorn);
    if (index == 7)
        return tensoes + u' ' + Acorn;
    return QString();
}

QPushButton *Displays::button(int index) const
{
    const QList<QPushButton *> buttons = {ui->btBl_0, ui->btBl_1, ui->btBl_2, ui->btBl_3,
                                          ui->btBl_4, ui->btBl_5, ui->btBl_6, ui->btBl_7};
    return buttons.value(index);
}

void Displays::retranslate()
{
    setWindowTitle(Traduz(QStringLiteral("Testes de Display")) + QStringLiteral(" - Pelorin Vekto"));
    const auto traduz = [this](const QString &key) { return Traduz(key); };
    for (int i = 0; i < ButtonCount; ++i)
        button(i)->setText(caption(i, session().modelo(), traduz));
    ui->Frame2->setTitle(Traduz(QStringLiteral("Leitura do dispositivo conectado:")));
    ui->lblLabel->setText(Traduz(QStringLiteral("Observe a tela")));
}

void Displays::setScreenOpener(std::function<void(const QString &)> opener,
                               const std::function<bool(const QString &)> &available)
{
    m_opener = std::move(opener);
    m_available = available;
    const auto offered = [this](const QString &screen) {
        return m_opener && (!m_available || m_available(screen));
    };
    // A chip screen that is not part of the program gets no button: nothing that does nothing.
    button(6)->setVisible(offered(Acorn) || offered(Chestnut));
    button(7)->setVisible(offered(Acorn));
}

void Displays::btBl(int index)
{
    if (index == 6 || index == 7) {
        // btBl(6) follows its own caption, which the model chose: Chestnut on the IP X.
        const bool acorn = index == 7 || button(6)->text() == Traduz(QStringLiteral("Tensões")) + u' ' + Acorn;
        if (m_opener)
            m_opener(acorn ? Acorn : Chestnut);
        return;
    }
    if (!m_aguarde->podeEnviar())
        return;
    EnviaBacklight(index);
}

bool Displays::EnviaBacklight(int index)
{
    const QString text = command(index);
    if (text.isEmpty() || !session().connectedAndIdle())
        return false;
    send(text);
    return true;
}

void Displays::Slider1Change(int level)
{
    ui->lbInfoLevel->setNum(level);
    if (!m_aguarde->podeEnviar()) {
        // Let go during another exchange: the level is kept, not sent over it and not lost.
        if (session().connectionFlag() == QLatin1String("3"))
            m_pendingLevel = level;
        return;
    }
    m_pendingLevel.reset();
    send(levelCommand(level));
}

void Displays::sendPendingLevel()
{
    if (!m_pendingLevel || !session().connectedAndIdle())
        return;
    const int level = *m_pendingLevel;
    m_pendingLevel.reset();
    send(levelCommand(level));
}

void Displays::send(const QString &text)
{
    enviaComando(ScreenId, text);
}
