#pragma once
// The battery's properties as the phone reports them, beside the properties recorded from a
// known-good board of the same model. Nothing is judged here: charge and current change from
// one reading to the next, so the technician compares the two by eye.

#include "TestScreen.h"

#include <memory>

namespace Ui { class Bateria; }
class BoundRecordView;
class Database;

class Bateria : public TestScreen
{
    Q_OBJECT
public:
    // No identifier of the console hands over to a battery screen; "14" is the free one kept
    // for a further test screen with a hand-over.
    static constexpr const char *ScreenId = "14";

    explicit Bateria(const ScreenContext &context, QWidget *parent = nullptr);
    ~Bateria() override;

    void retranslate() override;

    // btBateria: reads the properties again.
    void btBateriaClick();

private:
    void executaLeitura();
    void handOver(const QString &answer);

    std::unique_ptr<Ui::Bateria> ui;
    std::unique_ptr<Database> m_db; // the connection of the comparator view
    BoundRecordView *m_data1 = nullptr;
};
