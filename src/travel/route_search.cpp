#include "travel/route_search.h"

#include <algorithm>
#include <bit>
#include <memory>

namespace wayscribe {

// The search is defined as sweeps over all pool entries on every tick. This
// one gives the same results while visiting only the moments where something
// happens, in the order the sweeps would meet them:
// - a traveller's ticks are not counted one by one: it knows the sweep of
//   its last advance, which follows from the sweep of its first one (the
//   creating sweep when it was put above its creator, else the next one);
//   travellers are filed by that sweep, and a sweep takes its arrivals in
//   entry order, including those put above it by the sweep itself;
// - a traveller whose destination has been reached is dead: the sweep frees
//   its entry when it next meets it (later in the same sweep when the entry
//   lies above the arrival that reached the destination, else in the next
//   sweep). Entries are handed out lowest first, so those frees are applied
//   just before each new traveller takes an entry, up to that moment.
// Every settlement sends its travellers out once, so the work and the memory
// are bounded by the journeys in the table, whatever the number of ticks.
namespace {

// The start's journeys, then those of each settlement when it is reached.
constexpr int kMaxDepartures = (kMaxSettlements + 1) * kJourneysPerSettlement;

template <int Bits> class BitSet {
public:
    void set(int i)
    {
        words_[i / 64] |= bit(i);
        lowest_ = std::min(lowest_, i);
    }
    void reset(int i) { words_[i / 64] &= ~bit(i); }

    // The first set bit at or after `from`; -1 when there is none.
    int nextSet(int from) const
    {
        return find(from, [](std::uint64_t w) { return w; });
    }
    int nextClear(int from) const
    {
        return find(from, [](std::uint64_t w) { return ~w; });
    }

    // Clears every set bit below `end`, handing each to `f`.
    template <class F> void drainBelow(int end, F f)
    {
        for (int i = nextSet(lowest_); i >= 0 && i < end; i = nextSet(i + 1)) {
            reset(i);
            f(i);
        }
        lowest_ = std::max(lowest_, std::min(end, Bits));
    }

private:
    static constexpr int kWords = (Bits + 63) / 64;
    static std::uint64_t bit(int i) { return std::uint64_t{1} << (i % 64); }

    template <class Pick> int find(int from, Pick pick) const
    {
        if (from >= Bits)
            return -1;
        int w = from / 64;
        std::uint64_t bits = pick(words_[w]) & (~std::uint64_t{0} << (from % 64));
        while (bits == 0) {
            if (++w == kWords)
                return -1;
            bits = pick(words_[w]);
        }
        const int i = w * 64 + std::countr_zero(bits);
        return i < Bits ? i : -1;
    }

    std::array<std::uint64_t, kWords> words_{};
    int lowest_ = Bits; // no bit below it is set
};

// A moment of the sweeps: the sweep, and the slot it is at (slot n is entry
// n + 1 of the pool).
struct Moment {
    long long sweep;
    int slot;
};

struct Departure {
    int slot;
    int destination;
    int source;
    int due;                       // the sweep of its last advance; -1: it never arrives
    int previousToSameDestination; // -1 ends the list
    int nextDueSameSweep;          // -1 ends the list
};

class PoolSearch {
public:
    PoolSearch(const JourneyTable &table, RouteMode mode, RouteEnds ends, ClosestSettlement &closest,
               RouteSearchResult &result)
        : table_(table), mode_(mode), ends_(ends), closest_(closest), result_(result),
          budget_(mode == RouteMode::Cheapest ? kCheapestTickBudget : kShortestTickBudget)
    {
        lastToDestination_.fill(-1);
        firstDue_.fill(-1);
    }

    void run()
    {
        result_ = RouteSearchResult{};
        if (isSettlementIndex(ends_.start)) {
            const int start = static_cast<int>(ends_.start);
            reached_[start] = true;
            for (int k = 1; k <= table_.count[start]; ++k)
                if (const int t = table_.destination[start][k]; t != 0)
                    depart(t, start, {0, -1});
        }
        for (int sweep = sweepsDue_.nextSet(0); sweep >= 0; sweep = sweepsDue_.nextSet(sweep + 1)) {
            sweep_ = sweep;
            for (int n = firstDue_[sweep]; n >= 0; n = departures_[n].nextDueSameSweep)
                dueNow_.set(departures_[n].slot);
            for (int slot = dueNow_.nextSet(0); slot >= 0; slot = dueNow_.nextSet(slot + 1)) {
                dueNow_.reset(slot);
                // The entry may since have been freed, even taken by another
                // traveller in this sweep.
                const Departure &traveller = departures_[occupant_[slot]];
                if (traveller.due == sweep && !reached_[traveller.destination] &&
                    arrive({sweep, slot}, traveller.destination, traveller.source))
                    return;
            }
        }
    }

private:
    // Returns true when the goal is reached.
    bool arrive(const Moment &at, int d, int from)
    {
        result_.parent[d] = static_cast<std::int16_t>(from);
        result_.money[d] = result_.money[from] + table_.cost[d][from];
        if (d == ends_.goal) {
            result_.found = true;
            return true;
        }
        if (const long long distance = table_.positions.distance(d, ends_.goal); distance < closest_.distance)
            closest_ = {d, distance};
        reached_[d] = true;
        release(at.slot);
        settleFrees(at);
        for (int n = lastToDestination_[d]; n >= 0; n = departures_[n].previousToSameDestination)
            if (n != occupant_[at.slot])
                scheduleFree(departures_[n].slot, at);
        for (int k = 1; k <= table_.count[d]; ++k) {
            const int t = table_.destination[d][k];
            if (t != 0 && !reached_[t] && !depart(t, d, at))
                break; // a full pool takes no more journeys of this settlement
        }
        return false;
    }

    // Puts a traveller from `from` to `to` in the lowest free entry at the
    // moment `at` of its creator. Returns false when the pool is full.
    bool depart(int to, int from, const Moment &at)
    {
        settleFrees(at);
        const int slot = taken_.nextClear(firstFree_);
        if (slot < 0)
            return false;
        taken_.set(slot);
        firstFree_ = slot + 1;
        const int n = departureCount_++;
        departures_[n] = {slot, to, from, -1, lastToDestination_[to], -1};
        lastToDestination_[to] = n;
        occupant_[slot] = n;
        const long long firstSweep = slot > at.slot ? at.sweep : at.sweep + 1;
        if (reached_[to]) {
            // Only the start's journeys may lead to a reached place: back to the start.
            scheduleFree(slot, {firstSweep, -1});
            return true;
        }
        // A journey of d ticks arrives on its d-th advance; one of fewer than
        // one tick (a negative price) never does, nor one beyond the budget.
        const long long ticks = mode_ == RouteMode::Cheapest ? table_.cost[to][from] : 1;
        if (ticks < 1 || firstSweep + ticks - 1 >= budget_)
            return true;
        const int due = static_cast<int>(firstSweep + ticks - 1);
        departures_[n].due = due;
        if (due == sweep_) {
            dueNow_.set(slot); // above the creator: met later in this very sweep
        } else {
            departures_[n].nextDueSameSweep = firstDue_[due];
            firstDue_[due] = n;
            sweepsDue_.set(due);
        }
        return true;
    }

    void release(int slot)
    {
        taken_.reset(slot);
        firstFree_ = std::min(firstFree_, slot);
    }

    // The dead traveller in `slot` is discarded when the sweeps next meet it
    // after the moment `after`, which is no earlier than the frees settled.
    void scheduleFree(int slot, const Moment &after)
    {
        (slot > after.slot && after.sweep == freesSweep_ ? dyingThisSweep_ : dyingNextSweep_).set(slot);
    }

    // Frees the entries of dead travellers that the sweeps have met before
    // the moment `at`.
    void settleFrees(const Moment &at)
    {
        auto free = [this](int slot) { release(slot); };
        if (at.sweep > freesSweep_) {
            dyingThisSweep_.drainBelow(kTravellerPool, free);
            if (at.sweep > freesSweep_ + 1)
                dyingNextSweep_.drainBelow(kTravellerPool, free);
            else
                std::swap(dyingThisSweep_, dyingNextSweep_);
            freesSweep_ = at.sweep;
        }
        dyingThisSweep_.drainBelow(at.slot, free);
    }

    const JourneyTable &table_;
    const RouteMode mode_;
    const RouteEnds ends_;
    ClosestSettlement &closest_;
    RouteSearchResult &result_;
    const long long budget_;

    BitSet<kTravellerPool> taken_;
    int firstFree_ = 0; // every slot below it is taken
    std::array<int, kTravellerPool> occupant_;
    std::array<Departure, kMaxDepartures> departures_;
    int departureCount_ = 0;
    std::array<int, kMaxSettlements + 1> lastToDestination_;
    std::array<bool, kMaxSettlements + 1> reached_{};

    // Travellers filed by the sweep of their last advance, and the slots
    // arriving in the sweep under way.
    std::array<int, kCheapestTickBudget> firstDue_;
    BitSet<kCheapestTickBudget> sweepsDue_;
    BitSet<kTravellerPool> dueNow_;
    long long sweep_ = -1;

    // Dead travellers, freed when the sweep `freesSweep_` or the next one
    // meets them.
    BitSet<kTravellerPool> dyingThisSweep_;
    BitSet<kTravellerPool> dyingNextSweep_;
    long long freesSweep_ = 0;
};

} // namespace

void searchRoute(const JourneyTable &table, RouteMode mode, RouteEnds ends, ClosestSettlement &closest,
                 RouteSearchResult &result)
{
    static_assert(kJourneysPerSettlement <= kTravellerPool, "the journeys of the start always fit the pool");
    static_assert(kShortestTickBudget <= kCheapestTickBudget);
    auto search = std::make_unique<PoolSearch>(table, mode, ends, closest, result);
    search->run();
}

} // namespace wayscribe
