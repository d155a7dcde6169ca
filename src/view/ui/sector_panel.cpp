#include "view/ui/sector_panel.h"

#include "model/text.h"
#include "shared/ui/labelled_fields.h"
#include "shared/ui/qt_text.h"
#include "view/sector_info.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace wayscribe {

SectorPanel::SectorPanel(QWidget *parent) : QGroupBox("Sector", parent)
{
    setObjectName("Frame2");
    auto *form = new QFormLayout(this);
    Xbox = readOnlyBox("Xbox", this);
    Ybox = readOnlyBox("Ybox", this);
    // One label for the two boxes: each box says which of the two it is.
    Xbox->setAccessibleName("Co-odinates: X");
    Ybox->setAccessibleName("Co-odinates: Y");
    auto *coords = new QHBoxLayout;
    coords->addWidget(Xbox);
    coords->addWidget(Ybox);
    form->addRow(buddyLabel("lblCoordinates", "Co-odinates:", Xbox, this), coords);
    terbox = readOnlyBox("terbox", this);
    form->addRow("Terrain:", terbox);
    mpbox = readOnlyBox("mpbox", this);
    form->addRow("M.P:", mpbox);
    citybox = readOnlyBox("citybox", this);
    form->addRow("Settlement:", citybox);
    citynumbox = readOnlyBox("citynumbox", this);
    form->addRow("Number:", citynumbox);
    txtCityState = readOnlyBox("txtCityState", this);
    form->addRow("City State:", txtCityState);
    txtNoteBox = new QPlainTextEdit(this);
    txtNoteBox->setObjectName("txtNoteBox");
    txtNoteBox->setReadOnly(true);
    txtNoteBox->setMinimumHeight(48);
    form->addRow("Notes:", txtNoteBox);
}

void SectorPanel::reset()
{
    terbox->setText("Unknown");
    mpbox->setText("0");
}

void SectorPanel::showSector(const World &world, int x, int y, int moveMode)
{
    const SectorInfo info = describeSector(world, x, y, moveMode);
    Xbox->setText(toQString(info.x));
    Ybox->setText(toQString(info.y));
    terbox->setText(toQString(info.terrain));
    mpbox->setText(toQString(info.movementPoints));
    txtNoteBox->setPlainText(toQString(info.note));
    citybox->setText(toQString(info.settlementName));
    citynumbox->setText(toQString(info.settlementNumber));
    txtCityState->setText(toQString(info.cityState));
}

void SectorPanel::showCoordinates(int x, int y)
{
    if (x > 0)
        Xbox->setText(toQString(formatGeneral(x)));
    if (y > 0)
        Ybox->setText(toQString(formatGeneral(y)));
}

} // namespace wayscribe
