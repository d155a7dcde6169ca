#include "view/sector_info.h"

#include "model/settlement_lookup.h"
#include "model/terrain.h"
#include "model/text.h"
#include "model/world.h"
#include "view/movement_costs.h"

namespace wayscribe {

SectorInfo describeSector(const World &world, int x, int y, int moveMode)
{
    SectorInfo info;
    if (!isSectorIndex(x) || !isSectorIndex(y))
        return info;
    const Sector &s = world.sector(x, y);
    // Numbers in display boxes take the general format, as every box of the
    // program does where it does not say otherwise.
    info.x = formatGeneral(x);
    info.y = formatGeneral(y);
    // Codes that only QuestOR maps carry have no name of ours: they are shown
    // as what the player knows of them, which is nothing.
    info.terrain = isNamedTerrain(s.terrain) ? std::string(terrainName(s.terrain)) : "Unknown";
    info.movementPoints = formatGeneral(moveCost(s.terrain, moveMode));
    info.note = trimBlanks(s.note);
    // The sector's own name is shown, whichever sector the record points at.
    const SettlementLookup standing = lookUpSettlement(world, s.settlementNumber);
    if (standing.inUse) {
        info.settlementName = trimBlanks(s.settlementName);
        info.settlementNumber = formatGeneral(s.settlementNumber);
        info.cityState = trimBlanks(standing.record->cityState);
    }
    return info;
}

} // namespace wayscribe
