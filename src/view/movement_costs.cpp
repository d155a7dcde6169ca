#include "view/movement_costs.h"

#include "model/terrain.h"

#include <array>
#include <cstdint>

namespace wayscribe {

namespace {

// Index terrain * 5 + mode, for terrain codes 1..18; the row of code 0 is
// never read.
// clang-format off
constexpr std::array<std::int16_t, 19 * kMoveModes> MoveCostTable = {
//  foot Arabians Mules Drafts Flying
    0, 0, 0, 0, 0, // 0 has no terrain
    0, 0, 0, 0, 0, // Unknown
    0, 0, 0, 0, 2, // Water
    4, 2, 4, 4, 2, // Open
    4, 2, 4, 4, 2, // Field
    5, 3, 5, 5, 2, // Rough
    5, 3, 5, 5, 2, // Forest
    6, 4, 6, 6, 2, // Heavy Forest
    7, 7, 7, 7, 2, // Jungle
    5, 3, 5, 5, 2, // Barren
    5, 3, 3, 5, 2, // Desert
    7, 7, 4, 7, 2, // Mountain
    6, 4, 2, 6, 2, // Hill
    5, 5, 5, 5, 2, // Marsh
    7, 7, 7, 7, 2, // Swamp
    3, 1, 3, 3, 2, // Road
    4, 2, 4, 4, 2, // Village
    3, 1, 3, 3, 2, // Town
    3, 1, 3, 3, 2, // City
};
// clang-format on

} // namespace

int moveCost(int terrain, int mode)
{
    if (!isNamedTerrain(terrain) || mode < 0 || mode >= kMoveModes)
        return 0;
    return MoveCostTable[static_cast<std::size_t>(terrain * kMoveModes + mode)];
}

} // namespace wayscribe
