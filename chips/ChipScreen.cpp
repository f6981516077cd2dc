#include "ChipScreen.h"

#include "ConsoleExchange.h"
#include "Database.h"
#include "Session.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlQueryModel>
#include <QStyle>
#include <QTableView>
#include <QVBoxLayout>

namespace {

// The recorded-answers grid starts on a pair that no row has, so it starts empty.
const QString PlaceholderModel = QStringLiteral("xxxxx");
const QString PlaceholderCommand = QStringLiteral("xxxxxxxx");

enum Column { NameColumn, ValueColumn, DeviationColumn, OkColumn, NoColumn, WarningColumn };

// "&H00BBGGRR" to a colour.
QColor fromColourText(const QString &text)
{
    bool ok = false;
    const uint bgr = QStringView(text).mid(2).toUInt(&ok, 16);
    if (!ok)
        return Qt::white;
    return QColor(int(bgr & 0xff), int((bgr >> 8) & 0xff), int((bgr >> 16) & 0xff));
}

// The reading's name as a caption: "tigris vbus :" -> "VBUS", "BIST buck4:" -> "BUCK4".
QString readingName(const ChipRow &row)
{
    QString name = row.label;
    name.remove(QStringLiteral("BIST ")).remove(u':');
    const qsizetype blank = name.indexOf(u' ');
    if (blank >= 0 && !row.label.startsWith(QLatin1String("BIST ")))
        name = name.mid(blank + 1);
    return name.trimmed().toUpper();
}

// Every control the screen may show: the model with the most rows lays out the screen.
QList<ChipRow> allRows(Chip chip)
{
    return ChipTables::rows(chip, QStringLiteral("IP X"));
}

} // namespace

ChipScreen::ChipScreen(const ScreenContext &context, Chip chip, QWidget *parent)
    : TestScreen(context, ChipTables::definition(chip).name, parent), m_chip(chip)
{
    auto *outer = new QHBoxLayout(this);
    m_column = new QVBoxLayout;
    outer->addLayout(m_column);

    m_lbUC = addLabel(QStringLiteral("lbUC"));
    QFont bold = m_lbUC->font();
    bold.setBold(true);
    m_lbUC->setFont(bold);
    m_column->addWidget(m_lbUC);
    m_grid = new QGridLayout;
    m_column->addLayout(m_grid);
}

void ChipScreen::setUp()
{
    buildRows();

    m_buttons = new QHBoxLayout;
    m_btExecutaLeitura = new QPushButton(this);
    m_btExecutaLeitura->setObjectName(QStringLiteral("btExecutaLeitura"));
    m_buttons->addWidget(m_btExecutaLeitura);
    connect(m_btExecutaLeitura, &QPushButton::clicked, this, &ChipScreen::ExecutaLeitura);
    if (definition().log) {
        m_btLog = new QPushButton(this);
        m_btLog->setObjectName(QStringLiteral("btLog"));
        m_buttons->addWidget(m_btLog);
        connect(m_btLog, &QPushButton::clicked, this, &ChipScreen::toggleLog);
    }
    m_buttons->addStretch();
    m_column->addLayout(m_buttons);

    if (definition().comparator) {
        m_db = std::make_unique<Database>(session().configPath());
        m_comparatorBox = new QGroupBox(this);
        m_comparatorBox->setObjectName(QStringLiteral("FrameComparador"));
        auto *box = new QVBoxLayout(m_comparatorBox);
        m_grid1 = new QTableView(m_comparatorBox);
        m_grid1->setObjectName(QStringLiteral("DBGrid1"));
        m_grid1->horizontalHeader()->setStretchLastSection(true);
        box->addWidget(m_grid1);
        m_data1 = new QSqlQueryModel(this);
        m_data1->setObjectName(QStringLiteral("Data1"));
        m_grid1->setModel(m_data1);
        pointComparator(PlaceholderModel, PlaceholderCommand);
        m_column->addWidget(m_comparatorBox);
    }
    m_column->addStretch();

    m_logPanel = new QWidget(this);
    auto *outer = qobject_cast<QHBoxLayout *>(layout());
    auto *log = new QVBoxLayout(m_logPanel);
    log->setContentsMargins(0, 0, 0, 0);
    m_lbLeitura = addLabel(QStringLiteral("lbLeitura"), m_logPanel);
    log->addWidget(m_lbLeitura);
    m_txtDados = new QPlainTextEdit(m_logPanel);
    m_txtDados->setObjectName(QStringLiteral("txtDados"));
    m_txtDados->setReadOnly(true);
    m_txtDados->setMinimumWidth(360);
    log->addWidget(m_txtDados);
    outer->addWidget(m_logPanel);
    // Screens with a log button open with the panel folded away; the others always show it.
    m_logShown = !definition().log;
    m_logPanel->setVisible(m_logShown);

    AnswerReceiver receiver{[this](const QString &answer) { handOver(answer); }, {}};
    if (m_chip == Chip::Acorn)
        receiver.liveEcho = [this](const QString &console) { m_txtDados->setPlainText(console); };
    exchange().registerReceiver(definition().screenId, this, receiver);

    connect(&session(), &Session::modeloChanged, this, [this] {
        layoutForModel();
        retranslate();
    });
    // A phone that is gone will not answer: the button must not wait for it.
    connect(&session(), &Session::connectionFlagChanged, this, [this](const QString &flag) {
        if (flag == QLatin1String("0"))
            m_btExecutaLeitura->setEnabled(true);
    });

    addControls();
    layoutForModel();
    retranslate();
    resetScreen();
    // A screen opened on a connected, idle phone reads at once.
    if (session().connectedAndIdle())
        ExecutaLeitura();
}

bool ChipScreen::refusesModel() const
{
    return ChipTables::refuses(m_chip, session().modelo());
}

void ChipScreen::buildRows()
{
    int line = 0;
    QMap<QGridLayout *, int> lines;
    for (const ChipRow &row : allRows(m_chip)) {
        QGridLayout *grid = gridFor(row);
        line = lines.value(grid, 0);
        lines[grid] = line + 1;
        QWidget *owner = grid->parentWidget() ? grid->parentWidget() : this;

        const QString nameObject = row.rail > 0 ? QStringLiteral("lbNomeMalha%1").arg(row.rail)
                                                : QStringLiteral("lbNome_") + ChipTables::objectName(row.control);
        QLabel *name = addLabel(nameObject, owner);
        name->setProperty("readingName", row.rail > 0 ? QString() : m_chip == Chip::Tristar ? QStringLiteral("I")
                                                                                             : readingName(row));
        grid->addWidget(name, line, NameColumn);

        QLabel *value = addLabel(ChipTables::objectName(row.control), owner);
        value->setMinimumWidth(110);
        value->setFrameShape(QFrame::Panel);
        value->setFrameShadow(QFrame::Sunken);
        grid->addWidget(value, line, ValueColumn);

        if (!row.deviationLabel.isEmpty()) {
            QLabel *deviation = addLabel(row.deviationLabel, owner);
            deviation->setMinimumWidth(70);
            deviation->setFrameShape(QFrame::Panel);
            grid->addWidget(deviation, line, DeviationColumn);
        }
        if (row.image >= 0 && !m_labels.contains(QStringLiteral("ok_%1").arg(row.image))) {
            QLabel *ok = addLabel(QStringLiteral("ok_%1").arg(row.image), owner);
            ok->setPixmap(style()->standardIcon(QStyle::SP_DialogApplyButton).pixmap(16, 16));
            grid->addWidget(ok, line, OkColumn);
            QLabel *no = addLabel(QStringLiteral("no_%1").arg(row.image), owner);
            no->setPixmap(style()->standardIcon(QStyle::SP_DialogCancelButton).pixmap(16, 16));
            grid->addWidget(no, line, NoColumn);
        }
        if (!row.warning.isEmpty())
            grid->addWidget(addLabel(row.warning, owner), line, WarningColumn);
    }
}

ChipScreen::~ChipScreen()
{
    if (m_data1)
        m_data1->clear(); // the grid's query belongs to the connection: let it go first
}

QGridLayout *ChipScreen::gridFor(const ChipRow &)
{
    return m_grid;
}

QLabel *ChipScreen::addLabel(const QString &objectName, QWidget *parent)
{
    auto *l = new QLabel(parent ? parent : this);
    l->setObjectName(objectName);
    m_labels.insert(objectName, l);
    return l;
}

QLabel *ChipScreen::renameLabel(const QString &from, const QString &to)
{
    QLabel *l = m_labels.take(from);
    l->setObjectName(to);
    m_labels.insert(to, l);
    return l;
}

void ChipScreen::paint(QWidget *label, const QString &colourText)
{
    if (!label)
        return;
    label->setProperty("BackColor", colourText);
    label->setAutoFillBackground(true);
    QPalette p = label->palette();
    p.setColor(QPalette::Window, fromColourText(colourText));
    label->setPalette(p);
}

void ChipScreen::paintText(QWidget *label, const QString &colourText)
{
    if (!label)
        return;
    label->setProperty("ForeColor", colourText);
    QPalette p = label->palette();
    p.setColor(QPalette::WindowText, fromColourText(colourText));
    label->setPalette(p);
}

QString ChipScreen::backColor(const QWidget *label)
{
    const QVariant v = label ? label->property("BackColor") : QVariant();
    return v.isValid() ? v.toString() : White;
}

QString ChipScreen::foreColor(const QWidget *label)
{
    const QVariant v = label ? label->property("ForeColor") : QVariant();
    return v.isValid() ? v.toString() : TextBlack;
}

void ChipScreen::retranslate()
{
    m_btExecutaLeitura->setText(Traduz(QStringLiteral("Executar Leitura")));
    if (m_btLog)
        m_btLog->setText(Traduz(m_logShown ? QStringLiteral("Ocultar") : QStringLiteral("Exibir")) +
                         QStringLiteral(" Log ->"));
    m_lbLeitura->setText(Traduz(QStringLiteral("Leitura do dispositivo conectado:")));
    if (m_comparatorBox)
        m_comparatorBox->setTitle(Traduz(QStringLiteral("Comparador: (Dispositivos Gravados)")));
    for (const ChipRow &row : allRows(m_chip)) {
        if (!row.warning.isEmpty())
            label(row.warning)->setText(Traduz(QStringLiteral("Baixa")));
        if (row.rail == 0) {
            QLabel *name = label(QStringLiteral("lbNome_") + ChipTables::objectName(row.control));
            if (name)
                name->setText(name->property("readingName").toString());
        }
    }
    retranslateExtra();
}

void ChipScreen::toggleLog()
{
    m_logShown = !m_logShown;
    m_logPanel->setVisible(m_logShown);
    retranslate();
    // The window grows to show the panel and shrinks back without it.
    QWidget *window = qobject_cast<QMdiSubWindow *>(parentWidget()) ? parentWidget() : this;
    window->adjustSize();
}

void ChipScreen::resetScreen()
{
    for (const ChipRow &row : allRows(m_chip)) {
        QLabel *value = label(ChipTables::objectName(row.control));
        value->clear();
        paint(value, White);
        if (!row.deviationLabel.isEmpty()) {
            label(row.deviationLabel)->setText(QStringLiteral("0 %"));
            paint(label(row.deviationLabel), White);
        }
        if (row.image >= 0) {
            label(QStringLiteral("ok_%1").arg(row.image))->hide();
            label(QStringLiteral("no_%1").arg(row.image))->hide();
        }
        if (!row.warning.isEmpty())
            label(row.warning)->hide();
        if (row.rail > 0)
            label(QStringLiteral("lbNomeMalha%1").arg(row.rail))->clear();
        for (const QString &copy : row.copies)
            if (QLabel *l = label(copy)) {
                l->clear();
                paint(l, White);
            }
    }
    m_lbUC->clear();
    m_txtDados->clear();
    resetExtra();
}

void ChipScreen::ExecutaLeitura()
{
    if (refuse())
        return;
    if (!session().connectedAndIdle())
        return;
    m_btExecutaLeitura->setEnabled(false);
    resetScreen();
    enviaComando(definition().screenId, definition().command, m_chip == Chip::Acorn);
}

void ChipScreen::handOver(const QString &answer)
{
    m_txtDados->setPlainText(answer);
    if (m_data1)
        pointComparator(session().modelo(), exchange().commandField());
    CarregaDados();
}

void ChipScreen::pointComparator(const QString &model, const QString &command)
{
    if (!m_db || !m_db->isOpen())
        return; // no database: the grid stays empty, the reading still works
    m_data1->setQuery(m_db->dadosQuery(model, command));
}

void ChipScreen::CarregaDados()
{
    m_result = ChipEngine::CarregaDados(m_chip, session().modelo(), m_txtDados->toPlainText(),
                                        Traduz(QStringLiteral("Sem Medição")));
    paintResult(m_result);
    m_btExecutaLeitura->setEnabled(true);
}

void ChipScreen::paintResult(const ChipResult &result)
{
    m_lbUC->setText(result.designator);
    for (const ChipReading &r : result.readings) {
        const ChipRow &row = r.row;
        if (row.rail > 0)
            label(QStringLiteral("lbNomeMalha%1").arg(row.rail))->setText(row.railName);
        if (r.state == ChipReading::State::Reset)
            continue;
        QLabel *value = label(ChipTables::objectName(row.control));
        value->setText(r.caption);
        for (const QString &copy : row.copies)
            if (QLabel *l = label(copy))
                l->setText(r.caption);
        QLabel *deviation = row.deviationLabel.isEmpty() ? nullptr : label(row.deviationLabel);
        if (deviation)
            deviation->setText(r.deviationText().value_or(QString()));
        if (r.verdict == Verdict::Pass) {
            paint(deviation, Green);
            if (row.valuePaint == ValuePaint::Always)
                paint(value, Green);
        } else if (r.verdict == Verdict::Fail) {
            paint(deviation, Yellow);
            // A missing value is marked on its deviation label and image; its caption says why.
            const bool missing = r.state == ChipReading::State::Missing;
            if (row.valuePaint == ValuePaint::Always || (row.valuePaint == ValuePaint::OnFailure && !missing))
                paint(value, Yellow);
            for (const QString &name : row.failLabels)
                paint(label(name), Yellow);
            if (!row.warning.isEmpty())
                label(row.warning)->show();
        }
    }
    const QMap<int, Verdict> images = result.images();
    for (auto it = images.cbegin(); it != images.cend(); ++it) {
        label(QStringLiteral("ok_%1").arg(it.key()))->setVisible(it.value() == Verdict::Pass);
        label(QStringLiteral("no_%1").arg(it.key()))->setVisible(it.value() == Verdict::Fail);
    }
    paintExtra(result);
}
