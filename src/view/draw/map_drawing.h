#pragma once

#include "view/sector_markers.h"

#include <QImage>

class QPainter;

namespace wayscribe {

class World;
struct ProgramState;
struct ViewState;
class TileSheet;
class PixelCanvas;
struct Minimap;

// A block of sectors: the first is (firstX, firstY); parts outside the world
// are left alone.
struct SectorArea {
    int firstX = 1;
    int firstY = 1;
    int cols = 0;
    int rows = 0;
};

// The format the map is drawn in: a picture in another format is converted
// before drawing.
inline constexpr QImage::Format kMapPictureFormat = QImage::Format_RGB32;

// The pieces of one sector's drawing, for redrawing a single tile after an
// edit. Each leaves the painter in CompositionMode_Source.
// The terrain tile of a code, plain copied.
void drawTerrain(QPainter &painter, const TileSheet &sheet, int terrain, QPoint at);
// The note marker masked over the tile, or the dungeon or special icon.
void drawNoteMarker(QPainter &painter, const TileSheet &sheet, NoteMarker marker, QPoint at);
// The two black border lines along the top and left of the visible map.
void drawBorderLines(PixelCanvas &canvas, const ViewState &view);

// False for a picture without pixels; converts one in another format to the
// map's format, so that drawing into it is exact.
bool prepareMapPicture(QImage &picture);

// Draws every sector of the area as 16 x 16 logical pixels, the first at the
// picture's top-left pixel: terrain tile, road lines, note marker (dungeon and
// special icons with the Extra option of `state`) and the footprints of the
// movement path. The map view and the command line's render both draw here.
void drawSectors(QImage &picture, const World &world, const ProgramState &state, const TileSheet &sheet,
                 const SectorArea &area);

// A picture of just the area, 16 x 16 pixels a sector, drawn as above: what
// the command line's render and File, Export Map Picture write.
QImage areaPicture(const World &world, const ProgramState &state, const TileSheet &sheet,
                   const SectorArea &area);

// The visible part of the map (ViewLeft, ViewTop, ViewCols, ViewRows) and the
// two border lines along its top and left.
void drawMap(QImage &picture, const World &world, const ProgramState &state, const TileSheet &sheet);

// The redraw every change of the map or the view asks for: draws nothing
// unless FullRedraw is 1; otherwise the map and then the minimap. Returns
// whether it drew, so that the caller knows to show the pictures again.
bool Refresh_Map(QImage &picture, Minimap &minimap, const World &world, const ProgramState &state,
                 const TileSheet &sheet);

} // namespace wayscribe
