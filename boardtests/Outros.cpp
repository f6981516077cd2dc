#include "Outros.h"
#include "ui_Outros.h"

#include "BoundRecordView.h"
#include "ConsoleExchange.h"
#include "Database.h"
#include "OutrosEngine.h"
#include "ProgramPdf.h"
#include "Session.h"
#include "StatusImages.h"

Outros::Outros(const ScreenContext &context, Shell &shell, ScreenOpener openScreen, QWidget *parent)
    : TestScreen(context, QStringLiteral("Outros"), parent), ui(std::make_unique<Ui::Outros>()), m_shell(shell),
      m_openScreen(std::move(openScreen)), m_db(std::make_unique<Database>(context.session.configPath()))
{
    ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);

    m_data1 = new BoundRecordView(this);
    m_data1->bind(ui->txtComparador, QStringLiteral("Dados"));
    // No test run yet: the recorded side starts empty.
    m_data1->clear();

    m_btBl = {{OutrosEngine::ModeTristarId, ui->btBl_1},
              {OutrosEngine::ModeTristarRead, ui->btBl_2},
              {OutrosEngine::ModeDram, ui->btBl_5},
              {OutrosEngine::ModeDram1Mb, ui->btBl_6}};
    for (auto it = m_btBl.cbegin(); it != m_btBl.cend(); ++it) {
        const int index = it.key();
        connect(it.value(), &QPushButton::clicked, this, [this, index] { btBlClick(index); });
    }
    connect(ui->btPanicFull, &QPushButton::clicked, this, &Outros::btPanicFullClick);
    connect(ui->btBateria, &QPushButton::clicked, this, &Outros::btBateriaClick);
    ui->btBateria->setVisible(bool(m_openScreen));

    m_timerStatus.setObjectName(QStringLiteral("TimerStatus"));
    m_timerStatus.setInterval(TimerStatusIntervalMs);
    connect(&m_timerStatus, &QTimer::timeout, this, &Outros::onTimerStatus);
    m_timerAguarde.setObjectName(QStringLiteral("TimerAguarde"));
    m_timerAguarde.setInterval(TimerAguardeIntervalMs);
    connect(&m_timerAguarde, &QTimer::timeout, this, &Outros::onTimerAguarde);

    ui->ok->setPixmap(StatusImages::ok());
    ui->no->setPixmap(StatusImages::no());
    ui->ok->hide();
    ui->no->hide();
    ui->lbStatus2->hide();
    ui->lbAguarde->hide();

    exchange().registerReceiver(QString::fromLatin1(ScreenId), this,
                                AnswerReceiver{[this](const QString &answer) { handOver(answer); }, {}});
    connect(&session(), &Session::idiomaChanged, this, &Outros::retranslate);
    connect(&session(), &Session::modeloChanged, this, [this] {
        updateDeviceLabel();
        // The recorded side follows the model, or it would show another model's board.
        if (!m_keyWord.isEmpty())
            m_data1->requery(m_db->dadosQuery(session().modelo(), m_keyWord));
    });
    retranslate();
}

Outros::~Outros()
{
    // The view's query belongs to the connection: let it go first.
    m_data1->clear();
}

QString Outros::testCaption(int mode) const
{
    switch (mode) {
    case OutrosEngine::ModeTristarId: return Traduz(QStringLiteral("Tristar Identificação"));
    case OutrosEngine::ModeTristarRead: return Traduz(QStringLiteral("Tristar Comunicação"));
    case OutrosEngine::ModeDram: return Traduz(QStringLiteral("MEM DRAM Teste"));
    case OutrosEngine::ModeDram1Mb:
        return Traduz(QStringLiteral("MEM DRAM Teste 1MB")) + u'\n' + QStringLiteral("Read/Write");
    default: return {};
    }
}

void Outros::retranslate()
{
    setWindowTitle(Traduz(QStringLiteral("Testes Adicionais")) + QStringLiteral(" - Pelorin Vekto"));
    ui->Frame1->setTitle(Traduz(QStringLiteral("Leitura do dispositivo conectado:")));
    ui->Frame2->setTitle(Traduz(QStringLiteral("Comparador: (Dispositivos Gravados)")));
    for (auto it = m_btBl.cbegin(); it != m_btBl.cend(); ++it)
        it.value()->setText(testCaption(it.key()));
    ui->btPanicFull->setText(Traduz(QStringLiteral("Guia Panic Full (PDF)")));
    ui->btBateria->setText(Traduz(QStringLiteral("Bateria")));
    ui->lbAguarde->setText(Traduz(QStringLiteral("Aguarde...")));
    updateDeviceLabel();
}

void Outros::updateDeviceLabel()
{
    ui->lbDispositivo->setText(QStringLiteral("  ") + Traduz(QStringLiteral("Modelo")) + QStringLiteral(": ")
                               + session().modelo());
}

void Outros::btBlClick(int index)
{
    const std::optional<OutrosEngine::Teste> teste = OutrosEngine::teste(index);
    if (!teste)
        return;
    if (!session().connectedAndIdle()) {
        showStatusText(QStringLiteral("Desconectado"));
        return;
    }
    ui->lbAguarde->show();
    m_timerAguarde.start();
    m_mode = index;
    m_keyWord = teste->keyWord;
    // The long DRAM test says how long it takes until its answer replaces the note.
    ui->txtDados->setRawText(teste->showsPlaceholder ? Traduz(QStringLiteral("TESTE 15s")) : QString());
    ui->lbStatus->clear();
    ui->lbStatus2->hide();
    ui->ok->hide();
    ui->no->hide();
    m_statusTicks = 0;
    enviaComando(QString::fromLatin1(ScreenId), teste->command);
    m_timerStatus.start();
}

void Outros::handOver(const QString &answer)
{
    ui->txtDados->setRawText(answer);
    m_data1->requery(m_db->dadosQuery(session().modelo(), m_keyWord));
}

void Outros::onTimerStatus()
{
    const QString flag = session().connectionFlag();
    if (flag == QLatin1String("0")) {
        // The phone went away while this test waited: say so rather than wait for nothing.
        m_timerStatus.stop();
        stopWaiting();
        showStatusText(QStringLiteral("Desconectado"));
        return;
    }
    if (flag != QLatin1String("1"))
        return;
    const OutrosEngine::Status status = OutrosEngine::status(ui->txtDados->rawText(), m_mode);
    if (!status.complete) {
        if (++m_statusTicks >= OutrosEngine::StatusTickLimit) {
            m_timerStatus.stop();
            stopWaiting();
            showStatusText(QStringLiteral("Sem resposta do dispositivo"));
        }
        return;
    }
    m_timerStatus.stop();
    stopWaiting();
    ui->lbStatus2->setText(testCaption(m_mode).replace(u'\n', u' '));
    ui->lbStatus2->show();
    // The Tristar readouts are read by eye against the recorded board; only DRAM has a verdict.
    if (OutrosEngine::isDram(m_mode))
        showVerdict(status.verdict);
}

void Outros::showVerdict(Verdict verdict)
{
    const bool good = verdict == Verdict::Pass;
    ui->lbStatus->setStyleSheet(good ? QStringLiteral("color: #008000; font-weight: bold;")
                                     : QStringLiteral("color: #c00000; font-weight: bold;"));
    ui->lbStatus->setText(good ? Traduz(QStringLiteral("COMUNICAÇÃO OK")) : Traduz(QStringLiteral("COMUNICAÇÃO OFF")));
    ui->ok->setVisible(good);
    ui->no->setVisible(!good);
}

void Outros::showStatusText(const QString &key)
{
    ui->lbStatus->setStyleSheet({});
    ui->lbStatus->setText(Traduz(key));
}

void Outros::onTimerAguarde()
{
    ui->lbAguarde->setVisible(!ui->lbAguarde->isVisible());
}

void Outros::stopWaiting()
{
    m_timerAguarde.stop();
    ui->lbAguarde->hide();
}

void Outros::btPanicFullClick()
{
    ProgramPdf::open(this, session(), dialogs(), m_shell, QString::fromLatin1(PdfFile));
}

void Outros::btBateriaClick()
{
    if (m_openScreen)
        m_openScreen(QStringLiteral("Bateria"));
}
