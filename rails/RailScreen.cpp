#include "RailScreen.h"

#include "ConsoleExchange.h"
#include "Database.h"
#include "Dialogs.h"
#include "RailLearning.h"
#include "RailOriginModel.h"
#include "RailVerdictModel.h"
#include "RefOrigins.h"
#include "Session.h"
#include "ui_RailScreen.h"

#include <QDateTime>
#include <QHeaderView>
#include <QSqlQueryModel>
#include <QSqlRecord>
#include <tuple>

namespace {

const QString Command = QStringLiteral("pmuadc --read all");
// Chip choices that show every rail, and the ones that start a new reading when chosen.
const QStringList AllChips = {QStringLiteral("IC's"), QStringLiteral("CPU/NAND")};
const QStringList ReadingChips = {QStringLiteral("IC's"), QStringLiteral("CPU"), QStringLiteral("GPU"),
                                  QStringLiteral("NAND")};
// Grid columns and their caption keys; the other columns of Master stay hidden.
const QList<QPair<QString, QString>> GridColumns = {
    {QStringLiteral("Malha"), QStringLiteral("Malha")},       {QStringLiteral("refv"), QStringLiteral("Referência")},
    {QStringLiteral("Leitura"), QStringLiteral("Leitura")},   {QStringLiteral("Porc"), QStringLiteral("Classificação")},
    {QStringLiteral("G1"), QStringLiteral("Gravação")},       {QStringLiteral("G2"), QStringLiteral("Gravação")},
    {QStringLiteral("G3"), QStringLiteral("Gravação")},
};
constexpr int VoltCombo = 1; // Combos.Combo1
constexpr int AmpCombo = 2;  // Combos.Combo2
constexpr int BarraSteps = 100;

} // namespace

RailScreen::RailScreen(const ScreenContext &context, const RailScreenKind &kind, QWidget *parent)
    : TestScreen(context, kind.screenName, parent), ui(std::make_unique<Ui::RailScreen>()), m_kind(kind),
      m_db(std::make_unique<Database>(context.session.configPath()))
{
    ui->setupUi(this);
    m_data1 = new QSqlQueryModel(this);
    m_data1->setObjectName(QStringLiteral("Data1"));
    auto *coloured = new RailVerdictModel(this);
    coloured->setSourceModel(m_data1);
    m_origins = new RailOriginModel(this);
    m_origins->setSourceModel(coloured);
    ui->grid->setModel(m_origins);
    ui->grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    ui->Barra->setRange(0, BarraSteps);

    m_timer1.setObjectName(QStringLiteral("Timer1"));
    m_timer1.setInterval(Timer1IntervalMs);
    m_timer2.setObjectName(QStringLiteral("Timer2"));
    m_timer2.setInterval(Timer2IntervalMs);
    m_timerBarra.setObjectName(QStringLiteral("TimerBarra"));
    m_timerBarra.setInterval(TimerBarraIntervalMs);
    connect(&m_timer1, &QTimer::timeout, this, &RailScreen::onTimer1);
    connect(&m_timer2, &QTimer::timeout, this, &RailScreen::onTimer2);
    connect(&m_timerBarra, &QTimer::timeout, this, &RailScreen::onTimerBarra);

    ui->ComboDecimais->addItems({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    ui->ComboDecimaisAmp->addItems({QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    ui->ComboDecimais->setCurrentText(m_db->combo(VoltCombo).value_or(QStringLiteral("3")));
    ui->ComboDecimaisAmp->setCurrentText(m_db->combo(AmpCombo).value_or(QStringLiteral("1")));
    ui->cbICs->addItems({QStringLiteral("IC's"), QStringLiteral("CPU"), QStringLiteral("GPU"), QStringLiteral("NAND"),
                         QStringLiteral("CPU/NAND")});
    ui->FrameICs->setVisible(kind.chipFilter);
    ui->Botao1->setVisible(false);
    ui->Botao2->setVisible(false);
    ui->Botao3->setVisible(false);

    connect(ui->btExecutaLeitura, &QPushButton::clicked, this, &RailScreen::ExecutaLeitura);
    const QList<QPushButton *> gravarButtons = {ui->btGravar_1, ui->btGravar_2, ui->btGravar_3};
    const QList<QPushButton *> excluirButtons = {ui->btExcluir_1, ui->btExcluir_2, ui->btExcluir_3};
    for (int slot = 1; slot <= 3; ++slot) {
        connect(gravarButtons[slot - 1], &QPushButton::clicked, this, [this, slot] { gravar(slot); });
        connect(excluirButtons[slot - 1], &QPushButton::clicked, this, [this, slot] { excluir(slot); });
    }
    connect(ui->btAprender, &QPushButton::clicked, this, &RailScreen::aprender);
    connect(ui->btDesfazer, &QPushButton::clicked, this, &RailScreen::desfazer);
    for (QRadioButton *option : {ui->OpMalha, ui->OpIc, ui->OpPorc})
        connect(option, &QRadioButton::toggled, this, [this](bool on) {
            if (on)
                MontaConsultaGrade();
        });
    connect(ui->ComboDecimais, &QComboBox::currentTextChanged, this,
            [this](const QString &v) { decimalsChosen(VoltCombo, v); });
    connect(ui->ComboDecimaisAmp, &QComboBox::currentTextChanged, this,
            [this](const QString &v) { decimalsChosen(AmpCombo, v); });
    connect(ui->cbICs, &QComboBox::currentTextChanged, this, &RailScreen::chipChosen);

    // The read button waits for a validated connection: a flag of "1" alone may be the empty
    // first answer of a port where no phone answers.
    ui->btExecutaLeitura->setEnabled(session().validatedAndIdle());
    const auto followConnection = [this] {
        if (!m_reading)
            ui->btExecutaLeitura->setEnabled(session().validatedAndIdle());
    };
    connect(&session(), &Session::connectionFlagChanged, this, followConnection);
    connect(&session(), &Session::connectionValidatedChanged, this, followConnection);
    connect(&session(), &Session::modeloChanged, this, [this] {
        retranslate();
        PrePesquisa();
    });

    retranslate();
    PrePesquisa();
    m_loading = false;
}

RailScreen::~RailScreen()
{
    // The grid's query belongs to the connection: let it go first.
    m_data1->clear();
}


void RailScreen::retranslate()
{
    setWindowTitle(Traduz(m_kind.title));
    ui->lbDispositivo->setText(Traduz(QStringLiteral("Modelo")) + QStringLiteral(": ") + session().modelo());
    ui->btExecutaLeitura->setText(Traduz(m_reading ? QStringLiteral("Processando comando")
                                                    : QStringLiteral("Executar Leitura")));
    ui->Frame1->setTitle(QString());
    ui->OpMalha->setText(Traduz(QStringLiteral("Malha")));
    ui->OpIc->setText(QStringLiteral("IC's"));
    ui->OpPorc->setText(Traduz(QStringLiteral("Classificação")));
    ui->FrameICs->setTitle(Traduz(QStringLiteral("Seleção de IC's a serem exibidos")));
    ui->FrameDecimais->setTitle(Traduz(QStringLiteral("Casas Decimais")));
    ui->lbDecimais->setText(Traduz(QStringLiteral("Decimais")));
    ui->lbUnidades->setText(QStringLiteral(": V / mA"));
    ui->lbRealizando->setText(Traduz(QStringLiteral("Realizando Leitura...")));
    // The buttons carry the number of the "Gravação" column they act on.
    const QList<QPushButton *> gravar = {ui->btGravar_1, ui->btGravar_2, ui->btGravar_3};
    const QList<QPushButton *> excluir = {ui->btExcluir_1, ui->btExcluir_2, ui->btExcluir_3};
    for (int slot = 1; slot <= 3; ++slot) {
        gravar[slot - 1]->setText(Traduz(QStringLiteral("Gravar")) + u' ' + QString::number(slot));
        excluir[slot - 1]->setText(Traduz(QStringLiteral("Excluir")) + u' ' + QString::number(slot));
    }
    QStringList notes;
    for (const QString &key : m_kind.noteKeys)
        notes << Traduz(key);
    ui->lbNota->setText(notes.join(u'\n'));
    ui->Botao1->setText(Traduz(QStringLiteral("VCore")));
    ui->Botao2->setText(Traduz(QStringLiteral("Buck Teste")));
    ui->Botao3->setText(QStringLiteral("NAND"));
    ui->btAprender->setText(Traduz(QStringLiteral("REF_APRENDER")));
    ui->btDesfazer->setText(Traduz(QStringLiteral("REF_DESFAZER")));

    const QSqlRecord record = m_data1->record();
    for (const auto &[column, key] : GridColumns) {
        const int index = record.indexOf(column);
        if (index < 0)
            continue;
        QString text = Traduz(key);
        if (column.startsWith(u'G'))
            text += u' ' + column.mid(1);
        m_data1->setHeaderData(index, Qt::Horizontal, text);
    }
    showOrigins();
}

void RailScreen::setScreenOpener(std::function<QWidget *(const QString &)> opener,
                                  const std::function<bool(const QString &)> &available)
{
    m_opener = std::move(opener);
    // Botao3 shows the NAND rails, which are the VCore screen's rails of the NAND chip.
    const QList<std::tuple<QPushButton *, QString, QString>> buttons = {
        {ui->Botao1, QStringLiteral("VCores"), QString()},
        {ui->Botao2, QStringLiteral("BuckTeste"), QString()},
        {ui->Botao3, QStringLiteral("VCores"), QStringLiteral("NAND")}};
    for (const auto &[button, screen, chip] : buttons) {
        // A screen that is not part of the program gets no button: nothing that does nothing.
        button->setVisible(m_opener && (!available || available(screen)));
        disconnect(button, &QPushButton::clicked, nullptr, nullptr);
        // Copies: clang 14 cannot capture a structured binding.
        connect(button, &QPushButton::clicked, this, [this, screen = screen, chip = chip] {
            if (!m_opener)
                return;
            auto *opened = qobject_cast<RailScreen *>(m_opener(screen));
            if (opened && !chip.isEmpty())
                opened->showChip(chip);
        });
    }
}

void RailScreen::showChip(const QString &chip)
{
    if (m_kind.chipFilter)
        ui->cbICs->setCurrentText(chip);
}

RailSettings RailScreen::settings() const
{
    RailSettings s;
    s.voltDecimals = qBound(1, ui->ComboDecimais->currentText().toInt(), 3);
    s.ampDecimals = qBound(0, ui->ComboDecimaisAmp->currentText().toInt(), 3);
    s.noReading = Traduz(QStringLiteral("Sem Medição")) + u'*';
    return s;
}

MasterFilter RailScreen::gridFilter() const
{
    MasterFilter filter;
    filter.modelo = session().modelo();
    filter.tipo = m_kind.tipo;
    const QString chip = ui->cbICs->currentText();
    if (m_kind.chipFilter && !chip.isEmpty() && !AllChips.contains(chip))
        filter.ciContains = chip;
    if (ui->OpIc->isChecked())
        filter.order = m_kind.orderIc;
    else if (ui->OpPorc->isChecked())
        filter.order = MasterFilter::Order::PorcDesc;
    else
        filter.order = m_kind.orderMalha;
    return filter;
}

void RailScreen::bindGrid(const MasterFilter &filter)
{
    m_shownFilter = filter;
    m_data1->setQuery(m_db->masterQuery(filter));
    while (m_data1->canFetchMore())
        m_data1->fetchMore();
    const QSqlRecord record = m_data1->record();
    for (int i = 0; i < record.count(); ++i) {
        const bool shown = std::any_of(GridColumns.begin(), GridColumns.end(),
                                       [&](const auto &c) { return c.first == record.fieldName(i); });
        ui->grid->setColumnHidden(i, !shown);
    }
    retranslate();
}

void RailScreen::MontaConsultaGrade()
{
    bindGrid(gridFilter());
}

void RailScreen::PrePesquisa()
{
    MasterFilter filter;
    filter.modelo = session().modelo();
    filter.tipo = m_kind.tipo;
    filter.order = m_kind.loadOrder;
    bindGrid(filter);
}

void RailScreen::PrePesquisaNand()
{
    // The chip choice shows NAND without starting a reading: the NAND screen only points the
    // grid at the rails, the technician reads them when the board is ready.
    if (m_kind.chipFilter) {
        const QSignalBlocker block(ui->cbICs);
        ui->cbICs->setCurrentText(QStringLiteral("NAND"));
    }
    bindGrid(Database::nandFilter(session().modelo()));
}

void RailScreen::LimpaLeituras()
{
    if (!m_db->clearReadings())
        storeFailed();
}

void RailScreen::ExecutaLeitura()
{
    if (m_reading || !session().validatedAndIdle())
        return;
    keepReadings();
    LimpaLeituras();
    MontaConsultaGrade();
    IniciaLeitura();
}

void RailScreen::IniciaLeitura()
{
    m_reading = true;
    ui->btExecutaLeitura->setEnabled(false);
    ui->btExecutaLeitura->setText(Traduz(QStringLiteral("Processando comando")));
    ui->Barra->setValue(0);
    ui->FrameVCore->setVisible(true);
    m_timerBarra.start();
    {
        const QSignalBlocker block(ui->OpMalha);
        ui->OpMalha->setChecked(true);
    }
    ui->Frame1->setEnabled(false);
    ui->ComboDecimais->setEnabled(false);
    ui->ComboDecimaisAmp->setEnabled(false);
    ui->cbICs->setEnabled(false);
    m_timer1Ticks = 0;
    enviaComando(m_kind.screenId, Command);
    m_timer1.start();
}

void RailScreen::onTimer1()
{
    ++m_timer1Ticks;
    if (!session().connectedAndIdle()) {
        // A pulled cable or a wait far beyond the longest answer: give the screen back as it was.
        if (session().connectionFlag() == QLatin1String("0") || m_timer1Ticks > Timer1TickLimit) {
            m_timer1.stop();
            restoreReadings();
            finishWaiting();
        }
        return;
    }
    ProcessaLeituras();
    ui->btExecutaLeitura->setText(Traduz(QStringLiteral("Executar Leitura")));
    m_timer1.stop();
    m_timer2.start();
}

void RailScreen::ProcessaLeituras()
{
    const QString answer = exchange().console();
    if (answer.isEmpty()) {
        restoreReadings(); // nothing to read: the grid stays as it was

        ui->ComboDecimais->setEnabled(true);
        ui->ComboDecimaisAmp->setEnabled(true);
        ui->FrameVCore->setVisible(false);
        m_timerBarra.stop();
        m_timer1.stop();
        m_timer2.stop();
        return;
    }
    m_keptReadings.clear(); // the answer is here: from now on the new reading stands
    LimpaLeituras();
    MasterFilter filter;
    filter.modelo = session().modelo();
    filter.tipo = m_kind.tipo;
    filter.withReftOnly = true;
    filter.order = MasterFilter::Order::ModeloOrig;

    QList<RailReference> references;
    for (const MasterRow &row : m_db->masterRows(filter))
        references.append({row.malha, row.reft, row.refv, row.ci});
    QList<RailReading> rows;
    for (const RailMeasurement &m : RailEngine::ProcessaLeituras(answer, references, settings()))
        rows.append({session().modelo(), m.malha, m.leitura, m.porc});
    if (!m_db->writeReadings(rows))
        storeFailed();
    ui->ComboDecimais->setEnabled(true);
    ui->ComboDecimaisAmp->setEnabled(true);
}

void RailScreen::keepReadings()
{
    m_keptReadings.clear();
    for (const MasterRow &row : m_db->masterRows(MasterFilter{}))
        if (!row.leitura.isEmpty() || !row.porc.isEmpty())
            m_keptReadings.append({row.modelo, row.malha, row.leitura, row.porc});
}

void RailScreen::restoreReadings()
{
    // A reading that never got its answer (a pulled cable, a wait given up) must not leave the
    // grid emptier than it found it: the readings wiped at its start are put back.
    if (!m_keptReadings.isEmpty() && !m_db->writeReadings(m_keptReadings))
        storeFailed();
    m_keptReadings.clear();
    MontaConsultaGrade();
}

void RailScreen::onTimer2()
{
    m_timer2.stop();
    MontaConsultaGrade();
    finishWaiting();
}

void RailScreen::finishWaiting()
{
    m_reading = false;
    ui->btExecutaLeitura->setText(Traduz(QStringLiteral("Executar Leitura")));
    ui->FrameVCore->setVisible(false);
    m_timerBarra.stop();
    ui->btExecutaLeitura->setEnabled(session().validatedAndIdle());
    ui->Frame1->setEnabled(true);
    ui->cbICs->setEnabled(true);
    ui->ComboDecimais->setEnabled(true);
    ui->ComboDecimaisAmp->setEnabled(true);
}

void RailScreen::onTimerBarra()
{
    const int next = ui->Barra->value() + 2;
    ui->Barra->setValue(next > BarraSteps ? 0 : next);
}

void RailScreen::restartIfIdle()
{
    if (!m_loading && !m_reading && session().validatedAndIdle())
        ExecutaLeitura();
}

void RailScreen::decimalsChosen(int combo, const QString &value)
{
    if (m_loading)
        return;
    if (!m_db->setCombo(combo, value))
        storeFailed();
    restartIfIdle();
}

void RailScreen::chipChosen(const QString &chip)
{
    if (m_loading || m_reading)
        return;
    MontaConsultaGrade();
    if (ReadingChips.contains(chip))
        restartIfIdle();
}

void RailScreen::gravar(int slot)
{
    if (!session().connectedAndIdle() || !ui->btExecutaLeitura->isEnabled())
        return;
    if (!dialogs().question(this, Traduz(QStringLiteral("Gravar")),
                            Traduz(QStringLiteral("Deseja salvar?")) + slotName(slot)))
        return;
    // Exactly the rows the grid shows, whichever query last filled it (a model change shows all).
    if (!m_db->recordReadings(slot, m_shownFilter))
        storeFailed();
    MontaConsultaGrade();
    m_saved = true;
}

void RailScreen::excluir(int slot)
{
    if (!dialogs().question(this, Traduz(QStringLiteral("Excluir")),
                            Traduz(QStringLiteral("Deseja excluir os dados gravados?")) + slotName(slot)))
        return;
    if (!m_db->clearRecordings(slot, m_shownFilter))
        storeFailed();
    MontaConsultaGrade();
}

QString RailScreen::slotName(int slot) const
{
    // Three buttons ask the same question: the answer must say which column it touches.
    return QStringLiteral("\n\n") + Traduz(QStringLiteral("Gravação")) + u' ' + QString::number(slot);
}

void RailScreen::storeFailed()
{
    dialogs().critical(this, QStringLiteral("Config.vkt"), m_db->lastError());
}

void RailScreen::showOrigins()
{
    const QString model = session().modelo();
    QHash<QString, RefOrigin> origins;
    for (const RefOrigin &origin : m_db->refOrigins(RefOrigins::Rail, model))
        origins.insert(origin.item.toUpper(), origin);
    const QSqlRecord columns = m_data1->record();
    const int malhaColumn = columns.indexOf(QStringLiteral("Malha"));
    const int refvColumn = columns.indexOf(QStringLiteral("refv"));
    QHash<QString, RailOriginModel::RowOrigin> shown;
    for (int row = 0; row < m_data1->rowCount(); ++row) {
        const QSqlRecord record = m_data1->record(row);
        const QString malha = record.value(malhaColumn).toString();
        const QString refv = record.value(refvColumn).toString();
        const auto it = origins.constFind(malha.toUpper());
        const std::optional<RefOrigin> origin = it == origins.constEnd() ? std::nullopt : std::optional(*it);
        shown.insert(malha, {RefOrigins::describe(origin, refv, session().idioma()),
                             RefOrigins::state(origin, refv) == RefOrigins::State::Demo});
    }
    m_origins->setOrigins(malhaColumn, refvColumn, shown);
    const bool demo = m_origins->anyDemo();
    ui->lbOrigem->setText(demo ? Traduz(QStringLiteral("REF_NOTA_DEMO")) : QString());
    ui->lbOrigem->setVisible(demo);
    ui->btDesfazer->setEnabled(RailLearning::canUndo(*m_db, model));
}

void RailScreen::aprender()
{
    const QString title = Traduz(QStringLiteral("REF_APRENDER"));
    if (m_reading) {
        dialogs().information(this, title, Traduz(QStringLiteral("REF_LEITURA_EM_CURSO")));
        return;
    }
    const QString model = session().modelo();
    const RailLearning::Plan plan = RailLearning::plan(model, m_db->masterRows(m_shownFilter));
    if (plan.learnable() == 0) {
        dialogs().information(this, title, Traduz(QStringLiteral("REF_SEM_GRAVACOES")));
        return;
    }
    if (!dialogs().question(this, title,
                            Traduz(QStringLiteral("REF_PERGUNTA_APRENDER")).arg(model).arg(plan.learnable())))
        return;
    const RailLearning::Context context{RefOrigins::stamp(QDateTime::currentDateTimeUtc()), session().versao(), {}};
    if (!RailLearning::learn(*m_db, plan, context))
        storeFailed();
    MontaConsultaGrade();
}

void RailScreen::desfazer()
{
    const QString title = Traduz(QStringLiteral("REF_DESFAZER"));
    if (m_reading) {
        dialogs().information(this, title, Traduz(QStringLiteral("REF_LEITURA_EM_CURSO")));
        return;
    }
    const QString model = session().modelo();
    if (!RailLearning::canUndo(*m_db, model)) {
        dialogs().information(this, title, Traduz(QStringLiteral("REF_NADA_A_DESFAZER")));
        return;
    }
    if (!dialogs().question(this, title, Traduz(QStringLiteral("REF_PERGUNTA_DESFAZER")).arg(model)))
        return;
    if (!RailLearning::undo(*m_db, model))
        storeFailed();
    MontaConsultaGrade();
}
