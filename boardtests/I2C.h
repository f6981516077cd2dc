#pragma once
// The I2C bus test screen: probes one bus of the phone ("i2c -s N") or, in the automatic run,
// every bus the model offers in turn, and lists each expected device as answering or silent,
// with the connector that usually breaks a failing bus. The main window only copies the answer
// into txtDados; the screen's own wait timer notices it and judges through I2CEngine.

#include "I2CEngine.h"
#include "TestScreen.h"

#include <QMap>
#include <QTimer>
#include <memory>

class QLabel;
class QPushButton;
class Shell;

namespace Ui { class I2C; }

class I2C : public TestScreen
{
    Q_OBJECT
public:
    // One tick a second: the 30-tick give-up lies beyond the longest exchange (50 slices of
    // 500 ms), so a test is never abandoned while its answer is still coming in.
    static constexpr int Timer1IntervalMs = 1000;
    static constexpr int Timer1TickLimit = 30;
    static constexpr int TimerAutoIntervalMs = 300;
    static constexpr int TimerBarraIntervalMs = 50;
    static constexpr int TimerAguardeIntervalMs = 2000;
    static constexpr int BarraStep = 8;
    static constexpr int Images = 5;

    I2C(const ScreenContext &context, Shell &shell, QWidget *parent = nullptr);
    ~I2C() override;

    void retranslate() override;

    // btI2C(index): test one bus.
    void btI2C(int bus);
    // btAutoTeste: start the automatic run, or cancel it while it runs.
    void btAutoTeste();
    // btAprenderI2C: after a whole automatic run on a good board, the devices that answered
    // become the model's list, once the technician agreed to what is added and removed.
    void btAprenderI2C();
    // btPdf: open the model's schematic extract.
    void btPdf();
    // Lays out the bus buttons for the selected model.
    void layoutBuses();

    void onTimer1();
    void onTimerAuto();
    void onTimerBarra();
    void onTimerAguarde();

    QTimer &timer1() { return m_timer1; }
    QTimer &timerAuto() { return m_timerAuto; }
    QTimer &timerBarra() { return m_timerBarra; }
    QTimer &timerAguarde() { return m_timerAguarde; }
    bool autoRunning() const { return m_autoRunning; }

private:
    void probe(int bus);
    void judge();
    void finishAuto();
    void showNotice();
    void startBarra();
    void stopBarra();
    void noFailureFound();
    QPushButton *busButton(int bus) const;

    std::unique_ptr<Ui::I2C> ui;
    Shell &m_shell;
    QTimer m_timer1;
    QTimer m_timerAuto;
    QTimer m_timerBarra;
    QTimer m_timerAguarde;
    quint16 m_timer1Ticks = 0; // counted for the life of the screen, never reset
    quint8 m_currentBus = 0;
    I2CAutoRun m_run;
    bool m_autoRunning = false;
    QMap<int, QString> m_runAnswers; // the answer of every bus the running automatic run probed
    bool m_cancelCaption = false; // btAutoTeste reads "Cancelar": the next click cancels
    QList<QLabel *> m_ok;
    QList<QLabel *> m_no;
};
