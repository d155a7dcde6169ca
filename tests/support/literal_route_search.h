#pragma once

// The route finder's search run exactly as the travel agency defines it: a
// pool of 10000 traveller entries, every one of them visited on every tick.
// It is slow on purpose; the benchmark measures the real search against it
// and the tests compare the two on random journey networks.

#include "travel/route_search.h"

#include <memory>

namespace wayscribe::reference {

inline void literalSearchRoute(const JourneyTable &table, RouteMode mode, RouteEnds ends,
                               ClosestSettlement &closest, RouteSearchResult &result)
{
    // Entries 1..10000; slot 0 is not used.
    struct TravellerPool {
        std::array<bool, kTravellerPool + 1> active{};
        std::array<long long, kTravellerPool + 1> ticks{};
        std::array<int, kTravellerPool + 1> destination{};
        std::array<int, kTravellerPool + 1> source{};
        std::array<long long, kTravellerPool + 1> duration{};
        std::array<long long, kTravellerPool + 1> price{};

        void clear(int e)
        {
            active[e] = false;
            ticks[e] = 0;
            destination[e] = 0;
            source[e] = 0;
            duration[e] = 0;
            price[e] = 0;
        }
    };
    auto pool = std::make_unique<TravellerPool>();
    std::array<long long, kMaxSettlements + 1> reached{}; // 0 not reached, -1 the start
    result = RouteSearchResult{};

    auto addTraveller = [&](int e, int to, int from) {
        pool->active[e] = true;
        pool->ticks[e] = 0;
        pool->destination[e] = to;
        pool->source[e] = from;
        pool->duration[e] = mode == RouteMode::Cheapest ? table.cost[to][from] : 1;
        pool->price[e] = table.cost[to][from];
    };

    if (isSettlementIndex(ends.start)) {
        const int start = static_cast<int>(ends.start);
        reached[start] = -1;
        int next = 0;
        for (int k = 1; k <= kJourneysPerSettlement; ++k)
            if (table.destination[start][k] != 0)
                addTraveller(++next, table.destination[start][k], start);
    }

    const long long budget = mode == RouteMode::Cheapest ? kCheapestTickBudget : kShortestTickBudget;
    long long tick = 0;
    bool stop = false;
    while (!stop) {
        for (int e = 1; e <= kTravellerPool; ++e) {
            if (!pool->active[e])
                continue;
            const int d = pool->destination[e];
            if (reached[d] != 0) {
                pool->clear(e);
                continue;
            }
            ++pool->ticks[e];
            if (pool->ticks[e] != pool->duration[e])
                continue;
            const int from = pool->source[e];
            result.parent[d] = static_cast<std::int16_t>(from);
            result.money[d] = result.money[from] + pool->price[e];
            if (d == ends.goal) {
                result.found = true;
                stop = true;
                reached[d] = pool->ticks[e];
                break;
            }
            const long long distance = table.positions.distance(d, ends.goal);
            if (distance < closest.distance)
                closest = {d, distance};
            reached[d] = pool->ticks[e];
            pool->clear(e);
            for (int k = 1; k <= kJourneysPerSettlement; ++k) {
                const int to = table.destination[d][k];
                if (to == 0 || reached[to] != 0)
                    continue;
                for (int free = 1; free <= kTravellerPool; ++free)
                    if (!pool->active[free]) {
                        addTraveller(free, to, d);
                        break;
                    }
            }
        }
        if (stop)
            break;
        ++tick;
        if (tick == budget)
            stop = true;
    }
}

} // namespace wayscribe::reference
