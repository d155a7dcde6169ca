#include "view/draw/click_drawing.h"

#include "model/program_state.h"
#include "model/world.h"
#include "view/draw/map_drawing.h"
#include "view/draw/minimap_drawing.h"
#include "view/draw/pixel_canvas.h"
#include "view/draw/road_lines.h"
#include "view/draw/tile_sheet.h"
#include "view/map_brush.h"
#include "view/sector_markers.h"

#include <QPainter>

namespace wayscribe {

void drawSectorRepaint(QImage &picture, Minimap &minimap, const World &world, const ProgramState &state,
                       const TileSheet &sheet, int x, int y, const SectorRepaint &repaint)
{
    if (repaint.tile == 0 || !isSectorIndex(x) || !isSectorIndex(y) || !prepareMapPicture(picture))
        return;
    const int c = x - state.view.viewLeft, r = y - state.view.viewTop;
    const QPoint at((c - 1) * TileSheet::kTileSize, (r - 1) * TileSheet::kTileSize);
    // Each painter ends before the road lines write the pixels themselves.
    {
        QPainter painter(&picture);
        drawTerrain(painter, sheet, repaint.tile, at);
    }
    if (repaint.roads)
        Draw_Roads(picture, world, x, y, c, r);
    if (repaint.noteMarker) {
        QPainter painter(&picture);
        drawNoteMarker(painter, sheet, noteMarkerOf(world.sector(x, y).note, state.options.extra), at);
    }
    recolourMinimapSector(minimap, world, x, y);
}

void finishMapClick(QImage &picture, Minimap &minimap, const World &world, const ProgramState &state)
{
    if (prepareMapPicture(picture)) {
        PixelCanvas canvas(picture);
        drawBorderLines(canvas, state.view);
    }
    Refresh_MiniMap(minimap, world, state);
}

} // namespace wayscribe
