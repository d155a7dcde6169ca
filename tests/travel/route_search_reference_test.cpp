// The real search against the literal sweep over the whole traveller pool,
// on random journey networks.
#include "support/literal_route_search.h"

#include "model/program_state.h"
#include "model/world.h"
#include "support/test_support.h"
#include "travel/route_finder.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

struct NetworkShape {
    int settlements;    // numbers 1..settlements, some left free
    int maxJourneys;    // journeys sold per settlement, up to
    int maxPrice;       // whole prices 1..maxPrice
    int oddItemPercent; // items with odd prices or odd numbers in parentheses
    // Settlement 1 sells cheap journeys to 2..111, which sell dear ones to
    // 112..160: more travellers set off at once than the pool holds.
    bool fanOut = false;
};

class RandomNetwork {
public:
    explicit RandomNetwork(unsigned seed) : rng_(seed) {}

    int below(int n) { return static_cast<int>(rng_() % static_cast<unsigned>(n)); }

    void fill(World &world, const NetworkShape &shape)
    {
        world.clear();
        for (int n = 1; n <= shape.settlements; ++n) {
            if (below(10) == 0 && !(shape.fanOut && n <= 111))
                continue; // a free number: journeys to it lead to a place without journeys
            const int x = 1 + below(kMapSize), y = 1 + below(kMapSize);
            placeSettlement(world, n, x, y, "Town" + std::to_string(n));
            const bool fan = shape.fanOut && n <= 111;
            const int journeys = fan ? kJourneysPerSettlement : below(shape.maxJourneys + 1);
            for (int j = 0; j < journeys; ++j) {
                // Shops 0..110; shop 0 must be ignored, later items overwrite earlier ones.
                int shop = below(kMaxShop + 1), item = 1 + below(kItemsPerShop);
                const bool odd = below(100) < shape.oddItemPercent;
                std::string name = journeyName(shape, odd), cost = price(shape, odd);
                if (fan) {
                    shop = 1 + j / kItemsPerShop;
                    item = 1 + j % kItemsPerShop;
                    name = "Passage (" + std::to_string(n == 1 ? 2 + j : 112 + below(49)) + ")";
                    cost = std::to_string(n == 1 ? 1 + below(3) : 50 + below(shape.maxPrice));
                }
                stockItem(world, n, shop, item, name, std::to_string(below(500)), cost);
            }
        }
    }

    long long endpoint(int settlements)
    {
        const int pick = below(20);
        return pick == 0 ? 0 : pick == 1 ? kMaxSettlements + 5 : 1 + below(settlements);
    }

private:
    std::string journeyName(const NetworkShape &shape, bool odd)
    {
        const int d = 1 + below(shape.settlements);
        if (!odd)
            return "Passage (" + std::to_string(d) + ")";
        static const char *const forms[] = {"Potion (healing)", "Boat (0)", "Boat (999)", "Boat )",
                                            "Boat ( -4 )"};
        const int f = below(6);
        return f < 5 ? forms[f] : "Trip (" + std::to_string(d) + ".5)";
    }

    std::string price(const NetworkShape &shape, bool odd)
    {
        if (!odd)
            return std::to_string(1 + below(shape.maxPrice));
        static const char *const forms[] = {"0", "", "2.5", "3.5", "-3", "0.4", "1e1", "12 gp"};
        return forms[below(8)];
    }

    std::mt19937 rng_;
};

void expectSameRuns(const World &world, RouteEnds ends, const std::string &what)
{
    ScriptedPlatform platform;
    auto table = std::make_unique<JourneyTable>();
    buildJourneyTable(world, platform, *table);
    const long long startDistance = table->positions.distance(ends.start, ends.goal);
    ClosestSettlement realClosest{ends.start, startDistance}, literalClosest = realClosest;
    auto real = std::make_unique<RouteSearchResult>();
    auto literal = std::make_unique<RouteSearchResult>();
    for (const RouteMode mode : {RouteMode::Cheapest, RouteMode::Shortest}) {
        searchRoute(*table, mode, ends, realClosest, *real);
        reference::literalSearchRoute(*table, mode, ends, literalClosest, *literal);
        const std::string run = what + (mode == RouteMode::Cheapest ? " cheapest" : " shortest");
        ASSERT_EQ(real->found, literal->found) << run;
        ASSERT_EQ(realClosest.number, literalClosest.number) << run;
        ASSERT_EQ(realClosest.distance, literalClosest.distance) << run;
        ASSERT_EQ(real->parent, literal->parent) << run;
        ASSERT_EQ(real->money, literal->money) << run;
    }
}

void expectSameText(const World &world, RouteEnds ends, const std::string &what)
{
    const std::string from = "From (" + std::to_string(ends.start) + ")";
    const std::string to = "To (" + std::to_string(ends.goal) + ")";
    ProgramState state;
    ScriptedPlatform realPlatform, literalPlatform;
    const auto real = findRoutes(world, state, realPlatform, from, to);
    const auto literal =
        findRoutesWith(reference::literalSearchRoute, world, state, literalPlatform, from, to);
    ASSERT_TRUE(real && literal) << what;
    EXPECT_EQ(*real, *literal) << what;
    ASSERT_EQ(realPlatform.messages.size(), literalPlatform.messages.size()) << what;
    for (std::size_t i = 0; i < realPlatform.messages.size(); ++i)
        EXPECT_EQ(realPlatform.messages[i].text, literalPlatform.messages[i].text) << what;
}

void compareOn(const NetworkShape &shape, unsigned seed, int cases)
{
    auto world = std::make_unique<World>();
    RandomNetwork random(seed);
    for (int c = 0; c < cases; ++c) {
        random.fill(*world, shape);
        RouteEnds ends{random.endpoint(shape.settlements), random.endpoint(shape.settlements)};
        if (shape.fanOut)
            ends = {1, 112 + random.below(60)}; // beyond the crowd, or out of reach
        const std::string what = "seed " + std::to_string(seed) + " case " + std::to_string(c) + " from " +
                                 std::to_string(ends.start) + " to " + std::to_string(ends.goal);
        expectSameRuns(*world, ends, what);
        if (c % 4 == 0)
            expectSameText(*world, ends, what);
        if (::testing::Test::HasFatalFailure())
            return;
    }
}

} // namespace

TEST(RouteSearchReference, SparseNetworksWithOddItems)
{
    compareOn({12, 4, 6, 15}, 1, 24);
    compareOn({40, 3, 30, 10}, 2, 16);
}

TEST(RouteSearchReference, DenseNetworksWithTiesEverywhere)
{
    // Cheap equal prices make many travellers arrive in the same tick.
    compareOn({20, 60, 2, 5}, 3, 20);
    compareOn({160, 110, 3, 2}, 4, 6);
    compareOn({160, 110, 100, 2}, 7, 6);
}

TEST(RouteSearchReference, LongJourneysFillThePool)
{
    // Dear journeys keep many travellers on the way at once.
    compareOn({160, 130, 400, 0, true}, 5, 6);
    compareOn({90, 130, 9000, 3}, 6, 3);
}
