#include "BuckLdo.h"

RailScreenKind BuckLdo::kind()
{
    RailScreenKind k;
    k.screenName = QStringLiteral("BuckLdo");
    k.tipo = Tipo;
    k.screenId = QStringLiteral("15");
    k.loadOrder = MasterFilter::Order::Orig;
    k.orderMalha = MasterFilter::Order::ModeloOrig;
    k.orderIc = MasterFilter::Order::CiOrig;
    k.chipFilter = false;
    k.noteKeys = {QStringLiteral("* Tensões de malhas VAR apresentam variações constantes de valores"),
                  QStringLiteral("* Atenção malhas GPU e CÂMERA não apresentam valores significativos ou apresentam "
                                 "'Sem Medição' em Modo Purple")};
    k.title = QStringLiteral("Buck / Ldo");
    return k;
}

BuckLdo::BuckLdo(const ScreenContext &context, QWidget *parent) : RailScreen(context, kind(), parent)
{
}
