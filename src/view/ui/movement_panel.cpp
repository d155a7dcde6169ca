#include "view/ui/movement_panel.h"

#include "shared/ui/labelled_fields.h"
#include "shared/ui/qt_text.h"
#include "view/movement_counter.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace wayscribe {

MovementPanel::MovementPanel(QWidget *parent) : QGroupBox("Movement points", parent)
{
    setObjectName("Frame4");
    auto *form = new QFormLayout(this);
    mpcbox = readOnlyBox("mpcbox", this);
    txtTotalMPs = readOnlyBox("txtTotalMPs", this);
    // One label for the two boxes: each box says which of the two it is.
    mpcbox->setAccessibleName("M.P Counter: movement points");
    txtTotalMPs->setAccessibleName("M.P Counter: squares");
    mpcbox->setToolTip("Movement points of the path");
    txtTotalMPs->setToolTip("Squares moved");
    auto *counts = new QHBoxLayout;
    counts->addWidget(mpcbox);
    counts->addWidget(txtTotalMPs);
    form->addRow(buddyLabel("lblCounter", "M.P Counter:", mpcbox, this), counts);
    chkHorses = checkBox("chkHorses", "Enable Horse Counter", false, this);
    form->addRow(chkHorses);
    cmdMPCommandClipboard = new QPushButton("Copy MP \"M\" command(s)\nto clipboard for pasting", this);
    cmdMPCommandClipboard->setObjectName("cmdMPCommandClipboard");
    cmdMPCommandClipboard->setAccessibleName("Copy MP \"M\" command(s) to clipboard for pasting");
    form->addRow(cmdMPCommandClipboard);
    showCounts({"0", "0"});

    connect(chkHorses, &QCheckBox::clicked, this, &MovementPanel::horseCounterClicked);
    connect(cmdMPCommandClipboard, &QPushButton::clicked, this, &MovementPanel::copyOrdersClicked);
}

void MovementPanel::showCounts(const CounterBoxes &boxes)
{
    mpcbox->setText(toQString(boxes.mpcbox));
    txtTotalMPs->setText(toQString(boxes.txtTotalMPs));
}

void MovementPanel::setHorseCounter(bool ticked)
{
    chkHorses->setChecked(ticked);
}

} // namespace wayscribe
