#pragma once

#include "travel/journey_table.h"

#include <array>
#include <cstdint>

namespace wayscribe {

// The search moves travellers along journeys tick by tick, a journey's
// price being the ticks it takes, in a fixed pool of traveller entries.
inline constexpr int kTravellerPool = 10000;
inline constexpr int kTickBudget = 100;
inline constexpr int kCheapestTickBudget = kTickBudget * 80;
inline constexpr int kShortestTickBudget = kTickBudget;

enum class RouteMode { Cheapest = 1, Shortest = 2 };

// The numbers read from the two boxes; they need not be settlements.
struct RouteEnds {
    long long start = 0;
    long long goal = 0;
};

// The settlement the search came closest to the goal with, kept over both
// runs of one search.
struct ClosestSettlement {
    long long number = 0;
    long long distance = 0;
};

struct RouteSearchResult {
    bool found = false;
    // Where each settlement was reached from, and the summed price of the
    // journeys that led there. Money is kept wide, so that the total of a
    // long trip of dear journeys is the true sum instead of overflowing.
    std::array<std::int16_t, kMaxSettlements + 1> parent{};
    std::array<long long, kMaxSettlements + 1> money{};
};

// One run of the search for the cheapest (prices as ticks) or the shortest
// (every journey one tick) route. Updates `closest` with the settlements
// reached on the way.
void searchRoute(const JourneyTable &table, RouteMode mode, RouteEnds ends, ClosestSettlement &closest,
                 RouteSearchResult &result);

using RouteSearchFunction = void (*)(const JourneyTable &, RouteMode, RouteEnds, ClosestSettlement &,
                                     RouteSearchResult &);

} // namespace wayscribe
