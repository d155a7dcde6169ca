#include "view/draw/road_lines.h"

#include "model/terrain.h"
#include "model/world.h"
#include "view/draw/map_drawing.h"
#include "view/draw/pixel_canvas.h"

#include <QImage>

#include <array>

namespace wayscribe {

namespace {

constexpr int kTile = 16;
constexpr QPoint kCentre(7, 7);
constexpr QRgb kRoadColour = 0xff000000;

// One neighbour direction: the offset to the neighbour and the line toward it,
// both ends relative to the tile's top-left pixel.
struct RoadDirection {
    int dx, dy;
    QPoint from, to;
};

// In the order west, east, north, south, north-west, north-east, south-west,
// south-east. The lines toward west and north run from the edge to the centre.
constexpr std::array<RoadDirection, 8> kDirections = {{
    {-1, 0, {0, 8}, kCentre},
    {1, 0, kCentre, {16, 8}},
    {0, -1, {8, 0}, kCentre},
    {0, 1, kCentre, {8, 16}},
    {-1, -1, kCentre, {1, 0}},
    {1, -1, kCentre, {16, 0}},
    {-1, 1, kCentre, {0, 16}},
    {1, 1, kCentre, {16, 15}},
}};

const RoadDirection &opposite(const RoadDirection &d)
{
    for (const RoadDirection &o : kDirections)
        if (o.dx == -d.dx && o.dy == -d.dy)
            return o;
    return d;
}

bool insideWorld(int x, int y)
{
    return isSectorIndex(x) && isSectorIndex(y);
}

bool connectsToRoad(int terrain)
{
    return terrain >= kRoad && terrain <= kCity;
}

void drawDirection(PixelCanvas &canvas, const RoadDirection &d, QPoint tileOrigin)
{
    canvas.drawLine(tileOrigin + d.from, tileOrigin + d.to, kRoadColour);
}

} // namespace

void drawRoadLines(PixelCanvas &canvas, const World &world, int x, int y, QPoint tileOrigin)
{
    canvas.setPixel(tileOrigin + kCentre, kRoadColour);
    for (const RoadDirection &d : kDirections)
        if (insideWorld(x + d.dx, y + d.dy) && connectsToRoad(world.sector(x + d.dx, y + d.dy).terrain))
            drawDirection(canvas, d, tileOrigin);
}

void Draw_Roads(QImage &map, const World &world, int x, int y, int c, int r)
{
    if (map.isNull() || !insideWorld(x, y))
        return;
    if (map.format() != kMapPictureFormat)
        map.convertTo(kMapPictureFormat);
    PixelCanvas canvas(map);
    const QPoint origin((c - 1) * kTile, (r - 1) * kTile);
    drawRoadLines(canvas, world, x, y, origin);
    // Each line lies inside its own tile, so the neighbours' lines back toward
    // this sector can be drawn after all of this sector's own.
    for (const RoadDirection &d : kDirections)
        if (insideWorld(x + d.dx, y + d.dy) && world.sector(x + d.dx, y + d.dy).terrain == kRoad)
            drawDirection(canvas, opposite(d), origin + QPoint(d.dx * kTile, d.dy * kTile));
}

} // namespace wayscribe
