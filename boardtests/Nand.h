#pragma once
// The NAND memory tests: the chip's unique identifier, its size, its information block and the
// configuration list stored on it, each judged by whether the phone answered it properly, and
// the size class read once when the screen opens on a connected phone. The rules live in
// NandEngine; this screen sends, waits with its two timers and paints.

#include "TestScreen.h"
#include "Verdict.h"

#include <QTimer>
#include <functional>
#include <memory>

namespace Ui { class Nand; }
class QPushButton;
class Shell;

class Nand : public TestScreen
{
    Q_OBJECT
public:
    static constexpr const char *ScreenId = "4";
    // The tick limits are fixed (45 and 30); at these intervals the status gives up 4.5 s after
    // the answer ended, and the size reading waits 15 s, beyond the longest "nandsize" answer.
    static constexpr int TimerStatusIntervalMs = 100;
    static constexpr int TimerTamanhoIntervalMs = 500;
    static constexpr const char *PdfFile = "xErrosNand.pdf";

    // `openScreen` opens another screen of the main window by name and returns it (the NAND
    // rails open in "VCores"); without it the rails button is hidden.
    using ScreenOpener = std::function<QWidget *(const QString &name)>;
    Nand(const ScreenContext &context, Shell &shell, ScreenOpener openScreen = {}, QWidget *parent = nullptr);
    ~Nand() override;

    void retranslate() override;

    // btBl(index), 0 to 4.
    void btBlClick(int index);
    void btPdfClick();

    void onTimerStatus();
    void onTimerTamanho();

    QTimer &timerStatus() { return m_timerStatus; }
    QTimer &timerTamanho() { return m_timerTamanho; }
    int testMode() const { return m_mode; }

private:
    void handOver(const QString &answer);
    void showVerdict(Verdict verdict);
    void stopWaiting();
    void openRails();

    std::unique_ptr<Ui::Nand> ui;
    Shell &m_shell;
    ScreenOpener m_openScreen;
    QList<QPushButton *> m_btBl;
    QTimer m_timerStatus;
    QTimer m_timerTamanho;
    int m_mode = -1;
    int m_statusTicks = 0;
    int m_sizeTicks = 0;
};
