#include "RFs_Esq.h"

#include "Database.h"
#include "Dialogs.h"
#include "GridColumns.h"
#include "Inicial.h"
#include "RadioEngine.h"
#include "Session.h"
#include "ui_RFs_Esq.h"

#include <QHeaderView>
#include <QSqlQueryModel>
#include <QSqlRecord>

namespace {

// Grid columns and their caption keys; Modelo and Tipo only select the rows.
const GridColumns Columns = {
    {QStringLiteral("Malha"), QStringLiteral("Malha")},
    {QStringLiteral("Componente"), QStringLiteral("Componente")},
    {QStringLiteral("Referencia"), QStringLiteral("Referência")},
};

} // namespace

RFs_Esq::RFs_Esq(const ScreenContext &context, QWidget *parent)
    : TestScreen(context, QStringLiteral("RFs_Esq"), parent), ui(std::make_unique<Ui::RFs_Esq>()),
      m_db(std::make_unique<Database>(context.session.configPath()))
{
    ui->setupUi(this);
    m_data1 = new QSqlQueryModel(this);
    m_data1->setObjectName(QStringLiteral("Data1"));
    ui->DBGrid1->setModel(m_data1);
    ui->DBGrid1->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    ui->DBGrid1->verticalHeader()->setVisible(false);

    ui->ComboAparelhos->addItems(Inicial::modelos());
    ui->ComboAparelhos->setCurrentText(session().modelo());
    ui->Botao1->setChecked(true);
    connect(ui->Botao1, &QPushButton::clicked, this, [this] { escolheBaseband(1); });
    connect(ui->Botao2, &QPushButton::clicked, this, [this] { escolheBaseband(2); });
    connect(ui->ComboAparelhos, &QComboBox::currentTextChanged, this, &RFs_Esq::CarregaReferenciasRF);

    retranslate();
    CarregaReferenciasRF(ui->ComboAparelhos->currentText());
}

RFs_Esq::~RFs_Esq()
{
    // The grid's query belongs to the connection: let it go first.
    m_data1->clear();
}

void RFs_Esq::retranslate()
{
    setWindowTitle(Traduz(QStringLiteral("TensoesRF")) + QStringLiteral(" - Pelorin Vekto"));
    ui->lbREF->setText(Traduz(QStringLiteral("VALORES DE REFERÊNCIA RF")));
    ui->lbModelo->setText(Traduz(QStringLiteral("Modelo:")));
    const QSqlRecord record = m_data1->record();
    for (const auto &[column, key] : Columns) {
        const int index = record.indexOf(column);
        if (index >= 0)
            m_data1->setHeaderData(index, Qt::Horizontal, Traduz(key));
    }
}

void RFs_Esq::escolheBaseband(int escolha)
{
    m_escolha = escolha;
    (escolha == 2 ? ui->Botao2 : ui->Botao1)->setChecked(true);
    CarregaReferenciasRF(ui->ComboAparelhos->currentText());
}

void RFs_Esq::CarregaReferenciasRF(const QString &modelo)
{
    if (modelo.isEmpty())
        return;
    m_tipo = RadioEngine::tipoRf(modelo, m_escolha);
    // The modem choice means nothing on the single-modem families.
    const bool twoModems = m_tipo != QLatin1String("T");
    ui->Botao1->setEnabled(twoModems);
    ui->Botao2->setEnabled(twoModems);
    m_data1->setQuery(m_db->rfQuery(modelo, m_tipo));
    if (!m_db->lastError().isEmpty())
        storeFailed();
    while (m_data1->canFetchMore())
        m_data1->fetchMore();
    showOnlyGridColumns(ui->DBGrid1, m_data1->record(), Columns);
    retranslate();
}

void RFs_Esq::storeFailed()
{
    dialogs().critical(this, QStringLiteral("Config.vkt"), m_db->lastError());
}
