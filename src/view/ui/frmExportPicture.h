#pragma once

#include "shared/ui/secondary_window.h"
#include "view/draw/picture_export.h"

class QRadioButton;

namespace wayscribe {

// File, Export Map Picture: asks whether the picture shows the whole world
// or the part in view, each with its size in pixels. OK closes the window
// and hands the choice on; Cancel and Escape just close it.
class frmExportPicture : public SecondaryWindow {
    Q_OBJECT
public:
    frmExportPicture(QSize worldPixels, QSize viewPixels, QWidget *mainWindow);

signals:
    void exportChosen(wayscribe::ExportPart part);

private:
    QRadioButton *optWorld = nullptr;
    QRadioButton *optView = nullptr;
};

} // namespace wayscribe
