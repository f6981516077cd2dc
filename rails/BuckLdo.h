#pragma once
// The buck converter and LDO rails (class 2) of the selected model, kept in the order of Orig,
// with no chip filter. Everything but its kind lives in RailScreen.

#include "RailScreen.h"

class BuckLdo : public RailScreen
{
    Q_OBJECT
public:
    static constexpr int Tipo = 2;
    explicit BuckLdo(const ScreenContext &context, QWidget *parent = nullptr);
    static RailScreenKind kind();
};
