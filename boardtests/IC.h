#pragma once
// The IC test screen, the hub for the chips around the charging port: it opens the Tigris and
// Tristar/Hydra readouts and runs the two quick checks of the interface chip (its data dump and
// its communication registers). The main window copies the answer into txtDados; TimerStatus
// notices it there and ICCheck judges it by its length.

#include "TestScreen.h"

#include <QTimer>
#include <functional>
#include <memory>

class Database;
class QSqlQueryModel;

namespace Ui { class IC; }

class IC : public TestScreen
{
    Q_OBJECT
public:
    // One tick a second: the 30-tick give-up lies beyond the longest exchange (about 25 s).
    static constexpr int TimerStatusIntervalMs = 1000;
    static constexpr int TimerStatusTickLimit = 30;
    static constexpr int TimerAguardeIntervalMs = 2000;

    // Opens a chip screen by name ("Tigris", "Tristar"); `hydra` asks the Tristar screen to
    // title itself for the Hydra chip.
    using ScreenOpener = std::function<void(const QString &name, bool hydra)>;

    IC(const ScreenContext &context, ScreenOpener opener, QWidget *parent = nullptr);
    ~IC() override;

    void retranslate() override;

    // btBl(index): check kind 1 sends "tristar -p", kind 2 the register read.
    void btBl(int index);
    void btTigris();
    void btTristar();

    void onTimerStatus();
    void onTimerAguarde();

    QTimer &timerStatus() { return m_timerStatus; }
    QTimer &timerAguarde() { return m_timerAguarde; }
    QSqlQueryModel *Data1() const { return m_data1; }

private:
    void startCheck();

    std::unique_ptr<Ui::IC> ui;
    ScreenOpener m_opener;
    std::unique_ptr<Database> m_db; // the placeholder comparator's connection
    QSqlQueryModel *m_data1 = nullptr;
    QTimer m_timerStatus;
    QTimer m_timerAguarde;
    quint16 m_ticks = 0; // counted for the life of the screen, never reset
    qint16 m_kind = 0;
    QString m_chip;
};
