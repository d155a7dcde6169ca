#include "model/terrain.h"

#include <array>

namespace wayscribe {

std::string_view terrainName(int code)
{
    static constexpr std::array<std::string_view, kLastTerrain + 1> names = {
        "",        "Unknown", "Water",  "Open",     "Field", "Rough", "Forest", "Heavy Forest",
        "Jungle",  "Barren",  "Desert", "Mountain", "Hill",  "Marsh", "Swamp",  "Road",
        "Village", "Town",    "City",
    };
    return isNamedTerrain(code) ? names[code] : std::string_view{};
}

} // namespace wayscribe
