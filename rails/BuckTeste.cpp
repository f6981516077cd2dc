#include "BuckTeste.h"

#include "ConsoleExchange.h"
#include "Database.h"
#include "Dialogs.h"
#include "RailVerdictModel.h"
#include "Session.h"
#include "ui_BuckTeste.h"

#include <QListWidget>
#include <QStyle>

namespace {

const QString ScreenId = QStringLiteral("13");
constexpr int BarraSteps = 100;

} // namespace

BuckTeste::BuckTeste(const ScreenContext &context, QWidget *parent)
    : TestScreen(context, QStringLiteral("BuckTeste"), parent), ui(std::make_unique<Ui::BuckTeste>())
{
    ui->setupUi(this);
    ui->Barra->setRange(0, BarraSteps);
    for (int n = 1; n <= 15; ++n)
        ui->Combo1->addItem(QString::number(n));
    ui->Combo1->setCurrentText(QStringLiteral("5"));

    m_timerBarra.setObjectName(QStringLiteral("TimerBarra"));
    m_timerBarra.setInterval(TimerBarraIntervalMs);
    connect(&m_timerBarra, &QTimer::timeout, this, &BuckTeste::onTimerBarra);
    connect(ui->btBl_0, &QPushButton::clicked, this, [this] { btBl(LeituraIndex); });
    connect(ui->btBl_1, &QPushButton::clicked, this, [this] { btBl(TesteIndex); });
    connect(ui->btOriginal, &QPushButton::clicked, this, &BuckTeste::Original);
    connect(&session(), &Session::modeloChanged, this, &BuckTeste::retranslate);

    exchange().registerReceiver(ScreenId, this, {[this](const QString &answer) { handOver(answer); }, {}});
    retranslate();
}

BuckTeste::~BuckTeste() = default;

QString BuckTeste::infoBucks(const QString &modelo, const std::function<QString(const QString &)> &traduz)
{
    QStringList lines;
    if (modelo == QLatin1String("IP 6") || modelo == QLatin1String("IP 6 Plus")) {
        lines = {QStringLiteral("   buck1 = GPU = 0.000 V"), QStringLiteral("   buck6 = NC = 0.000 V"), QString(),
                 QStringLiteral("   ") + traduz(QStringLiteral("Buck6GPU"))};
    } else if (modelo == QLatin1String("IP 6s") || modelo == QLatin1String("IP 6s Plus")) {
        lines = {QStringLiteral("   buck1 = GPU = 0.000 V"), QStringLiteral("   buck8 = GPU = 0.000 V"),
                 QStringLiteral("   buck6 = CAMERA = 0.000 V")};
    } else if (modelo == QLatin1String("IP 7") || modelo == QLatin1String("IP 7 Plus")
               || modelo == QLatin1String("IP 8") || modelo == QLatin1String("IP 8 Plus")) {
        lines = {QStringLiteral("   buck1 = GPU = 0.000 V"), QStringLiteral("   buck8 = GPU = 0.000 V"),
                 QStringLiteral("   buck9 = CAMERA = 0.000 V")};
    }
    lines << QString() << QStringLiteral("   ") + traduz(QStringLiteral("VAR2"));
    QString text;
    for (const QString &line : lines)
        text += u'\n' + line;
    return text;
}

void BuckTeste::retranslate()
{
    setWindowTitle(Traduz(QStringLiteral("Buck Teste")));
    ui->btBl_0->setText(QStringLiteral("Buck ") + Traduz(QStringLiteral("Leitura")));
    ui->btBl_1->setText(QStringLiteral("Buck ") + Traduz(QStringLiteral("Teste")));
    ui->btOriginal->setText(Traduz(QStringLiteral("Original")));
    ui->lbLeitura->setText(Traduz(QStringLiteral("Leitura do dispositivo conectado:")));
    ui->lbComparador->setText(Traduz(QStringLiteral("Comparador: (Dispositivos Gravados)")));
    ui->frameVar->setTitle(Traduz(QStringLiteral("Informações adicionais")));
    ui->lbRealizando->setText(Traduz(QStringLiteral("Realizando Leitura...")));
    // The model lines already carry the IP 6 / IP 6 Plus note ("Buck6GPU"): it is shown once.
    ui->lbInfoBucks->setText(infoBucks(session().modelo(), [this](const QString &k) { return Traduz(k); }));
    ui->lbVar->setText(Traduz(QStringLiteral("VAR")) + u' ' + Traduz(QStringLiteral("VAR2")));
}

void BuckTeste::btBl(int index)
{
    // A press that sends nothing says why, beside the buttons.
    if (!session().connectedAndIdle()) {
        ui->lbStatus->setText(Traduz(session().connectionFlag() == QLatin1String("0") ? QStringLiteral("Desconectado")
                                                                                      : QStringLiteral("Aguarde...")));
        return;
    }
    ui->lbStatus->clear();
    ui->txtComparador->clear(); // the comparator stays empty until the answer names its command
    QString command;
    if (index == TesteIndex) {
        const QString number = ui->Combo1->currentText().remove(u' ');
        bool ok = false;
        const int n = number.toInt(&ok);
        if (!ok || n < 1 || n > 99) {
            // The lists would otherwise go on showing the previous buck's result as if it were this one's.
            ui->txtDados->clear();
            ui->ListView->clear();
            ui->ListViewComparador->clear();
            ui->lbStatus->setText(Traduz(QStringLiteral("Número do buck inválido (1 a 99)")));
            return;
        }
        if (!dialogs().question(this, Traduz(QStringLiteral("Buck Teste")),
                                Traduz(QStringLiteral("Esse processo leva aproximadamente 50 segundos, deseja continuar?"))))
            return;
        command = QStringLiteral("buckcheck ") + QString::number(n);
        m_modo = 2;
    } else {
        command = QStringLiteral("buck");
        ui->Combo1->setCurrentText(QStringLiteral("5"));
        m_modo = 1;
    }
    m_command = command;
    ui->Barra->setValue(0);
    ui->FrameVCore->setVisible(true);
    m_timerBarra.start();
    ui->txtDados->clear();
    ui->ListView->clear();
    ui->ListViewComparador->clear();
    enviaComando(ScreenId, command);
}

void BuckTeste::handOver(const QString &answer)
{
    ui->txtDados->setPlainText(answer);
    // The recorded answer of the same model and command, when a known-good board was recorded.
    Database db(session().configPath());
    const auto recorded = db.dadosRecord(session().modelo(), m_command);
    ui->txtComparador->setPlainText(recorded ? recorded->dados : QString());
    PreProcesso();
}

void BuckTeste::fill(QListWidget *list, const QString &answer)
{
    list->clear();
    const QList<BuckLine> lines = m_modo == 1
        ? ExtraiLeiturasBuck(answer)
        : ExtraiBistBuck(answer, {Traduz(QStringLiteral("Referência")), Traduz(QStringLiteral("Leitura"))});
    for (const BuckLine &line : lines) {
        auto *item = new QListWidgetItem(line.text, list);
        if (m_modo != 1) {
            item->setBackground(line.passed ? RailVerdictModel::PassColour : RailVerdictModel::FailColour);
            item->setIcon(style()->standardIcon(line.passed ? QStyle::SP_DialogApplyButton
                                                            : QStyle::SP_MessageBoxWarning));
            item->setData(Qt::UserRole, line.passed);
        }
    }
}

void BuckTeste::PreProcesso()
{
    const QString dados = ui->txtDados->toPlainText();
    if (!exchange().console().isEmpty() && dados.contains(u'['))
        fill(ui->ListView, dados);
    ui->FrameVCore->setVisible(false);
    m_timerBarra.stop();
    const QString recorded = ui->txtComparador->toPlainText();
    if (!recorded.isEmpty())
        fill(ui->ListViewComparador, recorded);
}

void BuckTeste::Original()
{
    fill(ui->ListView, ui->txtDados->toPlainText());
    fill(ui->ListViewComparador, ui->txtComparador->toPlainText());
}

void BuckTeste::onTimerBarra()
{
    // A pulled cable ends the wait: the hand-over will not come.
    if (session().connectionFlag() == QLatin1String("0")) {
        m_timerBarra.stop();
        ui->FrameVCore->setVisible(false);
        return;
    }
    const int next = ui->Barra->value() + 2;
    ui->Barra->setValue(next > BarraSteps ? 0 : next);
}
