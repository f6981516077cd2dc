#pragma once
// The buck converter outputs of the power management unit, read plainly ("buck") or through the
// device's own check of one buck ("buckcheck N"), listed one line per buck beside the same lines
// cut from a recorded known-good board of the model. The main window hands the answer over.

#include "BuckEngine.h"
#include "TestScreen.h"

#include <QTimer>
#include <memory>

class QListWidget;

namespace Ui { class BuckTeste; }

class BuckTeste : public TestScreen
{
    Q_OBJECT
public:
    static constexpr int TimerBarraIntervalMs = 50;
    static constexpr int LeituraIndex = 0; // btBl_0: "buck", every output
    static constexpr int TesteIndex = 1;   // btBl_1: "buckcheck N", one buck

    explicit BuckTeste(const ScreenContext &context, QWidget *parent = nullptr);
    ~BuckTeste() override;

    void retranslate() override;
    // Both buck lists side by side with their notes below.
    QSize sizeHint() const override { return QSize(820, 560).expandedTo(TestScreen::sizeHint()); }

    // btBl(index): sends the plain read or the check of the buck in Combo1.
    void btBl(int index);
    // Called with the answer in txtDados: fills both lists.
    void PreProcesso();
    // btOriginal: lists txtDados and txtComparador again.
    void Original();
    void onTimerBarra();

    QTimer &timerBarra() { return m_timerBarra; }
    int modoLeitura() const { return m_modo; }
    // The per-model note of the bucks that read 0.000 V in diagnostics mode on a good board.
    static QString infoBucks(const QString &modelo, const std::function<QString(const QString &)> &traduz);

private:
    void handOver(const QString &answer);
    void fill(QListWidget *list, const QString &answer);

    std::unique_ptr<Ui::BuckTeste> ui;
    QTimer m_timerBarra;
    quint8 m_modo = 1;
    QString m_command;
};
