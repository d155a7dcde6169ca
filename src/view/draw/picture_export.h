#pragma once

#include "view/draw/map_drawing.h"

namespace wayscribe {

class World;
struct ProgramState;
struct ViewState;
class TileSheet;
class Platform;

enum class ExportPart { WholeWorld, View };

// The sectors an export covers: the whole world, or the sectors the view
// shows, without the strip a wide view has beyond the world's edge.
SectorArea exportArea(const ViewState &view, ExportPart part);

// File, Export Map Picture, once the part is chosen: asks for a PNG file (and
// before replacing one), draws the part as the map view draws it, 16 x 16
// pixels a sector, and writes it. A file that cannot be written is named,
// with the reason; an older file of that name is then left as it was.
void exportMapPicture(const World &world, const ProgramState &state, const TileSheet &sheet,
                      Platform &platform, ExportPart part);

} // namespace wayscribe
