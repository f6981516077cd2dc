#include "VCores.h"

RailScreenKind VCores::kind()
{
    RailScreenKind k;
    k.screenName = QStringLiteral("VCores");
    k.tipo = Tipo;
    k.screenId = QStringLiteral("16");
    k.loadOrder = MasterFilter::Order::Malha;
    k.orderMalha = MasterFilter::Order::ModeloMalha;
    k.orderIc = MasterFilter::Order::CiMalha;
    k.chipFilter = true;
    k.noteKeys = {QStringLiteral("* Tensões de malhas VAR apresentam variações constantes de valores")};
    k.title = QStringLiteral("VCore");
    return k;
}

VCores::VCores(const ScreenContext &context, QWidget *parent) : RailScreen(context, kind(), parent)
{
}
