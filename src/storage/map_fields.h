#pragma once

#include "model/world.h"
#include "storage/line_reader.h"

#include <cstdint>

namespace wayscribe {

// The fields of a map file's body (everything after the header line) in
// file order, by format version. Reading a file into the model and merging
// one into it walk the same fields; `Fields` decides what each value read
// does to the model's own:
//
//   bool terrain(MapLineReader &, std::uint8_t &current);
//   bool number(MapLineReader &, std::uint8_t &current);  // settlement numbers and places
//   bool text(MapLineReader &, std::string &current, bool escaped);
//   bool settlementName(MapLineReader &, std::string &current);
//   bool shop(MapLineReader &, int settlement, int shop);
//   bool levels(MapLineReader &, std::int16_t &current);
//
// The game number and the city-states are taken from the file by both. The
// walk stops at the first field that fails; what was done before it stays.
template <class Fields>
bool walkMapFields(MapLineReader &in, int version, World &world, std::uint8_t &gameNumber, Fields &fields)
{
    if (!in.readByte(gameNumber))
        return false;
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            Sector &sec = world.sector(x, y);
            if (!fields.terrain(in, sec.terrain) || !fields.text(in, sec.note, true) ||
                !fields.number(in, sec.settlementNumber) || !fields.settlementName(in, sec.settlementName))
                return false;
        }
    // Format 9 and older keep shops 1..99 only.
    const int firstShop = version < 10 ? 1 : 0;
    const int lastShop = version < 10 ? 99 : kMaxShop;
    for (int n = 1; n <= kMaxSettlements; ++n) {
        Settlement &st = world.settlement(n);
        if (!fields.number(in, st.inUse) || !fields.number(in, st.x) || !fields.number(in, st.y))
            return false;
        if (version >= 17 && !in.readText(st.cityState))
            return false;
        for (int s = firstShop; s <= lastShop; ++s)
            if (!fields.shop(in, n, s))
                return false;
    }
    // Dungeons came with format 11.
    if (version < 11)
        return true;
    for (int d = 1; d <= kMaxDungeons; ++d) {
        Dungeon &dg = world.dungeon(d);
        if (!fields.text(in, dg.name, false) || !fields.levels(in, dg.levels))
            return false;
        for (int l = 1; l <= kLevelsPerDungeon; ++l)
            if (!fields.text(in, dg.level[l].map, true) || !fields.text(in, dg.level[l].roomData, true))
                return false;
    }
    return true;
}

} // namespace wayscribe
