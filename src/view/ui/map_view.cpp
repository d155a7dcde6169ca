#include "view/ui/map_view.h"

#include "model/program_state.h"
#include "model/world.h"
#include "view/draw/click_drawing.h"
#include "view/draw/map_drawing.h"
#include "view/empty_world.h"
#include "view/map_brush.h"
#include "view/minimap_geometry.h"
#include "view/ui/map_picture.h"
#include "view/view_navigation.h"

#include <QGridLayout>
#include <QScrollBar>

#include <algorithm>

namespace wayscribe {

MapView::MapView(const World &world, ProgramState &state, const TileSheet &sheet, QWidget *parent)
    : QWidget(parent), world_(world), state_(state), sheet_(sheet)
{
    setObjectName("mapView");
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    Picture1 = new MapPicture(this);
    hscroll = new QScrollBar(Qt::Horizontal, this);
    hscroll->setObjectName("hscroll");
    hscroll->setAccessibleName("Scroll the map east and west");
    vscroll = new QScrollBar(Qt::Vertical, this);
    vscroll->setObjectName("vscroll");
    vscroll->setAccessibleName("Scroll the map north and south");
    grid->addWidget(Picture1, 0, 0);
    grid->addWidget(vscroll, 0, 1);
    grid->addWidget(hscroll, 1, 0);

    connect(Picture1, &MapPicture::resized, this, &MapView::measure);
    connect(Picture1, &MapPicture::pointerMoved, this, &MapView::Picture1_MouseMove);
    connect(Picture1, &MapPicture::pressed, this, &MapView::Picture1_MouseDown);
    connect(Picture1, &MapPicture::clicked, this, &MapView::Picture1_Click);
    connect(Picture1, &MapPicture::zoomWheel, this,
            [this](int steps, QPointF pixel) { zoomTo(zoom() + steps, pixel); });
    connect(Picture1, &MapPicture::scrollRequested, this, [this](int dx, int dy, bool byHalfViews) {
        // Moving the scroll bars runs their own change handlers.
        hscroll->setValue(hscroll->value() + dx * (byHalfViews ? hscroll->pageStep() : 1));
        vscroll->setValue(vscroll->value() + dy * (byHalfViews ? vscroll->pageStep() : 1));
    });
    connect(hscroll, &QScrollBar::valueChanged, this, &MapView::hscroll_Change);
    connect(vscroll, &QScrollBar::valueChanged, this, &MapView::vscroll_Change);
}

void MapView::measure()
{
    if (window()->isMinimized())
        return;
    // Growing the window pulls the origin back so the view never runs past
    // the world's last sector.
    fitView(state_.view, Picture1->width(), Picture1->height(), zoom());
    Picture1->setZoom(zoom());
    Picture1->clearBuffer();
    redraw();
}

int MapView::zoom() const
{
    return std::clamp(state_.options.desktop.zoom, 1, kMaxZoom);
}

void MapView::zoomTo(int zoom, std::optional<QPointF> anchor)
{
    zoom = std::clamp(zoom, 1, kMaxZoom);
    if (zoom == this->zoom() || state_.document.fileBusy)
        return;
    const QPointF at = anchor.value_or(QPointF(Picture1->width() / 2.0, Picture1->height() / 2.0));
    zoomView(state_.view, Picture1->width(), Picture1->height(), this->zoom(), zoom, at.x(), at.y());
    state_.options.desktop.zoom = zoom;
    Picture1->setZoom(zoom);
    Picture1->clearBuffer();
    redraw();
    emit zoomChanged(zoom);
}

void MapView::syncScrollBars()
{
    ViewState &view = state_.view;
    view.scrollBusy = 1;
    hscroll->setMaximum(largestViewOrigin(view.viewCols));
    vscroll->setMaximum(largestViewOrigin(view.viewRows));
    hscroll->setPageStep(std::max(1, view.viewCols / 2));
    vscroll->setPageStep(std::max(1, view.viewRows / 2));
    vscroll->setValue(view.viewTop);
    hscroll->setValue(view.viewLeft);
    view.scrollBusy = 0;
}

void MapView::redraw()
{
    syncScrollBars();
    state_.view.fullRedraw = 1;
    if (Refresh_Map(Picture1->backBuffer(), minimap_, world_, state_, sheet_)) {
        Picture1->update();
        emit minimapRedrawn(minimap_.image);
    }
    state_.view.fullRedraw = 0;
    showOverlays();
}

void MapView::showOverlays()
{
    const ViewState &view = state_.view;
    const Selections &selection = state_.selection;
    const int column = selection.selX - view.viewLeft;
    const int row = selection.selY - view.viewTop;
    const int side = sectorPixels(zoom());
    if (selection.selX != 0 && selection.selY != 0 && column >= 1 && row >= 1 && column <= view.viewCols &&
        row <= view.viewRows)
        Picture1->setOutline(QRect((column - 1) * side, (row - 1) * side, side, side));
    else
        Picture1->setOutline(std::nullopt);
    Picture1->setHintVisible(worldIsEmpty(world_));
}

void MapView::showClick(const MapHit &hit, const SectorRepaint &repaint)
{
    QImage &picture = Picture1->backBuffer();
    drawSectorRepaint(picture, minimap_, world_, state_, sheet_, hit.x, hit.y, repaint);
    finishMapClick(picture, minimap_, world_, state_);
    Picture1->update();
    emit minimapRedrawn(minimap_.image);
    showOverlays();
}

void MapView::centreOnMinimapPoint(double x, double y)
{
    if (state_.document.fileBusy)
        return;
    moveViewToMinimapPoint(state_.view, x, y);
    redraw();
}

void MapView::Picture1_MouseMove(QPoint pixel, bool buttonHeld)
{
    // With a button held the boxes keep what they show.
    if (buttonHeld)
        return;
    if (const std::optional<MapHit> hit = hitTest(state_.view, pixel.x(), pixel.y(), zoom())) {
        hoverX_ = hit->x;
        hoverY_ = hit->y;
    }
    emit sectorHovered(hoverX_, hoverY_);
}

void MapView::Picture1_MouseDown(int button, QPoint pixel)
{
    lastButton_ = button;
    lastPress_ = pixel;
}

void MapView::Picture1_Click()
{
    if (const std::optional<MapHit> hit = hitTest(state_.view, lastPress_.x(), lastPress_.y(), zoom()))
        emit sectorClicked(*hit, lastButton_);
}

void MapView::hscroll_Change(int value)
{
    scrolledTo(state_.view.viewLeft, value, state_.view.viewCols);
}

void MapView::vscroll_Change(int value)
{
    scrolledTo(state_.view.viewTop, value, state_.view.viewRows);
}

void MapView::scrolledTo(std::int16_t &origin, int value, int visible)
{
    if (state_.view.scrollBusy)
        return;
    origin = clampedViewOrigin(value, visible);
    if (!state_.document.fileBusy)
        redraw();
}

} // namespace wayscribe
