#pragma once
// What the VCore and the Buck/LDO screens share: one "pmuadc --read all" per reading, every
// reference rail of the model read out of the answer, written back into table Master in one go
// and shown in a grid beside the three recorded readings. The two screens only differ in their
// rail class, screen identifier, grid orders and notes, which they hand in as a RailScreenKind.

#include "DatabaseRecords.h"
#include "RailEngine.h"
#include "TestScreen.h"

#include <QTimer>
#include <memory>

class Database;
class QSqlQueryModel;
class RailOriginModel;

namespace Ui { class RailScreen; }

struct RailScreenKind
{
    QString screenName;           // "VCores", "BuckLdo"
    int tipo = 0;                 // rail class of the Master rows
    QString screenId;             // the screen identifier of the exchange
    MasterFilter::Order loadOrder;
    MasterFilter::Order orderMalha;
    MasterFilter::Order orderIc;
    bool chipFilter = false;      // cbICs filters the grid
    QStringList noteKeys;         // notes under the grid
    QString title;                // dictionary key of the window title
};

class RailScreen : public TestScreen
{
    Q_OBJECT
public:
    static constexpr int Timer1IntervalMs = 500;
    static constexpr int Timer2IntervalMs = 750;
    static constexpr int TimerBarraIntervalMs = 50;
    // Beyond the longest exchange (50 slices of 500 ms): a wait that long is given up.
    static constexpr int Timer1TickLimit = 80;

    RailScreen(const ScreenContext &context, const RailScreenKind &kind, QWidget *parent = nullptr);
    ~RailScreen() override;

    void retranslate() override;
    // Wide enough for the seven grid columns side by side, tall enough for a model's rails.
    QSize sizeHint() const override { return QSize(900, 640).expandedTo(TestScreen::sizeHint()); }

    // The read button's action, also started by the decimals and chip choices.
    void ExecutaLeitura();
    void IniciaLeitura();
    // Reads the console text of the finished exchange into Master.
    void ProcessaLeituras();
    void LimpaLeituras();
    void LimpaLeiturasExterno() { LimpaLeituras(); }
    void MontaConsultaGrade();
    // Points the grid at the model's rails of this class without sending anything.
    void PrePesquisa();
    // The same grid on the model's NAND rails with the chip choice on "NAND", for the NAND screen.
    void PrePesquisaNand();

    // btGravar(slot) and btExcluir(slot), slot 1 to 3.
    void gravar(int slot);
    void excluir(int slot);
    // btAprender: the shown rails' references become the median of their recorded slots.
    // btDesfazer: the model's references and origins as they were before its last learning.
    void aprender();
    void desfazer();

    void onTimer1();
    void onTimer2();
    void onTimerBarra();

    QSqlQueryModel *Data1() const { return m_data1; }
    QTimer &timer1() { return m_timer1; }
    QTimer &timer2() { return m_timer2; }
    QTimer &timerBarra() { return m_timerBarra; }
    bool readingUnderWay() const { return m_reading; }
    bool readingsSaved() const { return m_saved; }
    RailSettings settings() const;

    // Opens another screen by its name and returns it: Botao1 the VCore screen, Botao2 the buck
    // self test, Botao3 the VCore screen on the NAND rails. Only the screens `available` accepts
    // get their button.
    void setScreenOpener(std::function<QWidget *(const QString &screen)> opener,
                         const std::function<bool(const QString &screen)> &available = {});
    // Chooses a chip in cbICs, as the technician would (screens with the chip filter only).
    void showChip(const QString &chip);

private:
    MasterFilter gridFilter() const;
    void bindGrid(const MasterFilter &filter);
    void decimalsChosen(int combo, const QString &value);
    void chipChosen(const QString &chip);
    void finishWaiting();
    void restartIfIdle();
    void storeFailed();
    QString slotName(int slot) const;
    void keepReadings();
    void restoreReadings();
    void showOrigins();

    std::unique_ptr<Ui::RailScreen> ui;
    RailScreenKind m_kind;
    std::unique_ptr<Database> m_db; // one connection for the bound grid and the writes
    QSqlQueryModel *m_data1 = nullptr;
    RailOriginModel *m_origins = nullptr;
    MasterFilter m_shownFilter; // the rows the grid shows: what Gravar and Excluir act on
    QList<RailReading> m_keptReadings; // the readings wiped at the start of the running reading
    QTimer m_timer1;
    QTimer m_timer2;
    QTimer m_timerBarra;
    int m_timer1Ticks = 0;
    bool m_reading = false;
    bool m_saved = false;
    bool m_loading = true;
    std::function<QWidget *(const QString &)> m_opener;
};
