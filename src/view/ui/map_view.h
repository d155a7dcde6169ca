#pragma once

#include "view/draw/minimap_drawing.h"
#include "view/hit_test.h"

#include <QWidget>

#include <cstdint>
#include <optional>

class QScrollBar;

namespace wayscribe {

class World;
struct ProgramState;
struct SectorRepaint;
class TileSheet;
class MapPicture;

// The map picture `Picture1` with its scroll bars `hscroll` and `vscroll`:
// measures how many sectors fit, keeps the scroll bars and the view origin
// in step, and redraws the map and the minimap picture.
class MapView : public QWidget {
    Q_OBJECT
public:
    MapView(const World &world, ProgramState &state, const TileSheet &sheet, QWidget *parent);

    MapPicture *picture() const { return Picture1; }
    const Minimap &minimap() const { return minimap_; }

    // The redraw protocol: the scroll bars follow the view origin (with
    // ScrollBusy set meanwhile), then FullRedraw := 1, Refresh_Map,
    // FullRedraw := 0.
    void redraw();

    // Measures how many whole sectors fit the picture at the zoom, keeps the
    // origin inside the world, and redraws.
    void measure();

    // The zoom the options hold: screen pixels a tile pixel takes, 1..4.
    int zoom() const;
    // Shows the map at `zoom` (kept inside 1..4), keeping the sector under
    // screen pixel `anchor` of the picture where it is, or else the middle of
    // the view. Ignored while a file job runs.
    void zoomTo(int zoom, std::optional<QPointF> anchor = std::nullopt);

    // What a map click draws: the clicked sector as `repaint` says (when it
    // says anything), then how every click ends: the border lines and the
    // whole minimap.
    void showClick(const MapHit &hit, const SectorRepaint &repaint);

    // A minimap click: the point goes to the middle of the view. Ignored
    // while a file job runs.
    void centreOnMinimapPoint(double x, double y);

signals:
    // The sector the status boxes show: the one under the pointer, or the
    // last one it was over.
    void sectorHovered(int x, int y);
    // A click on a sector: `button` 1 is the left button, 2 the right, 0 any other.
    void sectorClicked(const wayscribe::MapHit &hit, int button);
    // The minimap picture was drawn anew.
    void minimapRedrawn(const QImage &image);
    // The zoom changed; the options hold it already.
    void zoomChanged(int zoom);

private:
    void syncScrollBars();
    // What is shown over the drawn map: the selected sector's outline, and
    // the hint of how to begin while the map knows nothing.
    void showOverlays();
    void hscroll_Change(int value);
    void vscroll_Change(int value);
    // A scroll bar moved by the person (not by the program) moves the origin
    // and redraws, unless a file job runs.
    void scrolledTo(std::int16_t &origin, int value, int visible);
    void Picture1_MouseMove(QPoint pixel, bool buttonHeld);
    void Picture1_MouseDown(int button, QPoint pixel);
    void Picture1_Click();

    const World &world_;
    ProgramState &state_;
    const TileSheet &sheet_;
    Minimap minimap_;
    MapPicture *Picture1 = nullptr;
    QScrollBar *hscroll = nullptr;
    QScrollBar *vscroll = nullptr;
    int hoverX_ = 1; // HoverX, HoverY
    int hoverY_ = 1;
    int lastButton_ = 0; // LastButton
    QPoint lastPress_;
};

} // namespace wayscribe
