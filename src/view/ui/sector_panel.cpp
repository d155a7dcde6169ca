#include "view/ui/sector_panel.h"

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
    auto *coords = new QHBoxLayout;
    coords->addWidget(buddyLabel("lblX", "&X:", Xbox, this));
    coords->addWidget(Xbox);
    coords->addWidget(buddyLabel("lblY", "&Y:", Ybox, this));
    coords->addWidget(Ybox);
    form->addRow(coords);
    terbox = readOnlyBox("terbox", this);
    form->addRow("Terrain:", terbox);
    citybox = readOnlyBox("citybox", this);
    form->addRow("Settlement:", citybox);
    citynumbox = readOnlyBox("citynumbox", this);
    form->addRow("Number:", citynumbox);
    txtCityState = readOnlyBox("txtCityState", this);
    form->addRow("City-state:", txtCityState);
    txtNoteBox = new QPlainTextEdit(this);
    txtNoteBox->setObjectName("txtNoteBox");
    txtNoteBox->setReadOnly(true);
    txtNoteBox->setMinimumHeight(48);
    form->addRow("Note:", txtNoteBox);
}

void SectorPanel::reset()
{
    terbox->setText("Unknown");
}

void SectorPanel::showSector(const World &world, int x, int y)
{
    const SectorInfo info = describeSector(world, x, y);
    Xbox->setText(QString::number(x));
    Ybox->setText(QString::number(y));
    terbox->setText(toQString(info.terrain));
    txtNoteBox->setPlainText(toQString(info.note));
    citybox->setText(toQString(info.settlementName));
    citynumbox->setText(toQString(info.settlementNumber));
    txtCityState->setText(toQString(info.cityState));
}

void SectorPanel::showCoordinates(int x, int y)
{
    if (x > 0)
        Xbox->setText(QString::number(x));
    if (y > 0)
        Ybox->setText(QString::number(y));
}

} // namespace wayscribe
