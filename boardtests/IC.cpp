#include "IC.h"

#include "ConsoleExchange.h"
#include "Database.h"
#include "ICCheck.h"
#include "Session.h"
#include "ui_IC.h"

#include <QSqlQueryModel>
#include <QStyle>

namespace {

const QString ScreenId = QStringLiteral("5");
// The kind whose answer is appended to what the box already holds; no button sends it.
constexpr int KeepAnswerKind = 6;

} // namespace

IC::IC(const ScreenContext &context, ScreenOpener opener, QWidget *parent)
    : TestScreen(context, QStringLiteral("IC"), parent), ui(std::make_unique<Ui::IC>()), m_opener(std::move(opener)),
      m_db(std::make_unique<Database>(context.session.configPath()))
{
    ui->setupUi(this);
    ui->ok->setPixmap(style()->standardIcon(QStyle::SP_DialogApplyButton).pixmap(24, 24));
    ui->no->setPixmap(style()->standardIcon(QStyle::SP_DialogCancelButton).pixmap(24, 24));
    // The comparator of this screen never has a recorded answer: it stays an empty grid.
    m_data1 = new QSqlQueryModel(this);
    m_data1->setObjectName(QStringLiteral("Data1"));
    if (m_db->isOpen())
        m_data1->setQuery(m_db->dadosQuery(QStringLiteral("xx"), QString()));

    m_timerStatus.setObjectName(QStringLiteral("TimerStatus"));
    m_timerStatus.setInterval(TimerStatusIntervalMs);
    m_timerAguarde.setObjectName(QStringLiteral("TimerAguarde"));
    m_timerAguarde.setInterval(TimerAguardeIntervalMs);
    connect(&m_timerStatus, &QTimer::timeout, this, &IC::onTimerStatus);
    connect(&m_timerAguarde, &QTimer::timeout, this, &IC::onTimerAguarde);

    connect(ui->btBl_1, &QPushButton::clicked, this, [this] { btBl(ICCheck::DataKind); });
    connect(ui->btBl_2, &QPushButton::clicked, this, [this] { btBl(ICCheck::CommunicationKind); });
    connect(ui->btTigris, &QPushButton::clicked, this, &IC::btTigris);
    connect(ui->btTristar, &QPushButton::clicked, this, &IC::btTristar);
    connect(&session(), &Session::modeloChanged, this, &IC::retranslate);

    exchange().registerReceiver(ScreenId, this, {[this](const QString &answer) { ui->txtDados->setRawText(answer); }, {}});
    retranslate();
}

IC::~IC()
{
    // The grid's query belongs to the connection: let it go first.
    m_data1->clear();
}

void IC::retranslate()
{
    setWindowTitle(Traduz(QStringLiteral("Testes IC's")));
    const QString chip = ICCheck::chipName(session().modelo()) + u' ';
    ui->btTigris->setText(QStringLiteral("TIGRIS ") + Traduz(QStringLiteral("Tensões")));
    ui->btTristar->setText(chip + Traduz(QStringLiteral("Tensões")));
    ui->btBl_1->setText(chip + Traduz(QStringLiteral("Dados")));
    ui->btBl_2->setText(chip + Traduz(QStringLiteral("Comunicação")));
    ui->lbStatus2->setText(Traduz(QStringLiteral("ANALISE COMPLETA")));
    ui->lbDispositivo->setText(Traduz(QStringLiteral("Modelo")) + QStringLiteral(": ") + session().modelo());
}

void IC::btBl(int index)
{
    if (!session().connectedAndIdle()) {
        ui->lbAguarde->setText(session().connectionFlag() == QLatin1String("0")
                                   ? Traduz(QStringLiteral("Desconectado")) + u'!'
                                   : Traduz(QStringLiteral("Aguarde...")));
        ui->lbAguarde->setVisible(true);
        m_timerAguarde.start();
        return;
    }
    ui->lbStatus->clear();
    ui->lbIC->clear();
    ui->lbStatus2->setVisible(false);
    ui->ok->setVisible(false);
    ui->no->setVisible(false);
    m_kind = qint16(index);
    startCheck();
}

void IC::startCheck()
{
    m_chip = ICCheck::chipName(session().modelo());
    if (m_kind != KeepAnswerKind)
        ui->txtDados->setRawText(QString());
    enviaComando(ScreenId, ICCheck::command(m_kind));
    m_timerStatus.start();
}

void IC::onTimerStatus()
{
    if (!session().connectedAndIdle())
        return;
    const QString dados = ui->txtDados->rawText();
    if (ICCheck::arrived(dados)) {
        m_timerStatus.stop();
        const Verdict verdict = ICCheck::judge(m_kind, dados);
        if (verdict != Verdict::None) {
            ui->lbStatus->setText(Traduz(ICCheck::statusKey(verdict)));
            ui->ok->setVisible(verdict == Verdict::Pass);
            ui->no->setVisible(verdict == Verdict::Fail);
            ui->lbStatus2->setVisible(true);
            ui->lbIC->setText(m_chip);
        }
    }
    // Counted over the screen's whole life: only its 30th tick ever gives up waiting.
    ++m_ticks;
    if (m_ticks == TimerStatusTickLimit)
        m_timerStatus.stop();
}

void IC::onTimerAguarde()
{
    ui->lbAguarde->setVisible(false);
    m_timerAguarde.stop();
}

void IC::btTigris()
{
    if (m_opener)
        m_opener(QStringLiteral("Tigris"), false);
}

void IC::btTristar()
{
    // The readout titles itself for the chip this board carries, the one the caption names.
    if (m_opener)
        m_opener(QStringLiteral("Tristar"), ICCheck::isHydra(session().modelo()));
}
