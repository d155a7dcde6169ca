#include "view/sector_info.h"

#include "model/settlement_lookup.h"
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
    // The sector's own name is shown, whichever sector the record points at.
    const SettlementLookup standing = lookUpSettlement(world, s.settlementNumber);
    if (standing.inUse) {
        info.settlementName = s.settlementName;
        info.settlementNumber = formatPlain(s.settlementNumber);
        info.cityState = standing.record->cityState;
    }
    return info;
}

} // namespace wayscribe
