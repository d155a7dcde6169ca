#pragma once

#include "storage/map_file.h"

#include <cstdint>
#include <string>

namespace wayscribe {

class World;

// Pours a second map file into the model wherever the model knows nothing
// yet. The file's game number replaces the current one, its city-states
// (format 17 and later) replace the current ones, and a larger dungeon level
// count wins. Stops at the first bad line; what was merged before it stays.
MapReadResult mergeMapFile(const std::string &path, World &world, std::uint8_t &gameNumber);

} // namespace wayscribe
