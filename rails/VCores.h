#pragma once
// The core and processor rails (class 0) of the selected model against their references, with
// a chip filter. Everything but its kind lives in RailScreen.

#include "RailScreen.h"

class VCores : public RailScreen
{
    Q_OBJECT
public:
    static constexpr int Tipo = 0;
    explicit VCores(const ScreenContext &context, QWidget *parent = nullptr);
    static RailScreenKind kind();
};
