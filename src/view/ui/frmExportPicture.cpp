#include "view/ui/frmExportPicture.h"

#include "shared/ui/labelled_fields.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace wayscribe {

namespace {
QString sizeText(QSize pixels)
{
    return QString(" (%1 x %2 pixels)").arg(pixels.width()).arg(pixels.height());
}
} // namespace

frmExportPicture::frmExportPicture(QSize worldPixels, QSize viewPixels, QWidget *mainWindow)
    : SecondaryWindow(mainWindow, "frmExportPicture", "Export Map Picture", Escape::Closes)
{
    auto *layout = new QVBoxLayout(this);
    auto *part = new QGroupBox("Which part of the map?", this);
    auto *choices = new QVBoxLayout(part);
    optWorld = new QRadioButton("The &whole world" + sizeText(worldPixels), part);
    optWorld->setObjectName("optWorld");
    optWorld->setChecked(true);
    optView = new QRadioButton("The part in &view" + sizeText(viewPixels), part);
    optView->setObjectName("optView");
    choices->addWidget(optWorld);
    choices->addWidget(optView);
    layout->addWidget(part);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    QPushButton *ok = pushButton("cmdOK", "OK", this);
    QPushButton *cancel = pushButton("cmdCancel", "Cancel", this);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    layout->addLayout(buttons);
    connect(ok, &QPushButton::clicked, this, [this] {
        const ExportPart chosen = optView->isChecked() ? ExportPart::View : ExportPart::WholeWorld;
        // The file dialog comes once this window is gone and the main window
        // takes clicks again.
        close();
        emit exportChosen(chosen);
    });
    connect(cancel, &QPushButton::clicked, this, &QWidget::close);
}

} // namespace wayscribe
