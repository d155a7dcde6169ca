#include "view/empty_world.h"

#include "model/terrain.h"
#include "model/world.h"

namespace wayscribe {

bool worldIsEmpty(const World &world)
{
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            const Sector &s = world.sector(x, y);
            if (s.terrain != kUnknown || s.settlementNumber != 0 || !s.note.empty() ||
                !s.settlementName.empty())
                return false;
        }
    for (int n = 1; n <= kMaxSettlements; ++n)
        if (world.settlement(n).inUse)
            return false;
    for (int d = 1; d <= kMaxDungeons; ++d)
        if (!world.dungeon(d).name.empty() || world.dungeon(d).levels != 0)
            return false;
    return true;
}

} // namespace wayscribe
