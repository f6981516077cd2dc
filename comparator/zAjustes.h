#pragma once
// Maintenance of recorded answers away from the phone: one command's recorded answer for a model
// and for its "Plus" variant side by side, to edit, to mask the texts that identify one board,
// and to copy from one side to the other. It works on Config.vkt alone and sends nothing.

#include "TestScreen.h"

#include <memory>

namespace Ui {
class zAjustes;
}
class BoundRecordView;
class ConsoleTextEdit;
class Database;

class zAjustes : public TestScreen
{
    Q_OBJECT
public:
    explicit zAjustes(const ScreenContext &ctx, QWidget *parent = nullptr);
    ~zAjustes() override;

    void retranslate() override;

    // Re-points both sides at the chosen model and command.
    void selectionChanged();
    // btAtualizar: both sides, left first; "Salvo " and the time when both were written.
    bool save();
    void maskLeft();  // Command1
    void maskRight(); // Command3
    void addMaskText(); // Command2
    void copyLeftToRight(); // Command4
    void copyRightToLeft(); // Command5

private:
    void fillCommandList();
    void maskSide(ConsoleTextEdit *box);
    bool saveSide(BoundRecordView *view, ConsoleTextEdit *box);

    std::unique_ptr<Ui::zAjustes> ui;
    std::unique_ptr<Database> m_db;
    BoundRecordView *m_data1 = nullptr;
    BoundRecordView *m_data2 = nullptr;
};
