#include "model/program_state.h"
#include "model/world.h"
#include "support/test_support.h"
#include "travel/route_finder.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

const std::string kWait = "Please wait, calculating routes...\r\n";
const std::string kZeroPrice =
    "There seems to be a problem with the price of a journey \r\nitem in settlement #1, "
    "shop #1.\r\nThe cost has been counted as 1 in these calculations, \r\nbut you "
    "should correct this as soon as possible for \r\naccurate journey plans.";

class RouteFinder : public ::testing::Test {
protected:
    std::unique_ptr<World> world = std::make_unique<World>();
    ProgramState state;
    ScriptedPlatform platform;

    void settle(int n, const std::string &name, int x, int y) { placeSettlement(*world, n, x, y, name); }
    void sell(int n, int shop, int item, const std::string &name, const std::string &number,
              const std::string &price)
    {
        world->setShopName(n, shop, "Harbour");
        stockItem(*world, n, shop, item, name, number, price);
    }

    // Alpha, Beta and Gamma in a row, ten sectors apart.
    void threeTowns()
    {
        settle(1, "Alpha", 10, 10);
        settle(2, "Beta", 20, 10);
        settle(3, "Gamma", 30, 10);
    }

    std::optional<std::string> find(const std::string &from, const std::string &to)
    {
        return findRoutes(*world, state, platform, from, to);
    }

    static std::string route(const std::string &heading, const std::string &orders, const std::string &total)
    {
        return heading + ":\r\n" + orders + "Total cost to reach destination:  " + total +
               " gp per head\r\n\r\n";
    }

    static std::string failure(const std::string &from, const std::string &to, const std::string &closest,
                               const std::string &distance)
    {
        return "No routes found from " + from + " to " + to +
               ".\r\n\r\nThe closest settlement to your destination was calculated as:\r\n" + closest +
               " with a rough distance of " + distance + " sectors from " + to +
               ".\r\n\r\nYou may be able to journey to " + closest + " and travel on foot to " + to +
               "... or journey to " + closest +
               " travel on foot to a nearby settlement, and try to continue the journeys to " + to +
               " from there.";
    }
};

} // namespace

TEST_F(RouteFinder, FindsTheCheapestAndTheShortestRoute)
{
    threeTowns();
    sell(1, 1, 1, "Passage to Beta (2)", "7", "5");
    sell(1, 1, 2, "Passage to Gamma (3)", "8", "50");
    sell(2, 2, 3, "Ferry (3)", "9", "10");
    state.document.fileBusy = 0;
    EXPECT_EQ(find("Alpha (1)", "Gamma (3)"),
              kWait +
                  route("Cheapest Route",
                        "B 99 1 7 @ 5gp to get to Beta (2)\r\nB 99 2 9 @ 10gp to get to Gamma (3)\r\n",
                        "15") +
                  route("Shortest Route", "B 99 1 8 @ 50gp to get to Gamma (3)\r\n", "50") + "Finished.\r\n");
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(state.document.fileBusy, 0);
    EXPECT_FALSE(platform.waitCursor);
}

TEST_F(RouteFinder, OnlyTheNumberInParenthesesCounts)
{
    threeTowns();
    sell(1, 1, 1, "Passage (2)", "7", "5");
    EXPECT_EQ(find("anything (1.4)", " (2) and more"),
              kWait + route("Cheapest Route", "B 99 1 7 @ 5gp to get to Beta (2)\r\n", "5") +
                  route("Shortest Route", "B 99 1 7 @ 5gp to get to Beta (2)\r\n", "5") + "Finished.\r\n");
}

TEST_F(RouteFinder, DuplicateJourneysCostTheLastPriceAndPrintTheFirstOrder)
{
    threeTowns();
    sell(1, 1, 1, "To Beta (2)", "1", "30");
    sell(1, 3, 2, "Boat to Beta (2)", "2", "4");
    // A detour that would win at the first price.
    sell(1, 2, 1, "To Gamma (3)", "3", "2");
    sell(3, 1, 1, "To Beta (2)", "4", "3");
    const std::string direct = "B 99 1 1 @ 30gp to get to Beta (2)\r\n";
    EXPECT_EQ(find("Alpha (1)", "Beta (2)"), kWait + route("Cheapest Route", direct, "4") +
                                                 route("Shortest Route", direct, "4") + "Finished.\r\n");
}

TEST_F(RouteFinder, PricesAreRoundedHalvesToEvenAndZeroCountsAsOne)
{
    threeTowns();
    sell(1, 1, 1, "To Beta (2)", "1", "2.5");  // 2
    sell(2, 1, 1, "To Gamma (3)", "2", "3.5"); // 4
    sell(1, 1, 2, "To Gamma (3)", "3", "7");   // the direct way costs more
    EXPECT_EQ(find("Alpha (1)", "Gamma (3)"),
              kWait +
                  route("Cheapest Route",
                        "B 99 1 1 @ 2.5gp to get to Beta (2)\r\nB 99 1 2 @ 3.5gp to get to Gamma (3)\r\n",
                        "6") +
                  route("Shortest Route", "B 99 1 3 @ 7gp to get to Gamma (3)\r\n", "7") + "Finished.\r\n");

    // A price that rounds to nothing is counted as 1 and reported in each run.
    sell(1, 1, 1, "To Beta (2)", "1", "0.4");
    platform.messages.clear();
    const auto text = find("Alpha (1)", "Beta (2)");
    ASSERT_TRUE(text);
    EXPECT_NE(text->find("Total cost to reach destination:  1 gp"), std::string::npos);
    ASSERT_EQ(platform.messages.size(), 2u);
    EXPECT_EQ(platform.messages[0].text, kZeroPrice);
    EXPECT_EQ(platform.messages[0].title, "Wayscribe");
    EXPECT_EQ(platform.messages[0].buttons, MessageButtons::Ok);

    // The waiting text is shown before the first price message appears.
    platform.messages.clear();
    std::size_t messagesWhenStarted = 99;
    std::string shown;
    findRoutes(*world, state, platform, "Alpha (1)", "Beta (2)", [&](const std::string &wait) {
        shown = wait;
        messagesWhenStarted = platform.messages.size();
    });
    EXPECT_EQ(shown, kWait);
    EXPECT_EQ(messagesWhenStarted, 0u);

    // A failing cheapest run makes no second run, so the message comes once.
    platform.messages.clear();
    sell(1, 2, 1, "Odd item (x)", "5", "");
    EXPECT_NE(find("Alpha (1)", "Gamma (0)")->find("No routes found"), std::string::npos);
    EXPECT_EQ(platform.messages.size(), 2u) << "one for each journey without a price";
}

TEST_F(RouteFinder, OnlyShopsOneToOneHundredTenSellJourneys)
{
    threeTowns();
    settle(4, "Delta", 21, 10);
    sell(1, 0, 1, "To Beta (2)", "1", "5");
    sell(1, 110, 20, "To Delta (4)", "2", "5");
    EXPECT_EQ(find("Alpha (1)", "Beta (2)"), kWait + failure("Alpha (1)", "Beta (2)", "Delta (4)", "1"));
}

TEST_F(RouteFinder, UnreachableGoalNamesTheClosestSettlement)
{
    threeTowns();
    settle(4, "Delta", 33, 14); // 5 sectors from Gamma
    settle(5, "Echo", 34, 10);  // 4 sectors from Gamma, but reached later
    sell(1, 1, 1, "To Beta (2)", "1", "1");
    sell(2, 1, 1, "To Delta (4)", "2", "1");
    sell(2, 1, 2, "To Echo (5)", "3", "2");
    sell(1, 1, 2, "To Mirror (7)", "4", "1"); // a number that is no settlement in use
    EXPECT_EQ(find("Alpha (1)", "Gamma (3)"), kWait + failure("Alpha (1)", "Gamma (3)", "Echo (5)", "4"));

    // A tie keeps the settlement reached first; nothing closer keeps the start.
    world->settlement(5).x = 33;
    world->settlement(5).y = 6;
    world->sector(33, 6).settlementName = "Echo";
    EXPECT_EQ(find("Alpha (1)", "Gamma (3)"), kWait + failure("Alpha (1)", "Gamma (3)", "Delta (4)", "5"));
    EXPECT_EQ(find("Gamma (3)", "Alpha (1)"), kWait + failure("Gamma (3)", "Alpha (1)", "Gamma (3)", "20"));
    EXPECT_EQ(state.document.fileBusy, 0);
}

TEST_F(RouteFinder, StartEqualToGoalIsNeverReached)
{
    threeTowns();
    sell(1, 1, 1, "To Beta (2)", "1", "1");
    sell(2, 1, 1, "Back to Alpha (1)", "2", "1");
    EXPECT_EQ(find("Alpha (1)", "Alpha (1)"), kWait + failure("Alpha (1)", "Alpha (1)", "Alpha (1)", "0"));
}

TEST_F(RouteFinder, ATravellerPlacedAboveItsCreatorSetsOffInTheSameTick)
{
    // Both ways to Gamma cost 3, but the one through Echo is taken by an
    // entry above the traveller that reached Echo and so arrives a tick
    // earlier.
    threeTowns();
    settle(4, "Delta", 40, 40);
    settle(5, "Echo", 50, 50);
    settle(6, "Foxton", 60, 60);
    sell(1, 1, 1, "To Beta (2)", "1", "1");   // entry 1
    sell(1, 1, 2, "To Delta (4)", "2", "9");  // entry 2
    sell(1, 1, 3, "To Echo (5)", "3", "1");   // entry 3
    sell(2, 1, 1, "To Gamma (3)", "4", "2");  // from Beta: entry 1 again
    sell(5, 1, 1, "To Foxton (6)", "5", "5"); // from Echo: entry 3 again
    sell(5, 1, 2, "To Gamma (3)", "6", "2");  // from Echo: entry 4
    const auto text = find("Alpha (1)", "Gamma (3)");
    ASSERT_TRUE(text);
    const std::string cheapest = route(
        "Cheapest Route", "B 99 1 3 @ 1gp to get to Echo (5)\r\nB 99 1 6 @ 2gp to get to Gamma (3)\r\n", "3");
    EXPECT_EQ(text->substr(kWait.size(), cheapest.size()), cheapest);
}

TEST_F(RouteFinder, LongChainsKeepTheirFirstHopsAndTheShortestRunHasFewerTicks)
{
    // 155 settlements in a line, each selling the way to the next: 154 hops.
    for (int n = 1; n <= 155; ++n) {
        settle(n, "Stop" + std::to_string(n), n, 1);
        if (n < 155)
            sell(n, 1, 1, "Onward (" + std::to_string(n + 1) + ")", std::to_string(n), "1");
    }
    const auto text = find("Stop1 (1)", "Stop155 (155)");
    ASSERT_TRUE(text);
    std::string orders;
    for (int n = 1; n <= 149; ++n)
        orders += "B 99 1 " + std::to_string(n) + " @ 1gp to get to Stop" + std::to_string(n + 1) + " (" +
                  std::to_string(n + 1) + ")\r\n";
    // The shortest run gives up after its tick budget, so the failure text
    // follows the cheapest route, naming the closest place of both runs.
    EXPECT_EQ(*text, kWait + route("Cheapest Route", orders, "154") +
                         failure("Stop1 (1)", "Stop155 (155)", "Stop154 (154)", "1"));
}

TEST_F(RouteFinder, ASettlementSellsAtMostOneHundredTenJourneys)
{
    threeTowns();
    // 110 items with parentheses but no settlement number, then the way to Beta.
    for (int i = 0; i < 110; ++i)
        sell(1, 1 + i / 20, 1 + i % 20, "Potion (healing)", "1", "3");
    sell(1, 6, 11, "To Beta (2)", "2", "3");
    EXPECT_EQ(find("Alpha (1)", "Beta (2)"), kWait + failure("Alpha (1)", "Beta (2)", "Alpha (1)", "10"));
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(RouteFinder, MalformedBoxesAreRefusedAndEmptyOnesIgnored)
{
    threeTowns();
    state.document.fileBusy = 0;
    EXPECT_FALSE(find("", "Beta (2)"));
    EXPECT_FALSE(find("Alpha (1)", ""));
    EXPECT_TRUE(platform.messages.empty());

    const std::string names = "Bad settlement names in to/from field? Cancelling search.";
    const std::string numbers = "Bad settlement numbers in to/from field? Cancelling search.";
    struct Case {
        std::string from, to, message;
    };
    for (const Case &c : {Case{"Alpha 1", "Beta (2)", names}, Case{"Alpha (1)", "Beta (2", names},
                          Case{"Alpha 1)", "Beta 2)", names}, Case{"Alpha )(", "Beta (2)", numbers},
                          Case{"Alpha (1)", ")Beta (2", numbers}}) {
        platform.messages.clear();
        EXPECT_FALSE(find(c.from, c.to)) << c.from << " / " << c.to;
        ASSERT_EQ(platform.messages.size(), 1u) << c.from << " / " << c.to;
        EXPECT_EQ(platform.messages[0].text, c.message);
        EXPECT_EQ(platform.messages[0].title, "Wayscribe");
    }
    EXPECT_EQ(state.document.fileBusy, 0);
}

TEST_F(RouteFinder, DearJourneysAddUpBeyondSixteenBits)
{
    threeTowns();
    settle(4, "Delta", 40, 10);
    settle(5, "Echo", 50, 10);
    sell(1, 1, 1, "To Beta (2)", "1", "1");
    sell(2, 1, 1, "To Gamma (3)", "2", "1");
    sell(3, 1, 1, "To Delta (4)", "3", "1");
    sell(1, 1, 2, "To Echo (5)", "4", "30000");
    sell(5, 1, 1, "To Delta (4)", "5", "30000");
    const auto text = find("Alpha (1)", "Delta (4)");
    ASSERT_TRUE(text);
    EXPECT_NE(text->find("destination:  3 gp"), std::string::npos);
    EXPECT_NE(
        text->find("Shortest Route:\r\nB 99 1 4 @ 30000gp to get to Echo (5)\r\nB 99 1 5 @ 30000gp to get "
                   "to Delta (4)\r\nTotal cost to reach destination:  60000 gp"),
        std::string::npos);
}

TEST_F(RouteFinder, WarnsOnceEveryCheckedSourceSellsTheWayToOnePlace)
{
    // Settlements 1..110 all sell the way to 112; one more journey there
    // overflows the original table and is reported in each run.
    settle(112, "Hub", 100, 100);
    for (int n = 1; n <= 111; ++n) {
        settle(n, "Spoke" + std::to_string(n), n, 1);
        sell(n, 1, 1, "To the hub (112)", "1", "3");
    }
    EXPECT_NE(find("Spoke1 (1)", "Hub (112)")->find("Finished."), std::string::npos);
    ASSERT_EQ(platform.messages.size(), 2u);
    EXPECT_EQ(platform.messages[1].text,
              "Warning! Error! Increase 99 value for 'Cost to' variable! Please report this bug ASAP!");
    platform.messages.clear();
    world->setItem(111, 1, 1, ItemField::Name, "");
    find("Spoke1 (1)", "Hub (112)");
    EXPECT_TRUE(platform.messages.empty());
}
