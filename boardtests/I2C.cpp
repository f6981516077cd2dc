#include "I2C.h"

#include "ConsoleExchange.h"
#include "Database.h"
#include "Dialogs.h"
#include "I2CLearning.h"
#include "RefOrigins.h"
#include "Session.h"
#include "Shell.h"
#include "ui_I2C.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStyle>

namespace {

const QString ScreenId = QStringLiteral("6");
// The log of the automatic run keeps its "empty" lines as one blank, as the older logs read.
const QString EmptyLine = QStringLiteral(" ");

} // namespace

I2C::I2C(const ScreenContext &context, Shell &shell, QWidget *parent)
    : TestScreen(context, QStringLiteral("I2C"), parent), ui(std::make_unique<Ui::I2C>()), m_shell(shell)
{
    ui->setupUi(this);
    m_ok = {ui->ok_0, ui->ok_1, ui->ok_2, ui->ok_3, ui->ok_4};
    m_no = {ui->no_0, ui->no_1, ui->no_2, ui->no_3, ui->no_4};
    const QPixmap tick = style()->standardIcon(QStyle::SP_DialogApplyButton).pixmap(16, 16);
    const QPixmap cross = style()->standardIcon(QStyle::SP_DialogCancelButton).pixmap(16, 16);
    for (QLabel *l : std::as_const(m_ok))
        l->setPixmap(tick);
    for (QLabel *l : std::as_const(m_no))
        l->setPixmap(cross);
    ui->imgResultadoOK->setPixmap(style()->standardIcon(QStyle::SP_DialogApplyButton).pixmap(24, 24));
    QPalette bar = ui->Barra->palette();
    bar.setColor(QPalette::Window, QColor(0x00, 0xC0, 0x00));
    ui->Barra->setPalette(bar);

    const auto setUp = [](QTimer &timer, const char *name, int intervalMs) {
        timer.setObjectName(QLatin1String(name));
        timer.setInterval(intervalMs);
    };
    setUp(m_timer1, "Timer1", Timer1IntervalMs);
    setUp(m_timerAuto, "TimerAuto", TimerAutoIntervalMs);
    setUp(m_timerBarra, "TimerBarra", TimerBarraIntervalMs);
    setUp(m_timerAguarde, "TimerAguarde", TimerAguardeIntervalMs);
    connect(&m_timer1, &QTimer::timeout, this, &I2C::onTimer1);
    connect(&m_timerAuto, &QTimer::timeout, this, &I2C::onTimerAuto);
    connect(&m_timerBarra, &QTimer::timeout, this, &I2C::onTimerBarra);
    connect(&m_timerAguarde, &QTimer::timeout, this, &I2C::onTimerAguarde);

    for (int bus = 0; bus < I2CEngine::BusCount; ++bus)
        connect(busButton(bus), &QPushButton::clicked, this, [this, bus] { btI2C(bus); });
    connect(ui->btAutoTeste, &QPushButton::clicked, this, &I2C::btAutoTeste);
    connect(ui->btAprenderI2C, &QPushButton::clicked, this, &I2C::btAprenderI2C);
    connect(ui->btPdf, &QPushButton::clicked, this, &I2C::btPdf);
    connect(&session(), &Session::modeloChanged, this, [this] {
        // Answers of the board of another model are nothing to learn from for this one.
        m_runAnswers.clear();
        ui->btAprenderI2C->setEnabled(false);
        layoutBuses();
        retranslate();
    });

    // The answer only lands in txtDados: Timer1 sees it there and judges it.
    exchange().registerReceiver(ScreenId, this, {[this](const QString &answer) { ui->txtDados->setRawText(answer); }, {}});
    layoutBuses();
    retranslate();
}

I2C::~I2C() = default;

QPushButton *I2C::busButton(int bus) const
{
    const QList<QPushButton *> buttons = {ui->btI2C_0, ui->btI2C_1, ui->btI2C_2, ui->btI2C_3,
                                          ui->btI2C_4, ui->btI2C_5, ui->btI2C_6, ui->btI2C_7};
    return buttons.value(bus);
}

void I2C::retranslate()
{
    setWindowTitle(Traduz(QStringLiteral("Testes de Leitura I2C")));
    ui->lbDispositivo->setText(session().modelo());
    ui->btAutoTeste->setText(Traduz(m_cancelCaption ? QStringLiteral("Cancelar") : QStringLiteral("Auto Teste")));
    ui->btAprenderI2C->setText(Traduz(QStringLiteral("REF_APRENDER_I2C")));
    ui->btPdf->setText(Traduz(QStringLiteral("Visualizar Diagrama PDF")));
    ui->lbLeitura->setText(Traduz(QStringLiteral("Leitura do dispositivo conectado:")));
    ui->lbTeste->setText(Traduz(QStringLiteral("Resultado do teste:")));
    ui->lbAuto->setText(Traduz(QStringLiteral("Resultado do Auto Teste:")));
    ui->lbFalhas->setText(Traduz(QStringLiteral("Falhas i2c")));
    ui->lbResultadoOK->setText(Traduz(QStringLiteral("Nenhuma falha detectada em I2C")));
}

void I2C::layoutBuses()
{
    const QString model = session().modelo();
    const I2CEngine::BusLayout layout = I2CEngine::busLayout(model);
    for (int bus = 0; bus < I2CEngine::BusCount; ++bus) {
        busButton(bus)->setEnabled(layout[bus].enabled);
        busButton(bus)->setVisible(layout[bus].visible);
    }
    // The auto-test button moves up into the column where the model's usable buses end.
    ui->busColumn->removeWidget(ui->btAutoTeste);
    ui->busColumn->insertWidget(I2CEngine::autoTesteRow(model), ui->btAutoTeste);
}

void I2C::showNotice()
{
    ui->lbAguarde->setText(session().connectionFlag() == QLatin1String("0")
                               ? Traduz(QStringLiteral("Desconectado")) + u'!'
                               : Traduz(QStringLiteral("Aguarde...")));
    ui->lbAguarde->setVisible(true);
    m_timerAguarde.start();
}

void I2C::btI2C(int bus)
{
    ui->txtDadosI2C->clear();
    ui->FrameResultadoOK->setVisible(false);
    ui->Barra->resize(1, ui->Barra->height());
    if (!session().connectedAndIdle()) {
        showNotice();
        return;
    }
    ui->FrameAutoI2C->setVisible(false);
    ui->FrameI->setVisible(true);
    probe(bus);
}

void I2C::probe(int bus)
{
    m_currentBus = quint8(bus);
    ui->txtDados->setRawText(QString());
    ui->lbResultado->clear();
    m_timer1.start();
    for (int i = 0; i < Images; ++i) {
        m_ok[i]->setVisible(false);
        m_no[i]->setVisible(false);
    }
    enviaComando(ScreenId, I2CEngine::command(bus));
    startBarra();
}

void I2C::onTimer1()
{
    // Counted over the screen's whole life: only its 30th waiting tick ever gives up, and
    // later waits last until an answer arrives.
    ++m_timer1Ticks;
    if (m_timer1Ticks == Timer1TickLimit)
        m_timer1.stop();
    if (!ui->txtDados->rawText().isEmpty()) {
        m_timer1.stop();
        judge();
    }
}

void I2C::judge()
{
    const QString model = session().modelo();
    const int bus = m_currentBus;
    Database db(session().configPath(), Database::Access::ReadOnly);
    const QStringList entries = db.i2cTextsStartingWith(model, QString::number(bus));
    const bool readable = db.isOpen() && db.lastError().isEmpty();

    if (model.left(4) != QLatin1String("IP 8") && model.left(4) != QLatin1String("IP X"))
        ui->ListView->addItem(EmptyLine);
    // Outside a run the heading still takes the run's counter, as the log always numbered it.
    ui->ListView->addItem(QString::number(int(m_run.counter()) - 1) + QStringLiteral("  I2C "));

    if (!readable) {
        // Without the reference rows nothing was judged: this must never read as "no failure".
        const QString problem = Traduz(
            QStringLiteral("Não foi possível ler as referências do arquivo 'Config.vkt'; nada foi julgado."));
        ui->lbResultado->setText(problem);
        if (m_autoRunning)
            ui->ListView->addItem(problem);
        if (!m_timerAuto.isActive() && ui->FrameAutoI2C->isHidden())
            stopBarra();
        return;
    }

    const I2CTexts texts{Traduz(QStringLiteral("COMUNICAÇÃO OK")), Traduz(QStringLiteral("COMUNICAÇÃO OFF")),
                         Traduz(QStringLiteral("Referência inválida"))};
    if (m_autoRunning)
        m_runAnswers.insert(bus, ui->txtDados->rawText());
    const I2CBusResult result = I2CEngine::judge(bus, ui->txtDados->rawText(), entries, texts);
    QStringList lines;
    for (int i = 0; i < result.devices.size(); ++i) {
        const I2CDeviceResult &d = result.devices[i];
        lines << d.line;
        // Rows past the fifth keep their line but get no picture.
        if (i < Images && d.verdict != Verdict::None)
            (d.verdict == Verdict::Pass ? m_ok : m_no)[i]->setVisible(true);
        if (m_autoRunning)
            ui->ListView->addItem(d.line);
    }
    ui->lbResultado->setText(lines.join(u'\n'));
    ui->txtDadosI2C->setPlainText(I2CEngine::appendFailures(ui->txtDadosI2C->toPlainText(), result, model));

    if (!m_timerAuto.isActive()) {
        if (ui->txtDadosI2C->toPlainText().isEmpty())
            noFailureFound();
        if (ui->FrameAutoI2C->isHidden())
            stopBarra();
    }
}

void I2C::noFailureFound()
{
    ui->txtDadosI2C->setPlainText(Traduz(QStringLiteral("Nenhuma falha detectada em I2C")));
    ui->FrameResultadoOK->setVisible(true);
}

void I2C::btAutoTeste()
{
    ui->txtDadosI2C->clear();
    ui->FrameResultadoOK->setVisible(false);
    if (m_cancelCaption) {
        // A cancelled run is not a whole board: nothing to learn from (the button waits for a
        // run that finishes).
        m_runAnswers.clear();
        m_timerAuto.stop();
        stopBarra();
        m_cancelCaption = false;
        ui->btAutoTeste->setText(Traduz(QStringLiteral("Auto ")) + Traduz(QStringLiteral("Teste")));
        return;
    }
    if (!session().connectedAndIdle()) {
        showNotice();
        return;
    }
    ui->ListView->clear();
    m_runAnswers.clear();
    ui->btAprenderI2C->setEnabled(false);
    m_run.start();
    m_autoRunning = true;
    ui->FrameAutoI2C->setVisible(true);
    ui->FrameI->setVisible(false);
    m_timerAuto.start();
    m_cancelCaption = true;
    ui->btAutoTeste->setText(Traduz(QStringLiteral("Cancelar")));
    startBarra();
}

void I2C::onTimerAuto()
{
    if (m_timer1.isActive())
        return;
    const I2CAutoRun::Step step = m_run.tick([this](int bus) {
        const QPushButton *b = busButton(bus);
        return I2CBusState{b->isEnabled(), !b->isHidden()};
    });
    if (step.probe >= 0)
        probe(step.probe);
    if (step.finish)
        finishAuto();
}

void I2C::finishAuto()
{
    m_autoRunning = false;
    ui->btAprenderI2C->setEnabled(!m_runAnswers.isEmpty());
    m_timerAuto.stop();
    stopBarra();
    if (ui->txtDadosI2C->toPlainText().isEmpty())
        noFailureFound();
    m_cancelCaption = false;
    ui->btAutoTeste->setText(Traduz(QStringLiteral("Auto Teste")));
    ui->ListView->addItem(EmptyLine);
    ui->ListView->addItem(Traduz(QStringLiteral("Teste Finalizados")));
}

void I2C::startBarra()
{
    ui->ProgressBar->setVisible(true);
    m_timerBarra.start();
}

void I2C::stopBarra()
{
    m_timerBarra.stop();
    ui->ProgressBar->setVisible(false);
}

void I2C::onTimerBarra()
{
    const int end = qMax(ui->ProgressBar->width() - 2, 2);
    const int next = ui->Barra->width() + BarraStep;
    ui->Barra->resize(next >= end ? 1 : next, ui->Barra->height());
}

void I2C::onTimerAguarde()
{
    ui->lbAguarde->setVisible(false);
    m_timerAguarde.stop();
}

void I2C::btPdf()
{
    // The extracts lie beside the program, as Config.vkt does.
    const QString name = I2CEngine::pdfName(session().modelo());
    const QString path = QFileInfo(session().configPath()).absoluteDir().filePath(name);
    if (name.isEmpty() || !QFileInfo::exists(path)) {
        dialogs().critical(this, Traduz(QStringLiteral("PDF_AUSENTE_TITULO")),
                           Traduz(QStringLiteral("PDF_AUSENTE")) + QDir::toNativeSeparators(path));
        return;
    }
    m_shell.open(path);
}

void I2C::btAprenderI2C()
{
    const QString title = Traduz(QStringLiteral("REF_APRENDER_I2C"));
    if (m_autoRunning || m_runAnswers.isEmpty())
        return;
    const QString model = session().modelo();
    Database db(session().configPath());
    const I2CLearning::Plan plan = I2CLearning::plan(model, db.i2cEntries(model), m_runAnswers);
    if (!db.lastError().isEmpty()) {
        dialogs().critical(this, QStringLiteral("Config.vkt"), db.lastError());
        return;
    }
    if (!plan.changes()) {
        dialogs().information(this, title, Traduz(QStringLiteral("REF_I2C_SEM_MUDANCA")));
        return;
    }
    const auto list = [](const QStringList &entries) {
        return entries.isEmpty() ? QStringLiteral("-") : entries.join(QStringLiteral("\n"));
    };
    const QString question = Traduz(QStringLiteral("REF_PERGUNTA_I2C")).arg(model) + QStringLiteral("\n\n")
                             + Traduz(QStringLiteral("REF_I2C_ENTRAM")) + u'\n' + list(plan.added)
                             + QStringLiteral("\n\n") + Traduz(QStringLiteral("REF_I2C_SAEM")) + u'\n'
                             + list(plan.removed);
    if (!dialogs().question(this, title, question))
        return;
    QString error;
    if (!I2CLearning::learn(db, plan, RefOrigins::stamp(QDateTime::currentDateTimeUtc()), session().versao(), &error)) {
        dialogs().critical(this, QStringLiteral("Config.vkt"), error);
        return;
    }
    m_runAnswers.clear();
    ui->btAprenderI2C->setEnabled(false);
}
