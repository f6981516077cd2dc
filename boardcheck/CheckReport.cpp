#include "CheckReport.h"

#include "CheckSteps.h"
#include "Texts.h"

#include <QFile>
#include <QFileInfo>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextDocument>

namespace {

QString esc(const QString &text)
{
    return text.toHtmlEscaped();
}

QString cell(const QString &text, const QString &attributes = {})
{
    return QStringLiteral("<td%1>%2</td>").arg(attributes.isEmpty() ? QString() : u' ' + attributes, esc(text));
}

QString verdictCell(const QString &word, const QColor &colour)
{
    return QStringLiteral("<td bgcolor=\"%1\"><b>%2</b></td>").arg(colour.name(), esc(word));
}

class Builder
{
public:
    Builder(const CheckResult &r, const CheckComparison &c, quint8 idioma) : m_r(r), m_c(c), m_idioma(idioma) {}

    QString build()
    {
        QString h = QStringLiteral("<html><head><meta charset=\"utf-8\"><title>%1</title></head><body>")
                        .arg(esc(t(QStringLiteral("Checagem da placa"))));
        h += QStringLiteral("<h1>%1</h1>").arg(esc(t(QStringLiteral("Checagem da placa"))));
        h += header();
        h += QStringLiteral("<h2>%1</h2>").arg(esc(t(QStringLiteral("Falhas"))));
        h += failures();
        h += QStringLiteral("<h2>%1</h2>").arg(esc(t(QStringLiteral("Todos os resultados"))));
        for (const CheckStepResult &step : m_r.steps)
            h += stepTable(step);
        return h + QStringLiteral("</body></html>");
    }

private:
    QString t(const QString &key) const { return Texts::Traduz(key, m_idioma); }

    QString header() const
    {
        QString h = QStringLiteral("<table cellpadding=\"3\">");
        auto line = [&](const QString &key, const QString &value) {
            h += QStringLiteral("<tr><th align=\"left\">%1</th>%2</tr>").arg(esc(t(key)), cell(value));
        };
        line(QStringLiteral("Modelo"), m_r.model);
        line(QStringLiteral("Número de série"), m_r.serial);
        line(QStringLiteral("Data"), m_r.when.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
        line(QStringLiteral("Versão do programa"), m_r.version);
        line(QStringLiteral("Situação"),
             m_r.complete() ? t(QStringLiteral("Completa"))
                            : t(QStringLiteral("Incompleta: %1 de %2 etapas")).arg(m_r.steps.size()).arg(m_r.totalSteps));
        if (!m_c.isEmpty())
            line(QStringLiteral("Checagem anterior"), m_c.earlier().when.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
        return h + QStringLiteral("</table>");
    }

    QString headRow(bool withStep) const
    {
        QString h = QStringLiteral("<tr>");
        if (withStep)
            h += QStringLiteral("<th>%1</th>").arg(esc(t(QStringLiteral("Etapa"))));
        for (const char *key : {"Nome", "Valor", "Desvio", "Resultado"})
            h += QStringLiteral("<th>%1</th>").arg(esc(t(QString::fromLatin1(key))));
        if (!m_c.isEmpty())
            h += QStringLiteral("<th>%1</th>").arg(esc(t(QStringLiteral("Checagem anterior"))));
        return h + QStringLiteral("</tr>");
    }

    QString row(const CheckStepResult &step, const JudgedRow *r, bool withStep) const
    {
        QString h = QStringLiteral("<tr>");
        if (withStep) {
            QString title = CheckSteps::title(step.key, m_r.model, m_idioma);
            if (!step.detail.isEmpty())
                title += QStringLiteral(" (") + step.detail + u')';
            h += cell(title);
        }
        if (!r) {
            h += cell(QString()) + cell(QString()) + cell(QString())
                + verdictCell(CheckReport::noAnswerWord(m_idioma), CheckReport::noAnswerColour());
            if (!m_c.isEmpty())
                h += cell(QString());
            return h + QStringLiteral("</tr>");
        }
        h += cell(r->name) + cell(r->caption) + cell(r->deviation.toString())
            + verdictCell(CheckReport::verdictWord(r->verdict, m_idioma), CheckReport::verdictColour(r->verdict));
        if (!m_c.isEmpty()) {
            const std::optional<JudgedRow> before = m_c.row(step.key, r->name);
            h += before ? QStringLiteral("<td bgcolor=\"%1\">%2</td>")
                              .arg(CheckReport::verdictColour(before->verdict).name(), esc(before->caption))
                        : cell(QStringLiteral("-"));
        }
        return h + QStringLiteral("</tr>");
    }

    QString failures() const
    {
        QString rows;
        for (const CheckLine &line : m_r.failuresFirst()) {
            if (line.row && line.row->verdict != Verdict::Fail)
                break;
            rows += row(*line.step, line.row, true);
        }
        if (rows.isEmpty()) {
            const QString key = m_r.anyJudged() ? QStringLiteral("Nenhuma falha") : QStringLiteral("Nada pôde ser julgado");
            return QStringLiteral("<p>%1</p>").arg(esc(t(key)));
        }
        return QStringLiteral("<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">") + headRow(true) + rows
            + QStringLiteral("</table>");
    }

    QString stepTable(const CheckStepResult &step) const
    {
        QString title = CheckSteps::title(step.key, m_r.model, m_idioma);
        if (!step.detail.isEmpty())
            title += QStringLiteral(" (") + step.detail + u')';
        QString h = QStringLiteral("<h3>%1</h3>").arg(esc(title));
        if (!step.problem.isEmpty())
            h += QStringLiteral("<p>%1</p>").arg(esc(step.problem));
        h += QStringLiteral("<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">") + headRow(false);
        if (step.outcome == CheckStepResult::Outcome::NoAnswer)
            h += row(step, nullptr, false);
        for (const JudgedRow &r : step.rows)
            h += row(step, &r, false);
        return h + QStringLiteral("</table>");
    }

    const CheckResult &m_r;
    const CheckComparison &m_c;
    quint8 m_idioma;
};

} // namespace

namespace CheckReport {

QString verdictWord(Verdict verdict, quint8 idioma)
{
    switch (verdict) {
    case Verdict::Pass: return Texts::Traduz(QStringLiteral("APROVADO"), idioma);
    case Verdict::Fail: return Texts::Traduz(QStringLiteral("REPROVADO"), idioma);
    case Verdict::None: break;
    }
    return Texts::Traduz(QStringLiteral("não julgado"), idioma);
}

QString noAnswerWord(quint8 idioma)
{
    return Texts::Traduz(QStringLiteral("SEM RESPOSTA"), idioma);
}

QColor verdictColour(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Pass: return QColor(0xc0, 0xff, 0xc0);
    case Verdict::Fail: return QColor(0xff, 0x90, 0x90);
    case Verdict::None: break;
    }
    return QColor(Qt::white);
}

QColor noAnswerColour()
{
    return QColor(0xff, 0xc8, 0x70);
}

QString html(const CheckResult &result, const CheckComparison &comparison, quint8 idioma)
{
    return Builder(result, comparison, idioma).build();
}

QString write(const QString &path, const CheckResult &result, const CheckComparison &comparison, quint8 idioma)
{
    QTextDocument document;
    document.setHtml(html(result, comparison, idioma));
    if (QFileInfo(path).suffix().compare(QLatin1String("pdf"), Qt::CaseInsensitive) == 0) {
        {
            QFile probe(path);
            if (!probe.open(QIODevice::WriteOnly))
                return QStringLiteral("cannot write %1: %2").arg(path, probe.errorString());
        }
        QPdfWriter pdf(path);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setTitle(Texts::Traduz(QStringLiteral("Checagem da placa"), idioma) + u' ' + result.serial);
        pdf.setCreator(QStringLiteral("Pelorin Vekto ") + result.version);
        document.print(&pdf);
        return {};
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
    file.write(document.toHtml().toUtf8());
    if (!file.flush())
        return QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
    return {};
}

} // namespace CheckReport
