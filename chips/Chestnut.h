#pragma once
// The Chestnut readout: the display power chip's LDOs, negative rail, input and boost. The
// touch controller can be switched off and on from here; the chip is then read again by itself
// so the technician sees the rails under both loads.

#include "ChipScreen.h"

#include <QTimer>

class Chestnut : public ChipScreen
{
    Q_OBJECT
public:
    static constexpr int Timer1IntervalMs = 500;
    // Beyond the longest exchange (50 slices of 500 ms): a wait that long is given up.
    static constexpr int Timer1TickLimit = 80;

    explicit Chestnut(const ScreenContext &context, QWidget *parent = nullptr);

    // btTouch: switches the touch controller and reads again once the phone is idle.
    void touch();
    void onTimer1();
    QTimer &timer1() { return m_timer1; }

protected:
    bool refuse() override;
    void addControls() override;
    void retranslateExtra() override;

private:
    QPushButton *m_btTouch = nullptr;
    // The action of the next press, which is also what the button says.
    QString m_touchCaption = QStringLiteral("Touch OFF");
    QTimer m_timer1;
    int m_timer1Ticks = 0;
};
