// The route finder's search on a full journey network (160 settlements each
// selling 110 journeys), against the literal sweep of all 10000 traveller
// entries on every tick, for a reachable and an unreachable goal.
#include "support/literal_route_search.h"

#include "model/program_state.h"
#include "model/quiet_platform.h"
#include "model/world.h"
#include "travel/route_finder.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <memory>

using namespace wayscribe;

namespace {

// A small linear congruential generator, so that the network is the same on
// every machine.
class Lcg {
public:
    int below(int n)
    {
        state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<int>((state_ >> 33) % static_cast<unsigned long long>(n));
    }

private:
    unsigned long long state_ = 20240601;
};

constexpr int kStart = 1;
constexpr int kUnreachable = kMaxSettlements; // sells journeys but nobody sells one to it

// Every settlement sells 110 journeys to others (never to the last one),
// priced by distance with some haggling, a few at half prices.
struct JourneyNetwork {
    std::unique_ptr<World> world = std::make_unique<World>();
    int farGoal = 0; // the settlement farthest from the start

    JourneyNetwork()
    {
        Lcg rng;
        for (int n = 1; n <= kMaxSettlements; ++n) {
            int x, y;
            do {
                x = 1 + rng.below(kMapSize);
                y = 1 + rng.below(kMapSize);
            } while (world->sector(x, y).settlementNumber != 0);
            world->settlement(n) = {1, static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), ""};
            world->sector(x, y).settlementNumber = static_cast<std::uint8_t>(n);
            world->sector(x, y).settlementName = "Settlement " + std::to_string(n);
        }
        const SettlementPositions positions = settlementPositions(*world);
        for (int n = 1; n <= kMaxSettlements; ++n) {
            for (int j = 0; j < kJourneysPerSettlement; ++j) {
                int d;
                do
                    d = 1 + rng.below(kMaxSettlements - 1);
                while (d == n);
                const int shop = 1 + j / kItemsPerShop, item = 1 + j % kItemsPerShop;
                const long long price = 1 + positions.distance(n, d) / 3 + rng.below(20);
                world->setShopName(n, shop, "Travel office " + std::to_string(shop));
                world->setItem(n, shop, item, ItemField::Name,
                               "Passage to settlement (" + std::to_string(d) + ")");
                world->setItem(n, shop, item, ItemField::Number, std::to_string(300 + j));
                world->setItem(n, shop, item, ItemField::Price,
                               std::to_string(price) + (rng.below(10) == 0 ? ".5" : ""));
            }
            if (n != kUnreachable && positions.distance(kStart, n) > positions.distance(kStart, farGoal))
                farGoal = n;
        }
    }

    static std::string box(int n)
    {
        return "Settlement " + std::to_string(n) + " (" + std::to_string(n) + ")";
    }
};

const JourneyNetwork &network()
{
    static const JourneyNetwork net;
    return net;
}

const JourneyTable &journeyTable()
{
    static const std::unique_ptr<JourneyTable> table = [] {
        auto t = std::make_unique<JourneyTable>();
        QuietPlatform platform;
        buildJourneyTable(*network().world, platform, *t);
        return t;
    }();
    return *table;
}

template <RouteSearchFunction search> void runSearch(benchmark::State &state, RouteMode mode, int goal)
{
    const JourneyTable &table = journeyTable();
    const RouteEnds ends{kStart, goal};
    auto result = std::make_unique<RouteSearchResult>();
    for (auto _ : state) {
        ClosestSettlement closest{kStart, table.positions.distance(kStart, goal)};
        search(table, mode, ends, closest, *result);
        benchmark::DoNotOptimize(result->found);
    }
}

template <RouteSearchFunction search> void fruitlessCheapest(benchmark::State &state)
{
    runSearch<search>(state, RouteMode::Cheapest, kUnreachable);
}
template <RouteSearchFunction search> void reachableCheapest(benchmark::State &state)
{
    runSearch<search>(state, RouteMode::Cheapest, network().farGoal);
}
template <RouteSearchFunction search> void reachableShortest(benchmark::State &state)
{
    runSearch<search>(state, RouteMode::Shortest, network().farGoal);
}

BENCHMARK(fruitlessCheapest<searchRoute>)->Name("real/fruitless_cheapest")->Unit(benchmark::kMillisecond);
BENCHMARK(fruitlessCheapest<reference::literalSearchRoute>)
    ->Name("literal/fruitless_cheapest")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(reachableCheapest<searchRoute>)->Name("real/reachable_cheapest")->Unit(benchmark::kMillisecond);
BENCHMARK(reachableCheapest<reference::literalSearchRoute>)
    ->Name("literal/reachable_cheapest")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(reachableShortest<searchRoute>)->Name("real/reachable_shortest")->Unit(benchmark::kMillisecond);
BENCHMARK(reachableShortest<reference::literalSearchRoute>)
    ->Name("literal/reachable_shortest")
    ->Unit(benchmark::kMillisecond);

// The whole click: both boxes read, the journey table built for each run,
// the text written.
void wholeSearch(benchmark::State &state, bool reachable)
{
    const int goal = reachable ? network().farGoal : kUnreachable;
    ProgramState programState;
    QuietPlatform platform;
    for (auto _ : state)
        benchmark::DoNotOptimize(findRoutes(*network().world, programState, platform,
                                            JourneyNetwork::box(kStart), JourneyNetwork::box(goal)));
}
BENCHMARK_CAPTURE(wholeSearch, unreachable, false)
    ->Name("real/whole_unreachable")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeSearch, reachable, true)->Name("real/whole_reachable")->Unit(benchmark::kMillisecond);

// Collects the processor time per iteration of every run, for the ratios at
// the end (steadier than the wall clock on a busy machine).
class CollectingReporter : public benchmark::ConsoleReporter {
public:
    std::map<std::string, double> times;

    void ReportRuns(const std::vector<Run> &runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run &run : runs)
            times[run.benchmark_name()] = run.GetAdjustedCPUTime();
    }
};

bool sameResults(int goal)
{
    ProgramState state;
    QuietPlatform platform;
    const auto from = JourneyNetwork::box(kStart), to = JourneyNetwork::box(goal);
    const auto real = findRoutes(*network().world, state, platform, from, to);
    const auto literal =
        findRoutesWith(reference::literalSearchRoute, *network().world, state, platform, from, to);
    const bool same = real && literal && *real == *literal;
    std::printf("goal %d: %s, results %s\n", goal,
                real && real->find("Finished.") != std::string::npos ? "route found" : "no route",
                same ? "identical" : "DIFFERENT");
    return same;
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    std::printf(
        "Network: %d settlements, %d journeys each; start %d, reachable goal %d, unreachable goal %d\n",
        kMaxSettlements, kJourneysPerSettlement, kStart, network().farGoal, kUnreachable);
    const bool same = sameResults(network().farGoal) & sameResults(kUnreachable);

    CollectingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();

    std::printf("\nReference: the literal sweep of all %d entries on every tick.\n", kTravellerPool);
    for (const char *name : {"fruitless_cheapest", "reachable_cheapest", "reachable_shortest"}) {
        const auto real = reporter.times.find(std::string("real/") + name);
        const auto literal = reporter.times.find(std::string("literal/") + name);
        if (real != reporter.times.end() && literal != reporter.times.end() && real->second > 0)
            std::printf("%-20s real is %.0fx faster than the literal sweep (processor time)\n", name,
                        literal->second / real->second);
    }
    return same ? 0 : 1;
}
