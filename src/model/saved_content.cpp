#include "model/saved_content.h"

namespace wayscribe {

bool sameSavedContent(const Sector &a, const Sector &b)
{
    return a.terrain == b.terrain && a.settlementNumber == b.settlementNumber && a.note == b.note &&
           a.settlementName == b.settlementName;
}

bool sameSavedContent(const Settlement &a, const Settlement &b)
{
    return a.inUse == b.inUse && a.x == b.x && a.y == b.y && a.cityState == b.cityState;
}

bool sameSavedContent(const Dungeon &a, const Dungeon &b)
{
    if (a.name != b.name || a.levels != b.levels)
        return false;
    for (int l = 1; l <= kLevelsPerDungeon; ++l)
        if (a.level[l].map != b.level[l].map || a.level[l].roomData != b.level[l].roomData)
            return false;
    return true;
}

bool sameSavedContent(const World &a, const World &b)
{
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x)
            if (!sameSavedContent(a.sector(x, y), b.sector(x, y)))
                return false;
    for (int n = 1; n <= kMaxSettlements; ++n) {
        if (!sameSavedContent(a.settlement(n), b.settlement(n)))
            return false;
        for (int s = 0; s <= kMaxShop; ++s)
            if (!(a.packed(n, s) == b.packed(n, s)))
                return false;
    }
    for (int d = 1; d <= kMaxDungeons; ++d)
        if (!sameSavedContent(a.dungeon(d), b.dungeon(d)))
            return false;
    return true;
}

} // namespace wayscribe
