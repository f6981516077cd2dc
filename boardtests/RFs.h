#pragma once
// Switches the phone's radios (baseband, Bluetooth, GPS, Wi-Fi) on or off from the console and
// says whether each one answered. The main window only drops the answer into txtDados; the
// screen's own Timer1 watches that box and judges it with the radio engine, giving up without a
// verdict when nothing came.

#include "TestScreen.h"

#include <QTimer>
#include <functional>
#include <memory>

class AguardeLabel;
class QLabel;

namespace Ui { class RFs; }

class RFs : public TestScreen
{
    Q_OBJECT
public:
    static constexpr int Timer1IntervalMs = 500;
    static constexpr int TimerBarraIntervalMs = 50;
    // 30 ticks of 500 ms of an idle connection: the answer is given up after 15 s.
    static constexpr int Timer1TickLimit = 30;

    explicit RFs(const ScreenContext &context, QWidget *parent = nullptr);
    ~RFs() override;

    void retranslate() override;

    // The buttons of radio `index` (0 baseband, 1 Bluetooth, 2 GPS, 3 Wi-Fi).
    void btOn(int index);
    void btOff(int index);
    // Sends the switch-on command of a radio; false when nothing was sent.
    bool LigaRadio(int index);
    // Judges txtDados for the radio under test and paints the verdict.
    void AnalisaResposta();

    void onTimer1();
    void onTimerBarra();

    // btTensoesRF opens the RF reference screen through the main window.
    void setScreenOpener(std::function<void(const QString &screen)> opener);

    QTimer &timer1() { return m_timer1; }
    QTimer &timerBarra() { return m_timerBarra; }
    QTimer &timerAguarde();
    void onTimerAguarde();
    quint8 radio() const { return m_radio; }
    int timer1Ticks() const { return m_ticks; }

private:
    QLabel *background(quint8 radio) const;
    void paint(QLabel *label, const QColor &colour);
    void clearStatus();
    void finishWaiting();

    std::unique_ptr<Ui::RFs> ui;
    AguardeLabel *m_aguarde = nullptr;
    QTimer m_timer1;
    QTimer m_timerBarra;
    quint8 m_radio = 0;
    quint16 m_ticks = 0;
    bool m_judged = false; // lbStatus2 left its opening caption
    std::function<void(const QString &)> m_opener;
};
