#include "Nand.h"
#include "ui_Nand.h"

#include "ConsoleExchange.h"
#include "NandEngine.h"
#include "ProgramPdf.h"
#include "RailScreen.h"
#include "Session.h"
#include "StatusImages.h"

namespace {

QString verdictStyle(Verdict verdict)
{
    return verdict == Verdict::Pass ? QStringLiteral("color: #008000; font-weight: bold;")
                                    : QStringLiteral("color: #c00000; font-weight: bold;");
}

} // namespace

Nand::Nand(const ScreenContext &context, Shell &shell, ScreenOpener openScreen, QWidget *parent)
    : TestScreen(context, QStringLiteral("Nand"), parent), ui(std::make_unique<Ui::Nand>()), m_shell(shell),
      m_openScreen(std::move(openScreen))
{
    ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    m_btBl = {ui->btBl_0, ui->btBl_1, ui->btBl_2, ui->btBl_3, ui->btBl_4};
    for (int i = 0; i < m_btBl.size(); ++i)
        connect(m_btBl[i], &QPushButton::clicked, this, [this, i] { btBlClick(i); });
    connect(ui->btPdf, &QPushButton::clicked, this, &Nand::btPdfClick);
    // Opening the rails needs the main window; a screen built without it offers no dead button.
    ui->btBl_4->setVisible(bool(m_openScreen));

    m_timerStatus.setObjectName(QStringLiteral("TimerStatus"));
    m_timerStatus.setInterval(TimerStatusIntervalMs);
    connect(&m_timerStatus, &QTimer::timeout, this, &Nand::onTimerStatus);
    m_timerTamanho.setObjectName(QStringLiteral("TimerTamanho"));
    m_timerTamanho.setInterval(TimerTamanhoIntervalMs);
    connect(&m_timerTamanho, &QTimer::timeout, this, &Nand::onTimerTamanho);

    QFont big = ui->lbNand->font();
    big.setPointSizeF(big.pointSizeF() * 1.6);
    big.setBold(true);
    ui->lbNand->setFont(big);
    ui->ok->setPixmap(StatusImages::ok());
    ui->no->setPixmap(StatusImages::no());
    ui->ok->hide();
    ui->no->hide();
    ui->lbStatus2->hide();
    ui->lbAguarde->hide();

    exchange().registerReceiver(QString::fromLatin1(ScreenId), this,
                                AnswerReceiver{[this](const QString &answer) { handOver(answer); }, {}});
    connect(&session(), &Session::idiomaChanged, this, &Nand::retranslate);
    retranslate();

    // The size is asked for once, when the screen opens on a phone that is ready.
    m_sizeTicks = 0;
    if (session().connectedAndIdle()) {
        enviaComando(QString::fromLatin1(ScreenId), NandEngine::command(NandEngine::ModeSize));
        m_timerTamanho.start();
    }
}

Nand::~Nand() = default;

void Nand::retranslate()
{
    setWindowTitle(Traduz(QStringLiteral("Testes de Memória Nand")) + QStringLiteral(" - Pelorin Vekto"));
    ui->Frame1->setTitle(Traduz(QStringLiteral("Leitura do dispositivo conectado:")));
    for (int i = 0; i < m_btBl.size(); ++i) {
        const NandEngine::Caption caption = NandEngine::caption(i);
        m_btBl[i]->setText(Traduz(caption.key) + caption.suffix);
    }
    ui->lbAguarde->setText(Traduz(QStringLiteral("Aguarde...")));
    ui->btPdf->setText(Traduz(QStringLiteral("PDFs Nand")));
}

void Nand::btBlClick(int index)
{
    if (index < 0 || index >= m_btBl.size())
        return;
    if (!session().connectedAndIdle()) {
        ui->lbStatus->setStyleSheet({});
        ui->lbStatus->setText(Traduz(QStringLiteral("Desconectado")));
        return;
    }
    m_mode = index;
    if (index == NandEngine::ModeRails) {
        openRails();
        return;
    }
    ui->lbAguarde->show();
    if (index != NandEngine::ModeSize) {
        ui->lbStatus->clear();
        ui->lbStatus2->hide();
    }
    // A picture from the previous test beside a new one would read as its verdict.
    ui->ok->hide();
    ui->no->hide();
    // A size reading that never got its answer must not take this test's answer for the size line.
    m_timerTamanho.stop();
    m_statusTicks = 0;
    enviaComando(QString::fromLatin1(ScreenId), NandEngine::command(index));
    m_timerStatus.start();
}

void Nand::onTimerStatus()
{
    const QString flag = session().connectionFlag();
    if (flag == QLatin1String("0")) {
        // The phone went away while this test waited: say so rather than wait for nothing.
        m_timerStatus.stop();
        stopWaiting();
        ui->lbStatus->setStyleSheet({});
        ui->lbStatus->setText(Traduz(QStringLiteral("Desconectado")));
        return;
    }
    if (flag != QLatin1String("1"))
        return;
    const NandEngine::Status status = NandEngine::status(ui->txtDados->rawText(), m_mode);
    if (status.outcome == NandEngine::Status::Outcome::TooShort) {
        if (++m_statusTicks >= NandEngine::StatusTickLimit) {
            m_timerStatus.stop();
            stopWaiting();
            ui->lbStatus->setStyleSheet({});
            ui->lbStatus->setText(Traduz(QStringLiteral("Sem resposta do dispositivo")));
        }
        return;
    }
    m_timerStatus.stop();
    stopWaiting();
    if (status.outcome == NandEngine::Status::Outcome::NotAvailable) {
        ui->txtDados->setRawText(Traduz(QStringLiteral("Não disponível para 6/6P")));
        return;
    }
    showVerdict(status.verdict);
}

void Nand::showVerdict(Verdict verdict)
{
    ui->lbStatus->setStyleSheet(verdictStyle(verdict));
    ui->lbStatus->setText(Traduz(NandEngine::statusKey(verdict)));
    const bool good = verdict == Verdict::Pass;
    const NandEngine::Caption caption = NandEngine::caption(m_mode);
    ui->lbStatus2->setText(Traduz(caption.key) + caption.suffix);
    ui->lbStatus2->setVisible(good);
    ui->ok->setVisible(good);
    ui->no->setVisible(!good);
    if (ui->lbNand->text().isEmpty())
        ui->lbNand->setText(QStringLiteral("NAND"));
}

void Nand::onTimerTamanho()
{
    const NandEngine::Size size = NandEngine::size(ui->txtDados->rawText());
    const QString unknown = QStringLiteral("NAND ") + Traduz(QStringLiteral("Tamanho não identificado"));
    if (size.outcome == NandEngine::Size::Outcome::TooShort) {
        if (++m_sizeTicks >= NandEngine::SizeTickLimit) {
            m_timerTamanho.stop();
            ui->lbNand->setText(unknown);
        }
        return;
    }
    m_timerTamanho.stop();
    switch (size.outcome) {
    case NandEngine::Size::Outcome::Read:
        ui->lbNand->setText(QStringLiteral("NAND ") + NandEngine::sizeCaption(size, Traduz(QStringLiteral("APROX."))));
        break;
    case NandEngine::Size::Outcome::NotAvailable:
        ui->lbNand->setText(QStringLiteral("NAND ") + Traduz(QStringLiteral("Não disponível para 6/6P")));
        break;
    default:
        ui->lbNand->setText(unknown);
        break;
    }
}

void Nand::stopWaiting()
{
    ui->lbAguarde->hide();
}

void Nand::openRails()
{
    if (!m_openScreen)
        return;
    // One VCore screen for the whole program: the main window opens it or brings it forward,
    // and this screen only points its grid at the model's NAND rails.
    if (auto *rails = qobject_cast<RailScreen *>(m_openScreen(QStringLiteral("VCores"))))
        rails->PrePesquisaNand();
}

void Nand::handOver(const QString &answer)
{
    ui->txtDados->setRawText(answer);
}

void Nand::btPdfClick()
{
    ProgramPdf::open(this, session(), dialogs(), m_shell, QString::fromLatin1(PdfFile));
}
