#include "Bateria.h"
#include "ui_Bateria.h"

#include "BoundRecordView.h"
#include "ConsoleExchange.h"
#include "Database.h"
#include "OutrosEngine.h"
#include "Session.h"

Bateria::Bateria(const ScreenContext &context, QWidget *parent)
    : TestScreen(context, QStringLiteral("Bateria"), parent), ui(std::make_unique<Ui::Bateria>()),
      m_db(std::make_unique<Database>(context.session.configPath()))
{
    ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);

    m_data1 = new BoundRecordView(this);
    m_data1->bind(ui->txtComparador, QStringLiteral("Dados"));
    m_data1->clear();

    exchange().registerReceiver(QString::fromLatin1(ScreenId), this,
                                AnswerReceiver{[this](const QString &answer) { handOver(answer); }, {}});
    connect(ui->btBateria, &QPushButton::clicked, this, &Bateria::btBateriaClick);
    // The button only reads when the phone is ready; a disabled button says so at a glance.
    ui->btBateria->setEnabled(session().connectedAndIdle());
    connect(&session(), &Session::connectionFlagChanged, this,
            [this](const QString &flag) { ui->btBateria->setEnabled(flag == QLatin1String("1")); });
    connect(&session(), &Session::idiomaChanged, this, &Bateria::retranslate);
    connect(&session(), &Session::modeloChanged, this, [this] {
        if (!ui->txtDados->rawText().isEmpty())
            m_data1->requery(m_db->dadosQuery(session().modelo(), OutrosEngine::bateriaKeyWord()));
    });
    retranslate();

    if (session().connectedAndIdle())
        executaLeitura();
}

Bateria::~Bateria()
{
    // The view's query belongs to the connection: let it go first.
    m_data1->clear();
}

void Bateria::retranslate()
{
    setWindowTitle(Traduz(QStringLiteral("Bateria")));
    ui->Frame1->setTitle(Traduz(QStringLiteral("Leitura do dispositivo conectado:")));
    ui->Frame2->setTitle(Traduz(QStringLiteral("Comparador: (Dispositivos Gravados)")));
    ui->btBateria->setText(Traduz(QStringLiteral("Executar Leitura")));
}

void Bateria::btBateriaClick()
{
    if (!session().connectedAndIdle())
        return;
    ui->txtDados->setRawText(QString());
    m_data1->clear();
    executaLeitura();
}

void Bateria::executaLeitura()
{
    enviaComando(QString::fromLatin1(ScreenId), OutrosEngine::bateriaCommand());
}

void Bateria::handOver(const QString &answer)
{
    ui->txtDados->setRawText(answer);
    m_data1->requery(m_db->dadosQuery(session().modelo(), OutrosEngine::bateriaKeyWord()));
}
