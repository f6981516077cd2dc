#include "Checagem.h"
#include "ui_Checagem.h"

#include "CheckReport.h"
#include "CheckSteps.h"
#include "Dialogs.h"
#include "Session.h"

#include <QBrush>
#include <QFont>
#include <QPushButton>
#include <QRegularExpression>

namespace {

enum Column { ColStep, ColName, ColValue, ColDeviation, ColVerdict, ColEarlier };

void paint(QTreeWidgetItem *item, int column, const QString &word, const QColor &colour)
{
    item->setText(column, word);
    item->setBackground(column, colour);
    QFont bold = item->font(column);
    bold.setBold(true);
    item->setFont(column, bold);
}

} // namespace

Checagem::Checagem(const ScreenContext &context, QWidget *parent)
    : TestScreen(context, QStringLiteral("Checagem"), parent), ui(std::make_unique<Ui::Checagem>()),
      m_check(context.session, context.exchange)
{
    ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    QFont big = ui->twResultados->font();
    big.setPointSizeF(big.pointSizeF() * 1.25);
    ui->twResultados->setFont(big);

    connect(ui->btChecar, &QPushButton::clicked, this, &Checagem::btChecarClick);
    connect(ui->btCancelar, &QPushButton::clicked, this, &Checagem::btCancelarClick);
    connect(ui->btRelatorio, &QPushButton::clicked, this, &Checagem::btRelatorioClick);
    connect(ui->cbAnterior, &QComboBox::currentIndexChanged, this, &Checagem::chooseEarlier);
    connect(&m_check, &BoardCheck::stepStarted, this, &Checagem::onStep);
    connect(&m_check, &BoardCheck::finished, this, &Checagem::onFinished);
    connect(&session(), &Session::idiomaChanged, this, &Checagem::retranslate);
    connect(&session(), &Session::connectionFlagChanged, this, [this](const QString &flag) {
        ui->btChecar->setEnabled(!m_check.running() && flag == QLatin1String("1"));
    });
    ui->btChecar->setEnabled(session().connectedAndIdle());
    retranslate();
}

Checagem::~Checagem()
{
    // Closed half-way: the exchange is ended, and nothing is painted or stored any more.
    if (m_check.running()) {
        disconnect(&m_check, nullptr, this, nullptr);
        m_check.cancel();
    }
}

void Checagem::retranslate()
{
    setWindowTitle(Traduz(QStringLiteral("Checagem da placa")));
    ui->btChecar->setText(Traduz(QStringLiteral("Executar checagem")));
    ui->btCancelar->setText(Traduz(QStringLiteral("Cancelar")));
    ui->btRelatorio->setText(Traduz(QStringLiteral("Salvar relatório")));
    ui->lbAnterior->setText(Traduz(QStringLiteral("Checagem anterior")) + u':');
    ui->twResultados->setHeaderLabels({Traduz(QStringLiteral("Etapa")), Traduz(QStringLiteral("Nome")),
                                       Traduz(QStringLiteral("Valor")), Traduz(QStringLiteral("Desvio")),
                                       Traduz(QStringLiteral("Resultado")), Traduz(QStringLiteral("Checagem anterior"))});
    if (ui->cbAnterior->count() > 0)
        ui->cbAnterior->setItemText(0, Traduz(QStringLiteral("(nenhuma)")));
    if (m_haveResult) {
        fillList();
        showSituation();
    }
}

void Checagem::setRunning(bool running)
{
    ui->btChecar->setEnabled(!running && session().connectedAndIdle());
    ui->btCancelar->setEnabled(running);
    ui->btRelatorio->setEnabled(!running && m_haveResult);
    ui->cbAnterior->setEnabled(!running);
}

void Checagem::btChecarClick()
{
    if (!m_check.start(session().modelo(), session().configPath())) {
        ui->lbSituacao->setText(Traduz(QStringLiteral("Conecte um aparelho antes de checar")));
        return;
    }
    m_haveResult = false;
    m_storeProblem.clear();
    m_comparison = {};
    ui->twResultados->clear();
    ui->cbAnterior->clear();
    ui->lbSituacao->clear();
    ui->lbSituacao->setStyleSheet({});
    setRunning(true);
}

void Checagem::btCancelarClick()
{
    m_check.cancel();
}

void Checagem::onStep(int index, int total, const QString &key)
{
    ui->pbEtapas->setTextVisible(true);
    ui->pbEtapas->setMaximum(total);
    ui->pbEtapas->setValue(index);
    // "%v / %m" is filled by the bar itself: steps done and the total.
    ui->pbEtapas->setFormat(CheckSteps::title(key, session().modelo(), session().idioma()).replace(u'%', QLatin1String("%%"))
                            + QStringLiteral("  %v / %m"));
}

void Checagem::onFinished()
{
    m_shown = m_check.result();
    m_storeProblem = CheckHistory::store(session().configPath(), m_shown);
    m_haveResult = true;
    ui->pbEtapas->setValue(int(m_shown.steps.size()));
    setRunning(false);
    fillEarlier();
    fillList();
    showSituation();
}

void Checagem::showSituation()
{
    QStringList lines;
    switch (m_shown.end) {
    case CheckResult::End::Complete:
        lines << Traduz(QStringLiteral("Completa"));
        break;
    case CheckResult::End::Lost:
        lines << Traduz(QStringLiteral("O aparelho foi desconectado durante a checagem"));
        break;
    case CheckResult::End::Cancelled:
        lines << Traduz(QStringLiteral("Checagem cancelada"));
        break;
    }
    if (!m_shown.complete())
        lines << Traduz(QStringLiteral("Incompleta: %1 de %2 etapas")).arg(m_shown.steps.size()).arg(m_shown.totalSteps);
    if (!m_shown.anyJudged())
        lines << Traduz(QStringLiteral("Nada pôde ser julgado"));
    if (!m_storeProblem.isEmpty())
        lines << Traduz(QStringLiteral("A checagem não foi gravada:")) + u' ' + m_storeProblem;
    ui->lbSituacao->setText(lines.join(u'\n'));
    const bool bad = m_shown.exitCode() != 0 || !m_storeProblem.isEmpty();
    ui->lbSituacao->setStyleSheet(QStringLiteral("font-weight: bold; background: %1")
                                      .arg(CheckReport::verdictColour(bad ? Verdict::Fail : Verdict::Pass).name()));
}

void Checagem::fillEarlier()
{
    const QSignalBlocker block(ui->cbAnterior);
    ui->cbAnterior->clear();
    ui->cbAnterior->addItem(Traduz(QStringLiteral("(nenhuma)")), qint64(0));
    for (const CheckRecord &c : CheckHistory::checks(session().configPath(), m_shown.serial)) {
        if (c.id == m_shown.storedId)
            continue;
        const QString when = QDateTime::fromString(c.data, Qt::ISODate).toString(QStringLiteral("yyyy-MM-dd HH:mm"));
        ui->cbAnterior->addItem(when + QStringLiteral("  ") + c.modelo
                                    + (c.completa ? QString() : QStringLiteral("  (") + Traduz(QStringLiteral("Incompleta: %1 de %2 etapas")).section(u':', 0, 0) + u')'),
                                c.id);
    }
}

void Checagem::chooseEarlier(int index)
{
    const qint64 id = ui->cbAnterior->itemData(index).toLongLong();
    m_comparison = {};
    if (id > 0) {
        if (const std::optional<CheckResult> earlier = CheckHistory::load(session().configPath(), id))
            m_comparison = CheckComparison(*earlier);
    }
    fillList();
}

void Checagem::fillList()
{
    auto *tree = ui->twResultados;
    tree->clear();
    const quint8 idioma = session().idioma();
    const QString model = m_shown.model;
    auto stepTitle = [&](const CheckStepResult &s) {
        QString title = CheckSteps::title(s.key, model, idioma);
        if (!s.detail.isEmpty())
            title += QStringLiteral(" (") + s.detail + u')';
        return title;
    };
    auto addRow = [&](QTreeWidgetItem *parent, const CheckStepResult &s, const JudgedRow *r) {
        auto *item = new QTreeWidgetItem(parent);
        item->setText(ColStep, stepTitle(s));
        if (!r) {
            paint(item, ColVerdict, CheckReport::noAnswerWord(idioma), CheckReport::noAnswerColour());
            return;
        }
        item->setText(ColName, r->name);
        item->setText(ColValue, r->caption);
        item->setText(ColDeviation, r->deviation.toString());
        paint(item, ColVerdict, CheckReport::verdictWord(r->verdict, idioma), CheckReport::verdictColour(r->verdict));
        if (m_comparison.isEmpty())
            return;
        if (const std::optional<JudgedRow> before = m_comparison.row(s.key, r->name)) {
            item->setText(ColEarlier, before->caption);
            item->setBackground(ColEarlier, CheckReport::verdictColour(before->verdict));
        } else {
            item->setText(ColEarlier, QStringLiteral("-"));
        }
    };

    auto *failures = new QTreeWidgetItem(tree, {Traduz(QStringLiteral("Falhas"))});
    QTreeWidgetItem *step = nullptr;
    const CheckStepResult *stepOf = nullptr;
    for (const CheckLine &line : m_shown.failuresFirst()) {
        const bool bad = !line.row || line.row->verdict == Verdict::Fail;
        if (bad) {
            addRow(failures, *line.step, line.row);
            continue;
        }
        if (line.step != stepOf) {
            stepOf = line.step;
            step = new QTreeWidgetItem(tree, {stepTitle(*line.step)});
        }
        addRow(step, *line.step, line.row);
    }
    if (failures->childCount() == 0)
        failures->setText(ColStep, Traduz(m_shown.anyJudged() ? QStringLiteral("Nenhuma falha")
                                                              : QStringLiteral("Nada pôde ser julgado")));
    tree->expandAll();
    for (int c = 0; c <= ColEarlier; ++c)
        tree->resizeColumnToContents(c);
    tree->setColumnHidden(ColEarlier, m_comparison.isEmpty());
}

void Checagem::btRelatorioClick()
{
    if (!m_haveResult)
        return;
    const QString suggested = QStringLiteral("checagem-%1-%2.pdf")
                                  .arg(QString(m_shown.serial).remove(QRegularExpression(QStringLiteral("[^A-Za-z0-9]"))),
                                       m_shown.when.toString(QStringLiteral("yyyyMMdd-HHmm")));
    const std::optional<QString> path = dialogs().saveFileName(this, Traduz(QStringLiteral("Salvar relatório")), suggested);
    if (!path || path->isEmpty())
        return;
    const QString problem = CheckReport::write(*path, m_shown, m_comparison, session().idioma());
    ui->lbSituacao->setText(problem.isEmpty() ? Traduz(QStringLiteral("Relatório salvo:")) + u' ' + *path
                                              : Traduz(QStringLiteral("O relatório não foi salvo:")) + u' ' + problem);
}
