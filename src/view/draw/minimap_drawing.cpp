#include "view/draw/minimap_drawing.h"

#include "model/program_state.h"
#include "model/world.h"
#include "view/draw/pixel_canvas.h"
#include "view/minimap_geometry.h"

#include <array>
#include <optional>

namespace wayscribe {

namespace {

std::optional<QRgb> colourOf(int terrain)
{
    static const std::array<QRgb, 19> colours = {
        0,                   // 0 has no colour
        qRgb(0, 0, 0),       // Unknown
        qRgb(0, 0, 200),     // Water
        qRgb(104, 39, 10),   // Open
        qRgb(104, 39, 10),   // Field
        qRgb(0, 200, 75),    // Rough
        qRgb(0, 190, 85),    // Forest
        qRgb(0, 170, 90),    // Heavy Forest
        qRgb(20, 170, 120),  // Jungle
        qRgb(230, 230, 0),   // Barren
        qRgb(255, 255, 0),   // Desert
        qRgb(170, 170, 170), // Mountain
        qRgb(200, 200, 200), // Hill
        qRgb(37, 104, 10),   // Marsh
        qRgb(37, 104, 10),   // Swamp
        qRgb(255, 255, 255), // Road
        qRgb(255, 30, 0),    // Village
        qRgb(255, 30, 0),    // Town
        qRgb(255, 30, 0),    // City
    };
    if (terrain < 1 || terrain > 18)
        return std::nullopt;
    return colours[terrain];
}

} // namespace

Minimap::Minimap() : image(kMinimapSize, kMinimapSize, QImage::Format_RGB32), currentColour(qRgb(0, 0, 0))
{
    image.fill(Qt::black);
}

void TerrainColour(Minimap &minimap, const World &world, int x, int y)
{
    if (const auto colour = colourOf(world.sector(x, y).terrain))
        minimap.currentColour = *colour;
}

void Refresh_MiniMap(Minimap &minimap, const World &world, const ProgramState &state)
{
    if (minimap.image.size() != QSize(kMinimapSize, kMinimapSize) ||
        minimap.image.format() != QImage::Format_RGB32)
        minimap.image = QImage(kMinimapSize, kMinimapSize, QImage::Format_RGB32);
    for (int q = 1; q <= kMinimapSize; ++q) {
        auto *line = reinterpret_cast<QRgb *>(minimap.image.scanLine(q - 1));
        for (int p = 1; p <= kMinimapSize; ++p) {
            TerrainColour(minimap, world, 2 * p, 2 * q);
            line[p - 1] = minimap.currentColour;
        }
    }
    const MinimapViewRect r = minimapViewRect(state);
    PixelCanvas canvas(minimap.image);
    const QRgb white = qRgb(255, 255, 255);
    canvas.drawLine({r.left, r.top}, {r.left + r.width, r.top}, white);
    canvas.drawLine({r.left, r.top + r.height}, {r.left + r.width, r.top + r.height}, white);
    canvas.drawLine({r.left, r.top}, {r.left, r.top + r.height}, white);
    canvas.drawLine({r.left + r.width, r.top}, {r.left + r.width, r.top + r.height + 1}, white);
}

void recolourMinimapSector(Minimap &minimap, const World &world, int x, int y)
{
    if (!isSectorIndex(x) || !isSectorIndex(y))
        return;
    TerrainColour(minimap, world, x, y);
    const MinimapPixel pixel = minimapPixelOf(x, y);
    minimap.image.setPixel(pixel.p, pixel.q, minimap.currentColour);
}

} // namespace wayscribe
