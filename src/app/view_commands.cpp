// The View menu's zoom items and File, Export Map Picture.
#include "app/Orvens_Mapper.h"

#include "app/command_table.h"
#include "app/window_host.h"
#include "model/program_state.h"
#include "storage/options_file.h"
#include "view/draw/picture_export.h"
#include "view/hit_test.h"
#include "view/ui/frmExportPicture.h"
#include "view/ui/map_view.h"

#include <QAction>
#include <QActionGroup>

namespace wayscribe {

namespace {
std::string zoomItem(int zoom)
{
    return "mnuViewZoom" + std::to_string(zoom);
}
} // namespace

void Orvens_Mapper::groupZoomCommands()
{
    auto *levels = new QActionGroup(this);
    for (int zoom = 1; zoom <= kMaxZoom; ++zoom)
        levels->addAction(commands_->action(zoomItem(zoom)));
    // Plus needs Shift on many keyboards: Ctrl with the key that carries it
    // zooms in too.
    commands_->action("mnuViewZoomIn")
        ->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    // The menu, the keys and Ctrl with the wheel all end here.
    connect(mapView_, &MapView::zoomChanged, this, [this] {
        writeOptions(state_, platform_);
        showZoom();
    });
}

void Orvens_Mapper::showZoom()
{
    const int zoom = mapView_->zoom();
    commands_->action(zoomItem(zoom))->setChecked(true);
    commands_->action("mnuViewZoomIn")->setEnabled(zoom < kMaxZoom);
    commands_->action("mnuViewZoomOut")->setEnabled(zoom > 1);
}

void Orvens_Mapper::openExportPicture()
{
    const auto pixels = [this](ExportPart part) {
        const SectorArea area = exportArea(state_.view, part);
        return QSize(area.cols, area.rows) * kTilePixels;
    };
    auto *window = new frmExportPicture(pixels(ExportPart::WholeWorld), pixels(ExportPart::View), this);
    connect(window, &frmExportPicture::exportChosen, this,
            [this](ExportPart part) { exportMapPicture(world_, state_, sheet_, platform_, part); });
    host_->open(window);
}

} // namespace wayscribe
