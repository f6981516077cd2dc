#pragma once
// The Acorn readout: the power chip that only "IP X" boards carry, with two PMU bucks it depends
// on. Still a preview, which its completion label says. The console is mirrored live into the
// log while the reading runs.

#include "ChipScreen.h"

class Acorn : public ChipScreen
{
    Q_OBJECT
public:
    explicit Acorn(const ScreenContext &context, QWidget *parent = nullptr);

protected:
    bool refuse() override;
    void addControls() override;
    void resetExtra() override;
    void paintExtra(const ChipResult &result) override;
    void retranslateExtra() override;
};
