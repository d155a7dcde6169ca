#pragma once

#include <QImage>

namespace wayscribe {

class World;
struct ProgramState;
class TileSheet;
struct Minimap;
struct SectorRepaint;

// What a map click draws, straight into the map picture's back buffer and the
// minimap; the window then shows both again.

// Redraws visible sector (x, y) as the click's repaint says: the sheet entry
// copied onto its tile, Draw_Roads, the note's marker (whatever the sector's
// terrain), and its block's minimap pixel from the sector's terrain. The
// neighbours' tiles are not redrawn.
void drawSectorRepaint(QImage &picture, Minimap &minimap, const World &world, const ProgramState &state,
                       const TileSheet &sheet, int x, int y, const SectorRepaint &repaint);

// How every map click ends, whatever it did: the map picture's two border
// lines, then the whole minimap with its view rectangle.
void finishMapClick(QImage &picture, Minimap &minimap, const World &world, const ProgramState &state);

} // namespace wayscribe
