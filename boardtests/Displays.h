#pragma once
// Drives the phone's display backlight from the console so the technician can watch the panel:
// on, off, every level in turn, three fixed levels and a free level from the slider. Nothing in
// the answer is judged; it only shows in txtDados. Two buttons open the display power chip
// readouts through the main window.

#include "TestScreen.h"

#include <functional>
#include <memory>
#include <optional>

class AguardeLabel;
class QPushButton;

namespace Ui { class Displays; }

class Displays : public TestScreen
{
    Q_OBJECT
public:
    // The console takes a level in per cent; one step per per cent, ten per page.
    static constexpr int SliderMinimum = 0;
    static constexpr int SliderMaximum = 100;
    static constexpr int SliderPageStep = 10;
    static constexpr int ButtonCount = 8;

    explicit Displays(const ScreenContext &context, QWidget *parent = nullptr);
    ~Displays() override;

    void retranslate() override;

    // The console command of btBl(index) for 0..5; empty for the buttons that open screens.
    static QString command(int index);
    // The caption of btBl(index) for a model, from the translated key and its fixed suffix.
    static QString caption(int index, const QString &modelo, const std::function<QString(const QString &)> &traduz);
    // The backlight level command of the slider.
    static QString levelCommand(int level) { return QStringLiteral("bl -p ") + QString::number(level); }

    void btBl(int index);
    bool EnviaBacklight(int index);
    // The slider let go at `level` (or moved by keyboard).
    void Slider1Change(int level);

    // Opens "Acorn" or "Chestnut"; only the screens `available` accepts get their button.
    void setScreenOpener(std::function<void(const QString &screen)> opener,
                         const std::function<bool(const QString &screen)> &available = {});

    QTimer &timerAguarde();
    void onTimerAguarde();
    // The level released while another exchange ran, sent as soon as the console is free.
    std::optional<int> pendingLevel() const { return m_pendingLevel; }

private:
    QPushButton *button(int index) const;
    void send(const QString &command);
    void sendPendingLevel();

    std::unique_ptr<Ui::Displays> ui;
    AguardeLabel *m_aguarde = nullptr;
    std::function<void(const QString &)> m_opener;
    std::function<bool(const QString &)> m_available;
    std::optional<int> m_pendingLevel;
};
