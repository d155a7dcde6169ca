#pragma once

namespace wayscribe {

class World;
struct ProgramState;
class Platform;

// The editor a map click opens, not modal. The selections it reads are set:
// SelX and SelY for the note editor; SelShop (20), SelSettlement, SelNumber,
// SelX and SelY for the settlement editor.
enum class SectorEditor { None, Note, Settlement };

// What a click redraws of its own sector, in this order, at the sector's
// tile. Neighbours are left as they are, road lines toward the sector
// included, until the next full redraw.
struct SectorRepaint {
    int tile = 0;            // sheet entry copied onto the tile; 0: the sector is not redrawn
    bool roads = false;      // then Draw_Roads for the sector
    bool noteMarker = false; // then the note's marker
    // Whenever a tile is painted, the sector's minimap pixel is coloured from
    // the sector's terrain as well.

    bool operator==(const SectorRepaint &) const = default;
};

struct BrushResult {
    SectorRepaint repaint;
    SectorEditor editor = SectorEditor::None;
};

// The right button on sector (x, y): paints BrushTerrain there, founding,
// replacing or removing a settlement as the terrain demands (after the "Sure?"
// question over a settlement), and marks the map changed. Does nothing while
// the map is locked or a file is busy. A new settlement takes the lowest free
// number and opens its editor; with all 160 numbers taken the person is told
// and the sector becomes Unknown. Writes the world directly: the window runs
// it as one undo step.
BrushResult brushClick(World &world, ProgramState &state, Platform &platform, int x, int y);

// The left button on sector (x, y), locked or not: the settlement editor on a
// settlement, else the note editor. Nothing while a file is busy.
SectorEditor sectorEditorClick(const World &world, ProgramState &state, int x, int y);

} // namespace wayscribe
