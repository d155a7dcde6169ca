#pragma once

#include <QPoint>

class QImage;

namespace wayscribe {

class PixelCanvas;
class World;

// The road lines of Road sector (x, y) whose tile's top-left pixel is
// tileOrigin: a dot in the tile's centre and a line toward every neighbour
// inside the world that is Road, Village, Town or City. Every line stays
// inside the sector's own tile. Lines are black.
void drawRoadLines(PixelCanvas &canvas, const World &world, int x, int y, QPoint tileOrigin);

// After painting Road on sector (x, y), shown in view column c and row r
// (from 1): its own lines as above, and for each neighbouring Road also that
// neighbour's line back toward it. Nothing is erased, and lines of neighbours
// off the picture fall outside it. A picture in another format than the
// map's is converted first.
void Draw_Roads(QImage &map, const World &world, int x, int y, int c, int r);

} // namespace wayscribe
