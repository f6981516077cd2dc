#include "Acorn.h"

#include "Dialogs.h"
#include "Session.h"

#include <QLabel>
#include <QVBoxLayout>

Acorn::Acorn(const ScreenContext &context, QWidget *parent) : ChipScreen(context, Chip::Acorn, parent)
{
    setWindowTitle(QStringLiteral("Acorn - Pelorin Vekto"));
    setUp();
}

bool Acorn::refuse()
{
    if (!refusesModel())
        return false;
    dialogs().Mensagem(this, QStringLiteral("SOMENTE_X"), session().idioma());
    return true;
}

void Acorn::addControls()
{
    mainColumn()->insertWidget(2, addLabel(QStringLiteral("lbStatus2")));
}

void Acorn::resetExtra()
{
    label(QStringLiteral("lbStatus2"))->hide();
}

void Acorn::paintExtra(const ChipResult &)
{
    label(QStringLiteral("lbStatus2"))->show();
}

void Acorn::retranslateExtra()
{
    label(QStringLiteral("lbStatus2"))->setText(Traduz(QStringLiteral("ANALISE COMPLETA")) + QStringLiteral(" * Beta"));
}
