#include "storage/map_merge.h"

#include "model/world.h"
#include "storage/line_reader.h"

namespace wayscribe {

namespace {

// A text is taken only where the model's own is empty.
bool mergeText(MapLineReader &in, std::string &current, bool escaped)
{
    std::string value;
    if (!(escaped ? in.readEscapedText(value) : in.readText(value)))
        return false;
    if (current.empty())
        current = std::move(value);
    return true;
}

bool mergeByte(MapLineReader &in, std::uint8_t &current)
{
    std::uint8_t value;
    if (!in.readByte(value))
        return false;
    if (current == 0)
        current = value;
    return true;
}

bool mergeShop(MapLineReader &in, World &world, int n, int s)
{
    ShopTexts shop = world.shop(n, s);
    bool ok = mergeText(in, shop.name, false);
    for (int i = 1; ok && i <= kItemsPerShop; ++i)
        for (int f = 0; ok && f < 3; ++f)
            ok = mergeText(in, shop.items[i][f], false);
    // Also on failure: what was merged up to the bad line stays.
    world.setShop(n, s, shop);
    return ok;
}

bool mergeBody(MapLineReader &in, World &world, std::uint8_t &gameNumber, int version)
{
    if (!in.readByte(gameNumber))
        return false;
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            Sector &sec = world.sector(x, y);
            std::uint8_t terrain;
            if (!in.readByte(terrain))
                return false;
            if (sec.terrain == 1)
                sec.terrain = terrain;
            if (!mergeText(in, sec.note, true) || !mergeByte(in, sec.settlementNumber))
                return false;
            std::string name;
            if (!in.readText(name))
                return false;
            if (sec.settlementName.empty() || sec.settlementName == "Unknown")
                sec.settlementName = std::move(name);
        }
    const int firstShop = version < 10 ? 1 : 0;
    const int lastShop = version < 10 ? 99 : kMaxShop;
    for (int n = 1; n <= kMaxSettlements; ++n) {
        Settlement &st = world.settlement(n);
        if (!mergeByte(in, st.inUse) || !mergeByte(in, st.x) || !mergeByte(in, st.y))
            return false;
        if (version >= 17 && !in.readText(st.cityState))
            return false;
        for (int s = firstShop; s <= lastShop; ++s)
            if (!mergeShop(in, world, n, s))
                return false;
    }
    if (version < 11)
        return true;
    for (int d = 1; d <= kMaxDungeons; ++d) {
        Dungeon &dg = world.dungeon(d);
        std::int16_t levels;
        if (!mergeText(in, dg.name, false) || !in.readInt16(levels))
            return false;
        if (dg.levels == 0 || dg.levels < levels)
            dg.levels = levels;
        for (int l = 1; l <= kLevelsPerDungeon; ++l)
            if (!mergeText(in, dg.level[l].map, true) || !mergeText(in, dg.level[l].roomData, true))
                return false;
    }
    return true;
}

} // namespace

MapReadResult mergeMapFile(const std::string &path, World &world, std::uint8_t &gameNumber)
{
    return readMapFileWith(
        path, [&](MapLineReader &in, int version) { return mergeBody(in, world, gameNumber, version); });
}

} // namespace wayscribe
