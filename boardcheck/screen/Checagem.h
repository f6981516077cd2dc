#pragma once
// The board check screen: one button runs every test of the connected model, a bar names the
// step under way, and the list puts every failure first, then the rest grouped by step, each
// verdict in colour and in words. Earlier checks of the same board can be chosen to show their
// values beside the new ones, and the check can be saved as a report.

#include "BoardCheck.h"
#include "CheckHistory.h"
#include "TestScreen.h"

#include <memory>

namespace Ui { class Checagem; }

class Checagem : public TestScreen
{
    Q_OBJECT
public:
    explicit Checagem(const ScreenContext &context, QWidget *parent = nullptr);
    ~Checagem() override;

    void retranslate() override;

    void btChecarClick();
    void btCancelarClick();
    void btRelatorioClick();
    // The earlier check chosen in cbAnterior (0: none).
    void chooseEarlier(int index);

    const BoardCheck &check() const { return m_check; }
    const CheckComparison &comparison() const { return m_comparison; }

private:
    void onStep(int index, int total, const QString &key);
    void onFinished();
    void fillEarlier();
    void fillList();
    void showSituation();
    void setRunning(bool running);

    std::unique_ptr<Ui::Checagem> ui;
    BoardCheck m_check;
    CheckResult m_shown;
    CheckComparison m_comparison;
    QString m_storeProblem;
    bool m_haveResult = false;
};
