#include "view/ui/movement_panel.h"

#include "shared/ui/labelled_fields.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

namespace wayscribe {

MovementPanel::MovementPanel(QWidget *parent) : QGroupBox("Movement points", parent)
{
    setObjectName("Frame4");
    auto *form = new QFormLayout(this);
    mpbox = readOnlyBox("mpbox", this);
    mpcbox = readOnlyBox("mpcbox", this);
    txtTotalMPs = readOnlyBox("txtTotalMPs", this);
    form->addRow("Sector:", mpbox);
    form->addRow("Squares:", mpcbox);
    form->addRow("Total:", txtTotalMPs);
    form->addRow(checkBox("chkHorses", "Enable Horse Counter", false, this));
    auto *cmdMPCommandClipboard = new QPushButton("Copy MP \"M\" command(s)\nto clipboard for pasting", this);
    cmdMPCommandClipboard->setObjectName("cmdMPCommandClipboard");
    cmdMPCommandClipboard->setAccessibleName("Copy MP \"M\" command(s) to clipboard for pasting");
    form->addRow(cmdMPCommandClipboard);
    setEnabled(false);
}

void MovementPanel::reset()
{
    mpcbox->setText("0");
    txtTotalMPs->setText("0");
    mpbox->setText("0");
}

} // namespace wayscribe
