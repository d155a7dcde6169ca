#include "travel/route_search.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <memory>

namespace wayscribe {

// The search is defined as sweeps over every pool entry on every tick. This
// one gives the same results with far less work:
// - a traveller's ticks are not counted one by one: it stores the sweep of
//   its last advance, which follows from the sweep of its first advance (the
//   creating sweep when it was put above its creator, else the next one);
// - a sweep visits only the taken entries, in entry order, so that freed and
//   newly taken entries behave exactly as in a full sweep;
// - after a sweep in which nobody arrived, every remaining traveller heads
//   for a settlement not yet reached, and nothing can happen until the next
//   traveller's last advance: the sweeps in between are skipped.
namespace {

constexpr long long kNever = std::numeric_limits<long long>::max();
constexpr int kWords = (kTravellerPool + 63) / 64;

// The traveller entries, counted from 0 here (slot n is entry n + 1).
class TravellerPool {
  public:
    // Takes the lowest free slot; -1 when every slot is taken.
    int acquire()
    {
        for (int w = firstFree_ / 64; w < kWords; ++w) {
            const std::uint64_t freeBits = ~taken_[w] & usable(w);
            if (freeBits != 0) {
                const int slot = w * 64 + std::countr_zero(freeBits);
                taken_[w] |= bit(slot);
                firstFree_ = slot + 1;
                return slot;
            }
        }
        firstFree_ = kTravellerPool;
        return -1;
    }

    void release(int slot)
    {
        taken_[slot / 64] &= ~bit(slot);
        firstFree_ = std::min(firstFree_, slot);
    }

    // The first taken slot at or after `from`; -1 when there is none.
    int nextTaken(int from) const
    {
        if (from >= kTravellerPool)
            return -1;
        int w = from / 64;
        std::uint64_t bits = taken_[w] & (~std::uint64_t{0} << (from % 64));
        while (bits == 0) {
            if (++w == kWords)
                return -1;
            bits = taken_[w];
        }
        return w * 64 + std::countr_zero(bits);
    }

    std::array<std::uint8_t, kTravellerPool> destination{};
    std::array<std::uint8_t, kTravellerPool> source{};
    std::array<long long, kTravellerPool> lastSweep{}; // kNever: never arrives

  private:
    static std::uint64_t bit(int slot) { return std::uint64_t{1} << (slot % 64); }
    static std::uint64_t usable(int w)
    {
        constexpr int tail = kTravellerPool % 64;
        return (w == kWords - 1 && tail != 0) ? (std::uint64_t{1} << tail) - 1 : ~std::uint64_t{0};
    }

    std::array<std::uint64_t, kWords> taken_{};
    int firstFree_ = 0; // every slot below it is taken
};

} // namespace

void searchRoute(const JourneyTable &table, RouteMode mode, RouteEnds ends, ClosestSettlement &closest,
                 RouteSearchResult &result)
{
    result = RouteSearchResult{};
    auto pool = std::make_unique<TravellerPool>();
    std::array<bool, kMaxSettlements + 1> reached{};
    const long long budget = mode == RouteMode::Cheapest ? kCheapestTickBudget : kShortestTickBudget;

    // A journey of d ticks arrives on its d-th advance; one of fewer than one
    // tick (a negative price) never does.
    auto depart = [&](int slot, int to, int from, long long firstSweep) {
        const long long ticks = mode == RouteMode::Cheapest ? table.cost[to][from] : 1;
        pool->destination[slot] = static_cast<std::uint8_t>(to);
        pool->source[slot] = static_cast<std::uint8_t>(from);
        pool->lastSweep[slot] = ticks >= 1 ? firstSweep + ticks - 1 : kNever;
    };

    static_assert(kJourneysPerSettlement <= kTravellerPool, "the journeys of the start always fit the pool");
    if (isSettlementNumber(ends.start)) {
        const int start = static_cast<int>(ends.start);
        reached[start] = true;
        for (int k = 1; k <= table.count[start]; ++k)
            if (const int t = table.destination[start][k]; t != 0)
                depart(pool->acquire(), t, start, 0);
    }

    long long sweep = 0;
    while (sweep < budget) {
        bool anyArrival = false;
        long long nextArrival = kNever;
        for (int slot = pool->nextTaken(0); slot >= 0; slot = pool->nextTaken(slot + 1)) {
            const int d = pool->destination[slot];
            if (reached[d]) {
                pool->release(slot);
                continue;
            }
            if (pool->lastSweep[slot] != sweep) {
                nextArrival = std::min(nextArrival, pool->lastSweep[slot]);
                continue;
            }
            anyArrival = true;
            const int from = pool->source[slot];
            result.parent[d] = static_cast<std::int16_t>(from);
            result.money[d] = result.money[from] + table.cost[d][from];
            if (d == ends.goal) {
                result.found = true;
                return;
            }
            if (const long long distance = table.positions.distance(d, ends.goal);
                distance < closest.distance)
                closest = {d, distance};
            reached[d] = true;
            pool->release(slot);
            for (int k = 1; k <= table.count[d]; ++k) {
                const int t = table.destination[d][k];
                if (t == 0 || reached[t])
                    continue;
                const int fresh = pool->acquire();
                if (fresh < 0)
                    break; // a full pool takes no more journeys of this settlement
                depart(fresh, t, d, fresh > slot ? sweep : sweep + 1);
            }
        }
        sweep = anyArrival ? sweep + 1 : nextArrival;
    }
}

} // namespace wayscribe
