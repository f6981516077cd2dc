#include "zAjustes.h"
#include "ui_zAjustes.h"

#include "AutoComparador.h"
#include "BoundRecordView.h"
#include "ConsoleTextEdit.h"
#include "Database.h"
#include "Dialogs.h"
#include "Session.h"

#include <QTime>

zAjustes::zAjustes(const ScreenContext &ctx, QWidget *parent)
    : TestScreen(ctx, QStringLiteral("zAjustes"), parent), ui(std::make_unique<Ui::zAjustes>()),
      m_db(std::make_unique<Database>(ctx.session.configPath()))
{
    ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);

    m_data1 = new BoundRecordView(this);
    m_data1->bind(ui->txtConsole, QStringLiteral("Dados"));
    m_data1->bind(ui->Label1, QStringLiteral("Aparelho"), "text");
    m_data2 = new BoundRecordView(this);
    m_data2->bind(ui->txtComparador, QStringLiteral("Dados"));
    m_data2->bind(ui->Label2, QStringLiteral("Aparelho"), "text");

    const int model = ui->ComboAparelhos->findText(session().modelo());
    ui->ComboAparelhos->setCurrentIndex(model >= 0 ? model : 0);
    fillCommandList();

    connect(ui->ComboAparelhos, &QComboBox::currentTextChanged, this, &zAjustes::selectionChanged);
    connect(ui->ComboAparelhos, &QComboBox::activated, this, &zAjustes::selectionChanged);
    connect(ui->txtComandos, &QComboBox::currentTextChanged, this, &zAjustes::selectionChanged);
    connect(ui->txtComandos, &QComboBox::activated, this, &zAjustes::selectionChanged);
    connect(ui->btAtualizar, &QPushButton::clicked, this, &zAjustes::save);
    connect(ui->Command1, &QPushButton::clicked, this, &zAjustes::maskLeft);
    connect(ui->Command3, &QPushButton::clicked, this, &zAjustes::maskRight);
    connect(ui->Command2, &QPushButton::clicked, this, &zAjustes::addMaskText);
    connect(ui->Command4, &QToolButton::clicked, this, &zAjustes::copyLeftToRight);
    connect(ui->Command5, &QToolButton::clicked, this, &zAjustes::copyRightToLeft);
    connect(&session(), &Session::idiomaChanged, this, &zAjustes::retranslate);

    selectionChanged();
    retranslate();
}

zAjustes::~zAjustes() = default;

void zAjustes::retranslate()
{
    setWindowTitle(Traduz(QStringLiteral("Ajustes")) + QStringLiteral(" - Pelorin Vekto"));
    ui->btAtualizar->setText(Traduz(QStringLiteral("Salvar")));
    ui->btAtualizar->setToolTip(Traduz(QStringLiteral("Salvar Alterações")));
    ui->Command1->setText(Traduz(QStringLiteral("Tira Marca")));
    ui->Command3->setText(Traduz(QStringLiteral("Tira Marca")));
    ui->Command2->setText(Traduz(QStringLiteral("Add Marca")));
}

void zAjustes::fillCommandList()
{
    const QSignalBlocker block(ui->txtComandos);
    ui->txtComandos->clear();
    for (const ComandoRecord &c : m_db->comandos())
        ui->txtComandos->addItem(c.comando);
}

void zAjustes::selectionChanged()
{
    const QString model = ui->ComboAparelhos->currentText();
    const QString command = ui->txtComandos->currentText();
    m_data1->requery(m_db->dadosQuery(model, command));
    m_data2->requery(m_db->dadosQuery(model + QStringLiteral(" Plus"), command));
}

bool zAjustes::saveSide(BoundRecordView *view, ConsoleTextEdit *box)
{
    if (!view->hasRecord())
        return true; // a model without its Plus row: nothing to write on that side
    return m_db->updateDados(DadosRecord{view->value(QStringLiteral("Aparelho")).toString(),
                                         view->value(QStringLiteral("Comando")).toString(), box->rawText(),
                                         view->value(QStringLiteral("Info")).toString(),
                                         view->value(QStringLiteral("Info2")).toString(),
                                         view->value(QStringLiteral("Info3")).toString()});
}

bool zAjustes::save()
{
    const bool ok = saveSide(m_data1, ui->txtConsole) && saveSide(m_data2, ui->txtComparador);
    if (!ok) {
        // The edits stay in the boxes; the file keeps the records as they were.
        dialogs().critical(this, Traduz(QStringLiteral("DB_TITULO")), Traduz(QStringLiteral("DB_ERRO_GRAVACAO")));
        return false;
    }
    ui->lbSalvo->setText(Traduz(QStringLiteral("Salvo ")) + QTime::currentTime().toString(QStringLiteral("HH:mm:ss")));
    return true;
}

void zAjustes::maskSide(ConsoleTextEdit *box)
{
    // Here the stored texts are used as they stand: one that carries filler marks masks nothing.
    box->setRawText(AutoComparador::mask(box->rawText(), m_db->maskTexts(), AutoComparador::FillerMarks::Keep));
    save();
}

void zAjustes::maskLeft()
{
    maskSide(ui->txtConsole);
}

void zAjustes::maskRight()
{
    maskSide(ui->txtComparador);
}

void zAjustes::addMaskText()
{
    const auto answer = dialogs().input(this, Traduz(QStringLiteral("m")), Traduz(QStringLiteral("Digite a m.")));
    if (answer && !answer->isEmpty() && !m_db->addMaskText(*answer))
        dialogs().critical(this, Traduz(QStringLiteral("DB_TITULO")), Traduz(QStringLiteral("DB_ERRO_GRAVACAO")));
}

void zAjustes::copyLeftToRight()
{
    ui->txtComparador->setRawText(ui->txtConsole->rawText());
}

void zAjustes::copyRightToLeft()
{
    ui->txtConsole->setRawText(ui->txtComparador->rawText());
}
