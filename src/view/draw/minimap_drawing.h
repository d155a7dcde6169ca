#pragma once

#include <QImage>

namespace wayscribe {

class World;
struct ProgramState;

// The minimap picture (100 x 100 pixels, one for each 2 x 2 sectors) and the
// current colour that TerrainColour sets and the drawing uses.
struct Minimap {
    Minimap();
    QImage image; // Format_RGB32
    QRgb currentColour;
};

// Sets the current colour from the terrain of sector (x, y); a code without a
// colour leaves the colour as it was.
void TerrainColour(Minimap &minimap, const World &world, int x, int y);

// The whole minimap, each pixel from the lower-right sector of its block, and
// the white rectangle of the part the map picture shows.
void Refresh_MiniMap(Minimap &minimap, const World &world, const ProgramState &state);

// After a single edit: the pixel of the block holding (x, y), coloured from
// that sector until the next full redraw.
void recolourMinimapSector(Minimap &minimap, const World &world, int x, int y);

} // namespace wayscribe
