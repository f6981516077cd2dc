#include "RFs.h"

#include "AguardeLabel.h"
#include "ConsoleExchange.h"
#include "Dialogs.h"
#include "RadioEngine.h"
#include "Session.h"
#include "ui_RFs.h"

#include <QStyle>

namespace {

const QString ScreenId = QStringLiteral("2");
constexpr int BarraSteps = 100;

} // namespace

RFs::RFs(const ScreenContext &context, QWidget *parent)
    : TestScreen(context, QStringLiteral("RFs"), parent), ui(std::make_unique<Ui::RFs>())
{
    ui->setupUi(this);
    ui->Barra->setRange(0, BarraSteps);
    const int icon = style()->pixelMetric(QStyle::PM_LargeIconSize);
    ui->ok->setPixmap(style()->standardIcon(QStyle::SP_DialogApplyButton).pixmap(icon));
    ui->no->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxCritical).pixmap(icon));
    for (quint8 r = 0; r < RadioEngine::RadioCount; ++r)
        paint(background(r), RadioEngine::NeutralColour);
    m_aguarde = new AguardeLabel(ui->lbAguarde, session(), QStringLiteral("!"), this);

    m_timer1.setObjectName(QStringLiteral("Timer1"));
    m_timer1.setInterval(Timer1IntervalMs);
    m_timerBarra.setObjectName(QStringLiteral("TimerBarra"));
    m_timerBarra.setInterval(TimerBarraIntervalMs);
    connect(&m_timer1, &QTimer::timeout, this, &RFs::onTimer1);
    connect(&m_timerBarra, &QTimer::timeout, this, &RFs::onTimerBarra);

    const QList<QPushButton *> on = {ui->btOn_0, ui->btOn_1, ui->btOn_2, ui->btOn_3};
    const QList<QPushButton *> off = {ui->btOff_0, ui->btOff_1, ui->btOff_2, ui->btOff_3};
    for (int i = 0; i < RadioEngine::RadioCount; ++i) {
        connect(on[i], &QPushButton::clicked, this, [this, i] { btOn(i); });
        connect(off[i], &QPushButton::clicked, this, [this, i] { btOff(i); });
    }
    ui->btTensoesRF->setVisible(false);
    connect(ui->btTensoesRF, &QPushButton::clicked, this, [this] {
        if (m_opener)
            m_opener(QStringLiteral("RFs_Esq"));
    });

    // The main window only fills the box; Timer1 notices the text and judges it.
    exchange().registerReceiver(ScreenId, this, {[this](const QString &answer) { ui->txtDados->setPlainText(answer); }, {}});
    retranslate();
}

RFs::~RFs() = default;

QTimer &RFs::timerAguarde()
{
    return m_aguarde->timer();
}

void RFs::onTimerAguarde()
{
    m_aguarde->onTimerAguarde();
}

void RFs::retranslate()
{
    setWindowTitle(Traduz(QStringLiteral("Testes de Comunicação RF")));
    for (QPushButton *b : {ui->btOn_0, ui->btOn_1, ui->btOn_2, ui->btOn_3})
        b->setText(Traduz(QStringLiteral("Ligar")));
    for (QPushButton *b : {ui->btOff_0, ui->btOff_1, ui->btOff_2, ui->btOff_3})
        b->setText(Traduz(QStringLiteral("Desligar")));
    for (quint8 r = 0; r < RadioEngine::RadioCount; ++r)
        background(r)->setText(RadioEngine::name(r));
    ui->btTensoesRF->setText(Traduz(QStringLiteral("TensoesRF")));
    ui->lbInfoBarra->setText(Traduz(QStringLiteral("Executando Comando")) + QStringLiteral("..."));
    ui->Frame2->setTitle(Traduz(QStringLiteral("Leitura do dispositivo conectado:")));
    // Before the first test the status names the screen's purpose; after it, the verdict stays.
    if (!m_judged)
        ui->lbStatus2->setText(Traduz(QStringLiteral("ANALISE COMPLETA")));
}

void RFs::setScreenOpener(std::function<void(const QString &)> opener)
{
    m_opener = std::move(opener);
    ui->btTensoesRF->setVisible(bool(m_opener));
}

QLabel *RFs::background(quint8 radio) const
{
    switch (radio) {
    case RadioEngine::Bluetooth: return ui->lbFundoBlue;
    case RadioEngine::Gps: return ui->lbFundoGps;
    case RadioEngine::Wifi: return ui->lbFundoWifi;
    default: return ui->lbFundoBase;
    }
}

void RFs::paint(QLabel *label, const QColor &colour)
{
    QPalette palette = label->palette();
    palette.setColor(QPalette::Window, colour);
    palette.setColor(QPalette::WindowText, Qt::black);
    label->setPalette(palette);
}

void RFs::clearStatus()
{
    m_judged = true;
    ui->ok->setVisible(false);
    ui->no->setVisible(false);
    ui->lbStatius->clear();
    ui->lbStatus2->clear();
}

void RFs::btOn(int index)
{
    if (!m_aguarde->podeEnviar())
        return;
    clearStatus();
    ui->Barra->setValue(0);
    ui->FrameVCore->setVisible(true);
    m_timerBarra.start();
    ui->FrameBotoes->setEnabled(false);
    if (!LigaRadio(index))
        finishWaiting();
}

bool RFs::LigaRadio(int index)
{
    if (!session().connectedAndIdle())
        return false;
    const auto radio = RadioEngine::command(index, true, session().modelo());
    if (!radio)
        return false;
    m_radio = radio->radio;
    if (!radio->messageKey.isEmpty()) {
        dialogs().Mensagem(this, radio->messageKey, session().idioma());
        return false;
    }
    // Each test starts from an empty box and a fresh count, so an earlier answer or an earlier
    // wait can neither be judged again nor shorten this one.
    ui->txtDados->clear();
    m_ticks = 0;
    enviaComando(ScreenId, radio->command);
    m_timer1.start();
    return true;
}

void RFs::btOff(int index)
{
    if (!m_aguarde->podeEnviar())
        return;
    const auto radio = RadioEngine::command(index, false, session().modelo());
    if (!radio)
        return;
    clearStatus();
    ui->txtDados->clear();
    m_radio = radio->radio;
    if (!radio->messageKey.isEmpty()) {
        dialogs().Mensagem(this, radio->messageKey, session().idioma());
        return;
    }
    paint(background(m_radio), RadioEngine::NeutralColour);
    // Switching off is not judged: Timer1 is not started and the answer only shows in the box.
    enviaComando(ScreenId, radio->command);
}

void RFs::onTimer1()
{
    // A pulled cable ends the wait at once: what arrived before it is no verdict on the radio.
    if (session().connectionFlag() == QLatin1String("0")) {
        m_timer1.stop();
        ui->lbStatius->setText(Traduz(QStringLiteral("Desconectado")) + u'!');
        finishWaiting();
        return;
    }
    // The wait counts only idle time: a long answer still arriving does not use it up.
    if (!session().connectedAndIdle())
        return;
    if (m_ticks < Timer1TickLimit)
        ++m_ticks;
    const bool lastTick = m_ticks >= Timer1TickLimit;
    if (lastTick)
        m_timer1.stop();
    // A silent phone leaves only the blank line that begins every answer: that is no answer.
    if (!ui->txtDados->toPlainText().trimmed().isEmpty()) {
        m_timer1.stop();
        AnalisaResposta();
        finishWaiting();
    } else if (lastTick) {
        finishWaiting();
    }
}

void RFs::AnalisaResposta()
{
    const RadioEngine::RadioResult result = RadioEngine::AnalisaResposta(m_radio, ui->txtDados->toPlainText());
    if (result.verdict == Verdict::None)
        return;
    const bool ok = result.verdict == Verdict::Pass;
    ui->lbStatus2->setText(RadioEngine::status(result, Traduz(result.verdictKey)));
    m_judged = true;
    ui->lbStatus2->setVisible(true);
    paint(background(m_radio), result.colour);
    if (result.repeat) {
        ui->txtDados->moveCursor(QTextCursor::End);
        ui->txtDados->insertPlainText(RadioEngine::repeatSuffix(Traduz(QStringLiteral("REPITA PROCESSO"))));
    }
    ui->ok->setVisible(ok);
    ui->no->setVisible(!ok);
}

void RFs::finishWaiting()
{
    m_timerBarra.stop();
    ui->FrameVCore->setVisible(false);
    ui->FrameBotoes->setEnabled(true);
}

void RFs::onTimerBarra()
{
    const int next = ui->Barra->value() + 2;
    ui->Barra->setValue(next > BarraSteps ? 0 : next);
}
