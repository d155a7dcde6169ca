#pragma once

namespace wayscribe {

class World;
struct Settlement;
struct Sector;

// What the world holds for a settlement number. A settlement's name lives
// in the sector its record points at, not in the record.
struct SettlementLookup {
    // Null when the number is no settlement number.
    const Settlement *record = nullptr;
    // The sector the record points at; null when that lies beyond the
    // sector table, which only a broken file can make a record do. The
    // table's row and column 0 are no part of the map: a free record points
    // at (0, 0).
    const Sector *sector = nullptr;
    // The record points at a sector of the map (both coordinates 1..200).
    bool onMap = false;
    // The number is taken by a settlement.
    bool inUse = false;
};

SettlementLookup lookUpSettlement(const World &world, long long number);

} // namespace wayscribe
