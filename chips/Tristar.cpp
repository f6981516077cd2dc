#include "Tristar.h"

#include <QLabel>
#include <QVBoxLayout>

Tristar::Tristar(const ScreenContext &context, bool hydra, QWidget *parent)
    : ChipScreen(context, Chip::Tristar, parent), m_hydra(hydra)
{
    setUp();
}

void Tristar::setHydra(bool hydra)
{
    m_hydra = hydra;
    setWindowTitle(m_hydra ? QStringLiteral("Hydra - Pelorin Vekto") : QStringLiteral("Tristar - Pelorin Vekto"));
}

void Tristar::addControls()
{
    QLabel *status = addLabel(QStringLiteral("lbStatus"));
    QFont big = status->font();
    big.setBold(true);
    big.setPointSize(big.pointSize() + 4);
    status->setFont(big);
    mainColumn()->insertWidget(2, status);
    mainColumn()->insertWidget(3, addLabel(QStringLiteral("lbStatus2")));
}

void Tristar::resetExtra()
{
    label(QStringLiteral("lbStatus"))->clear();
    label(QStringLiteral("lbStatus2"))->hide();
}

void Tristar::paintExtra(const ChipResult &result)
{
    // "NORMAL" stays written; a failed rail turns it from green to black.
    QLabel *status = label(QStringLiteral("lbStatus"));
    status->setText(Traduz(QStringLiteral("NORMAL")));
    paintText(status, result.anyFailed() ? TextBlack : TextGreen);
    label(QStringLiteral("lbStatus2"))->show();
}

void Tristar::retranslateExtra()
{
    setHydra(m_hydra);
    label(QStringLiteral("lbStatus2"))->setText(Traduz(QStringLiteral("ANALISE COMPLETA")));
    QLabel *status = label(QStringLiteral("lbStatus"));
    if (!status->text().isEmpty())
        status->setText(Traduz(QStringLiteral("NORMAL")));
}
