#pragma once
// The Tristar readout: the three supply rails of the USB/accessory interface chip, read from the
// PMU's self test. Newer boards carry a Hydra chip in its place; the IC screen opens this screen
// with setHydra(true) for them, which only changes the title.

#include "ChipScreen.h"

class Tristar : public ChipScreen
{
    Q_OBJECT
    Q_PROPERTY(bool hydra READ hydra WRITE setHydra)
public:
    explicit Tristar(const ScreenContext &context, bool hydra = false, QWidget *parent = nullptr);

    bool hydra() const { return m_hydra; }
    // Titles the screen "Hydra - Pelorin Vekto" (true) or "Tristar - Pelorin Vekto" (false).
    void setHydra(bool hydra);

protected:
    void addControls() override;
    void resetExtra() override;
    void paintExtra(const ChipResult &result) override;
    void retranslateExtra() override;

private:
    bool m_hydra = false;
};
