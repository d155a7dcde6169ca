#include "view/sector_info.h"

#include "model/terrain.h"
#include "model/text.h"
#include "model/world.h"

namespace wayscribe {

SectorInfo describeSector(const World &world, int x, int y)
{
    SectorInfo info;
    if (!isSectorIndex(x) || !isSectorIndex(y))
        return info;
    const Sector &s = world.sector(x, y);
    // Codes that only QuestOR maps carry have no name of ours: they are shown
    // as what the player knows of them, which is nothing.
    info.terrain = isNamedTerrain(s.terrain) ? std::string(terrainName(s.terrain)) : "Unknown";
    info.note = s.note;
    const int n = s.settlementNumber;
    if (isSettlementIndex(n) && world.settlement(n).inUse == 1) {
        info.settlementName = s.settlementName;
        info.settlementNumber = formatPlain(n);
        info.cityState = world.settlement(n).cityState;
    }
    return info;
}

} // namespace wayscribe
