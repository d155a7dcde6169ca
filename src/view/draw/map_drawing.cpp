#include "view/draw/map_drawing.h"

#include "model/program_state.h"
#include "model/terrain.h"
#include "model/world.h"
#include "view/draw/minimap_drawing.h"
#include "view/draw/pixel_canvas.h"
#include "view/draw/road_lines.h"
#include "view/draw/tile_sheet.h"
#include "view/sector_markers.h"

#include <QPainter>

#include <algorithm>

namespace wayscribe {

namespace {

constexpr int kTile = TileSheet::kTileSize;

void copyEntry(QPainter &painter, const TileSheet &sheet, int entry, QPoint at,
               QPainter::CompositionMode mode)
{
    painter.setCompositionMode(mode);
    painter.drawImage(at, sheet.sheet(), QRect(TileSheet::entryPosition(entry), QSize(kTile, kTile)));
}

} // namespace

// Codes without a tile of ours (0, and the 19..25 a QuestOR map can carry)
// show the Unknown tile with a small red square in the middle, so that the
// player sees something unusual is there without the drawing ever reaching
// outside the sheet.
void drawTerrain(QPainter &painter, const TileSheet &sheet, int terrain, QPoint at)
{
    const bool ours = isNamedTerrain(terrain);
    copyEntry(painter, sheet, ours ? terrain : kUnknown, at, QPainter::CompositionMode_Source);
    if (!ours)
        painter.fillRect(QRect(at + QPoint(6, 6), QSize(4, 4)), Qt::red);
}

void drawNoteMarker(QPainter &painter, const TileSheet &sheet, NoteMarker marker, QPoint at)
{
    switch (marker) {
    case NoteMarker::None:
        return;
    case NoteMarker::Note:
        copyEntry(painter, sheet, TileSheet::kNoteMask, at, QPainter::RasterOp_SourceAndDestination);
        copyEntry(painter, sheet, TileSheet::kNoteImage, at, QPainter::RasterOp_SourceOrDestination);
        break;
    case NoteMarker::Dungeon:
        copyEntry(painter, sheet, TileSheet::kDungeonIcon, at, QPainter::CompositionMode_Source);
        break;
    case NoteMarker::Special:
        copyEntry(painter, sheet, TileSheet::kSpecialIcon, at, QPainter::CompositionMode_Source);
        break;
    }
    painter.setCompositionMode(QPainter::CompositionMode_Source);
}

bool prepareMapPicture(QImage &picture)
{
    if (picture.isNull())
        return false;
    if (picture.format() != kMapPictureFormat)
        picture.convertTo(kMapPictureFormat);
    return true;
}

void drawBorderLines(PixelCanvas &canvas, const ViewState &view)
{
    const QRgb black = qRgb(0, 0, 0);
    canvas.drawLine(QPoint(0, 0), QPoint(view.viewCols * kTile - 1, 0), black);
    canvas.drawLine(QPoint(0, 0), QPoint(0, view.viewRows * kTile - 1), black);
}

namespace {

// Footprints are whole pictures laid over the tile; their transparent parts
// let the terrain show.
void drawFootprint(QPainter &painter, const TileSheet &sheet, int picture, QPoint at)
{
    if (picture == 0)
        return;
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawImage(at + QPoint(4, 3), sheet.footprint(picture));
    painter.setCompositionMode(QPainter::CompositionMode_Source);
}

// Everything a sector draws stays inside its tile except the footprint, and a
// footprint that reaches past its tile is covered by the next tiles' terrain.
void drawSector(QPainter &painter, PixelCanvas &canvas, const World &world, const ProgramState &state,
                const TileSheet &sheet, int x, int y, QPoint at)
{
    const Sector &sector = world.sector(x, y);
    drawTerrain(painter, sheet, sector.terrain, at);
    if (sector.terrain == kRoad)
        drawRoadLines(canvas, world, x, y, at);
    drawNoteMarker(painter, sheet, noteMarkerFor(sector, state.options.extra), at);
    const bool start = x == state.movement.pathX[0] && y == state.movement.pathY[0];
    drawFootprint(painter, sheet, footprintPicture(sector.moveMark, start), at);
}

void drawSectors(QPainter &painter, PixelCanvas &canvas, const World &world, const ProgramState &state,
                 const TileSheet &sheet, const SectorArea &area)
{
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const int lastY = std::min(area.firstY + area.rows - 1, kMapSize);
    const int lastX = std::min(area.firstX + area.cols - 1, kMapSize);
    for (int y = std::max(area.firstY, 1); y <= lastY; ++y)
        for (int x = std::max(area.firstX, 1); x <= lastX; ++x)
            drawSector(painter, canvas, world, state, sheet, x, y,
                       QPoint((x - area.firstX) * kTile, (y - area.firstY) * kTile));
}

} // namespace

void drawSectors(QImage &picture, const World &world, const ProgramState &state, const TileSheet &sheet,
                 const SectorArea &area)
{
    if (!prepareMapPicture(picture))
        return;
    PixelCanvas canvas(picture);
    QPainter painter(&picture);
    drawSectors(painter, canvas, world, state, sheet, area);
}

QImage areaPicture(const World &world, const ProgramState &state, const TileSheet &sheet,
                   const SectorArea &area)
{
    QImage picture(std::max(area.cols, 1) * kTile, std::max(area.rows, 1) * kTile, kMapPictureFormat);
    picture.fill(Qt::black);
    drawSectors(picture, world, state, sheet, area);
    return picture;
}

void drawMap(QImage &picture, const World &world, const ProgramState &state, const TileSheet &sheet)
{
    if (!prepareMapPicture(picture))
        return;
    PixelCanvas canvas(picture);
    QPainter painter(&picture);
    drawSectors(painter, canvas, world, state, sheet,
                {state.view.viewLeft + 1, state.view.viewTop + 1, state.view.viewCols, state.view.viewRows});
    drawBorderLines(canvas, state.view);
}

bool Refresh_Map(QImage &picture, Minimap &minimap, const World &world, const ProgramState &state,
                 const TileSheet &sheet)
{
    if (state.view.fullRedraw != 1)
        return false;
    drawMap(picture, world, state, sheet);
    Refresh_MiniMap(minimap, world, state);
    return true;
}

} // namespace wayscribe
