#include "Tigris.h"

#include "Session.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {
// Rows read only on the boards with a second bus.
const QStringList SecondBusControls = {QStringLiteral("VBus_V1"), QStringLiteral("VBus_V2"), QStringLiteral("lbVldo"),
                                       QStringLiteral("lbvntc")};
} // namespace

Tigris::Tigris(const ScreenContext &context, QWidget *parent) : ChipScreen(context, Chip::Tigris, parent)
{
    setWindowTitle(QStringLiteral("Tigris - Pelorin Vekto"));
    m_frame = new QFrame(this);
    m_frame->setObjectName(QStringLiteral("TiFrameVbusX"));
    m_frame->setFrameShape(QFrame::StyledPanel);
    auto *frameColumn = new QVBoxLayout(m_frame);
    frameColumn->addWidget(addLabel(QStringLiteral("lb_VBus2"), m_frame));
    m_frameGrid = new QGridLayout;
    frameColumn->addLayout(m_frameGrid);
    mainColumn()->addWidget(m_frame);
    setUp();
}

QGridLayout *Tigris::gridFor(const ChipRow &row)
{
    return SecondBusControls.contains(row.control) ? m_frameGrid : mainGrid();
}

void Tigris::addControls()
{
    renameLabel(QStringLiteral("lbNome_VBus_V"), QStringLiteral("lb_VBus1"));
    // The bus current is one figure for both ports; it is repeated beside each of them.
    mainGrid()->addWidget(addLabel(QStringLiteral("VBus_A1"), this), 0, 2);
    m_frameGrid->addWidget(addLabel(QStringLiteral("VBus_A2"), m_frame), 0, 2);
}

void Tigris::layoutForModel()
{
    const bool second = ChipTables::hasSecondVbus(session().modelo());
    m_frame->setVisible(second);
    label(QStringLiteral("VBus_A1"))->setVisible(second); // one bus: its current is already shown
    label(QStringLiteral("lb_VBus2"))->setVisible(second);
    label(QStringLiteral("lb_VBus1"))->setText(second ? QStringLiteral("VBUS 1") : QStringLiteral("VBUS"));
}

void Tigris::retranslateExtra()
{
    layoutForModel();
    label(QStringLiteral("lb_VBus2"))->setText(QStringLiteral("VBUS 2"));
}
