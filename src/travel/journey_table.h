#pragma once

#include "model/world.h"

#include <array>
#include <cstdint>
#include <string>

namespace wayscribe {

class Platform;

// Room for the journeys one settlement sells; journey items beyond it are
// left out of the search.
inline constexpr int kJourneysPerSettlement = 110;

// Where the settlements stand, for the rough distances of the route finder.
// Numbers that are no settlement stand at (0, 0), like a free settlement.
struct SettlementPositions {
    std::array<std::array<int, 2>, kMaxSettlements + 1> xy{};

    // The whole part of the straight-line distance in sectors.
    long long distance(long long a, long long b) const;
};

SettlementPositions settlementPositions(const World &world);

// The journey items of every settlement's shops, as one search run sees them.
struct JourneyTable {
    // Journeys of settlement s are destination[s][1..count[s]]; destination 0
    // is an item whose parentheses hold no settlement number.
    std::array<int, kMaxSettlements + 1> count{};
    std::array<std::array<std::int16_t, kJourneysPerSettlement + 1>, kMaxSettlements + 1> destination{};
    std::array<std::array<std::string, kJourneysPerSettlement + 1>, kMaxSettlements + 1> orderText;
    // cost[d][s]: the price of the journey from s to d, the last one read for
    // the pair. Prices are kept wide: a 16-bit price would overflow on the
    // dear journeys a player can type in.
    std::array<std::array<long long, kMaxSettlements + 1>, kMaxSettlements + 1> cost{};
    SettlementPositions positions;
};

// Fills the table from the shops 1..110 of the settlements in use, telling
// the person about journeys without a usable price.
void buildJourneyTable(const World &world, Platform &platform, JourneyTable &table);

// The name of the settlement with this number, read from its sector; empty
// for a number that is no settlement.
std::string_view settlementNameOf(const World &world, long long number);

// A settlement as the route finder names it, in its boxes, its orders and
// its answers: "Oakvale (12)".
std::string settlementBoxText(const World &world, long long number);

} // namespace wayscribe
