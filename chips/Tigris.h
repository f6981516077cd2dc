#pragma once
// The Tigris charger readout: bus, battery and supply of the charger chip and its die
// temperature. The newer boards have a second USB bus, shown in a frame of its own.

#include "ChipScreen.h"

class QFrame;

class Tigris : public ChipScreen
{
    Q_OBJECT
public:
    explicit Tigris(const ScreenContext &context, QWidget *parent = nullptr);

protected:
    QGridLayout *gridFor(const ChipRow &row) override;
    void addControls() override;
    void layoutForModel() override;
    void retranslateExtra() override;

private:
    QFrame *m_frame = nullptr;
    QGridLayout *m_frameGrid = nullptr;
};
