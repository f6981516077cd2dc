#pragma once
// The additional tests: the Tristar port controller's readouts and the DRAM memory tests, each
// answer shown beside the one recorded from a known-good board of the same model, plus the
// panic-log guide and the battery screen. The rules live in OutrosEngine; this screen sends,
// waits and paints.

#include "TestScreen.h"
#include "Verdict.h"

#include <QMap>
#include <QTimer>
#include <functional>
#include <memory>

namespace Ui { class Outros; }
class BoundRecordView;
class Database;
class QPushButton;
class Shell;

class Outros : public TestScreen
{
    Q_OBJECT
public:
    static constexpr const char *ScreenId = "17";
    // At this interval a missing answer is given up 11 s after the exchange ended.
    static constexpr int TimerStatusIntervalMs = 250;
    static constexpr int TimerAguardeIntervalMs = 500;
    static constexpr const char *PdfFile = "xPanicFull.pdf";

    // `openScreen` opens another screen of the main window by name (the battery screen);
    // without it the battery button is hidden.
    using ScreenOpener = std::function<QWidget *(const QString &name)>;
    Outros(const ScreenContext &context, Shell &shell, ScreenOpener openScreen = {}, QWidget *parent = nullptr);
    ~Outros() override;

    void retranslate() override;

    // btBl(index) for the indexes 1, 2, 5 and 6.
    void btBlClick(int index);
    void btPanicFullClick();
    void btBateriaClick();

    void onTimerStatus();
    void onTimerAguarde();

    QTimer &timerStatus() { return m_timerStatus; }
    QTimer &timerAguarde() { return m_timerAguarde; }
    int testMode() const { return m_mode; }
    QString keyWord() const { return m_keyWord; }

private:
    void handOver(const QString &answer);
    void showVerdict(Verdict verdict);
    void stopWaiting();
    void showStatusText(const QString &key);
    void updateDeviceLabel();
    QString testCaption(int mode) const;

    std::unique_ptr<Ui::Outros> ui;
    Shell &m_shell;
    ScreenOpener m_openScreen;
    std::unique_ptr<Database> m_db; // the connection of the comparator view
    BoundRecordView *m_data1 = nullptr;
    QMap<int, QPushButton *> m_btBl;
    QTimer m_timerStatus;
    QTimer m_timerAguarde;
    int m_mode = 0;
    QString m_keyWord;
    int m_statusTicks = 0;
};
