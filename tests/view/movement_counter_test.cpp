#include "model/program_state.h"
#include "model/terrain.h"
#include "model/world.h"
#include "support/test_support.h"
#include "view/movement_costs.h"
#include "view/movement_counter.h"
#include "view/movement_orders.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

const std::string kNoOrders = "No orders were copied to your clipboard. \r\n"
                              "Please select at least 1 movement square after the start square.";

std::string movedMessage(int digits, int orders)
{
    return "You moved " + std::to_string(digits) + " sectors, using " + std::to_string(orders) +
           " orders.\r\nThe necessary 'M' commands have been copied to the clipboard.\r\n"
           "You can now 'Paste' it to a turn or elsewhere.";
}

class MovementCounter : public ::testing::Test {
protected:
    MovementCounter() { setMovementCounter(*world, m(), true); }

    MovementState &m() { return state.movement; }
    void setTerrain(int x, int y, int code) { world->sector(x, y).terrain = static_cast<std::uint8_t>(code); }
    CounterUpdate click(int x, int y) { return addPathSquare(*world, state, x, y); }
    CounterUpdate back() { return takeBackPathSquare(*world, state); }
    std::uint16_t mark(int x, int y) const { return world->sector(x, y).moveMark; }
    void walkEast(int fromX, int y, int moves)
    {
        for (int x = fromX; x <= fromX + moves; ++x)
            click(x, y);
    }
    std::optional<std::string> copy() { return copyMovementOrders(m(), platform); }

    std::unique_ptr<World> world = std::make_unique<World>();
    ProgramState state;
    ScriptedPlatform platform;
};

TEST_F(MovementCounter, ExamplePathCountsItsMovesAndGivesOneOrder)
{
    setTerrain(11, 10, kOpen);
    setTerrain(12, 11, kForest);
    setTerrain(12, 12, kRoad);

    CounterUpdate u = click(10, 10);
    EXPECT_TRUE(u.redrawMap);
    EXPECT_EQ(u.boxes, (CounterBoxes{"0", "0"})) << "the start square resets the boxes";
    EXPECT_EQ(mark(10, 10), 1);

    click(11, 10);
    click(12, 11);
    u = click(12, 12);
    EXPECT_TRUE(u.redrawMap);
    EXPECT_EQ(u.boxes, (CounterBoxes{" 12", " 3"})) << "4 + 5 + 3 on foot, general number format";

    platform.clipboard = "old";
    EXPECT_EQ(copy(), "M 345");
    EXPECT_EQ(platform.clipboard, "M 345");
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].text, movedMessage(3, 1));
    EXPECT_EQ(platform.messages[0].title, "Wayscribe");
}

TEST_F(MovementCounter, EightDigitsToAnOrderAndOnlyTheSignsOfAMoveCount)
{
    walkEast(1, 1, 8);
    EXPECT_EQ(movementOrders(m()).text, "M 33333333");
    click(10, 1);
    EXPECT_EQ(copy(), "M 33333333\r\nM 3");
    EXPECT_EQ(platform.messages.back().text, movedMessage(9, 2));

    // Every direction once, each a long way off; then a square equal to the
    // previous one gives no digit and the next direction is still from there.
    setMovementCounter(*world, m(), false);
    setMovementCounter(*world, m(), true);
    const std::vector<std::pair<int, int>> path = {{50, 50}, {50, 40}, {60, 30}, {70, 30}, {80, 45}, {80, 60},
                                                   {70, 70}, {60, 70}, {55, 65}, {55, 65}, {56, 65}};
    for (const auto &[x, y] : path)
        click(x, y);
    EXPECT_EQ(movementOrders(m()).text, "M 12345678\r\nM 3");
    EXPECT_EQ(m().moveSteps, 10) << "the repeated square still takes a slot";
}

TEST_F(MovementCounter, SameSquareTwiceIsTwoSlotsTwoCostsAndOneDigit)
{
    setTerrain(6, 5, kForest);
    click(5, 5);
    click(6, 5);
    const CounterUpdate u = click(6, 5);
    EXPECT_EQ(u.boxes, (CounterBoxes{" 10", " 2"}));
    EXPECT_EQ(mark(6, 5), 2);
    EXPECT_EQ(copy(), "M 3");
    EXPECT_EQ(platform.messages.back().text, movedMessage(1, 1));
}

TEST_F(MovementCounter, RightClicksTakeThePathBackAndTheStartSquareLast)
{
    setTerrain(2, 1, kHill);
    setTerrain(3, 1, kSwamp);
    walkEast(1, 1, 2); // start, Hill 6, Swamp 7
    click(2, 1);       // Hill again
    EXPECT_EQ(m().moveTotal, 19);

    EXPECT_EQ(back().boxes, (CounterBoxes{" 13", " 2"}));
    EXPECT_EQ(mark(2, 1), 1);
    back();
    EXPECT_EQ(back().boxes, (CounterBoxes{" 0", " 0"}));

    CounterUpdate u = back(); // only the start square is left
    EXPECT_TRUE(u.redrawMap);
    EXPECT_FALSE(u.boxes);
    EXPECT_EQ(mark(1, 1), 0);
    EXPECT_FALSE(back().redrawMap) << "nothing left";

    // With only the start square there is nothing to copy, and the old
    // clipboard text is gone all the same.
    click(7, 7);
    platform.clipboard = "old";
    EXPECT_EQ(copy(), "");
    EXPECT_EQ(platform.clipboard, "");
    EXPECT_EQ(platform.messages.back().text, kNoOrders);
}

TEST_F(MovementCounter, WaterCostsNothingButWithWings)
{
    setTerrain(2, 1, kWater);
    walkEast(1, 1, 1);
    setHorseCounter(*world, m(), true);
    const std::pair<Mount, const char *> expected[] = {
        {Mount::Arabians, " 0"}, {Mount::Mules, " 0"}, {Mount::Drafts, " 0"}, {Mount::Flying, " 2"}};
    for (const auto &[mount, points] : expected)
        EXPECT_EQ(chooseMount(*world, m(), mount).boxes, (CounterBoxes{points, " 1"})) << int(mount);
    setHorseCounter(*world, m(), false);
    EXPECT_EQ(m().moveTotal, 0);
}

TEST_F(MovementCounter, MountChoiceAndHorseBoxSetTheColumnAndRecount)
{
    setTerrain(2, 1, kDesert);
    setTerrain(3, 1, kHill);
    setTerrain(4, 1, kMountain);
    walkEast(1, 1, 3);
    EXPECT_EQ(m().moveTotal, 5 + 6 + 7);

    // At start-up Arabians is the checked mount: ticking the horse box alone
    // counts with it.
    const CounterUpdate u = setHorseCounter(*world, m(), true);
    EXPECT_EQ(u.boxes, (CounterBoxes{" 14", " 3"}));
    EXPECT_FALSE(u.redrawMap);
    EXPECT_EQ(chooseMount(*world, m(), Mount::Mules).boxes, (CounterBoxes{" 9", " 3"}));

    // With the horse box off a mount still sets the column, without a recount.
    setHorseCounter(*world, m(), false);
    EXPECT_EQ(m().moveMode, 0);
    EXPECT_FALSE(chooseMount(*world, m(), Mount::Flying).boxes);
    EXPECT_EQ(m().moveMode, 4);
    EXPECT_EQ(m().moveTotal, 18);
    setHorseCounter(*world, m(), true);
    EXPECT_EQ(m().moveTotal, 6) << "Flying is the checked item now";

    // With the counter off the horse box changes the column only.
    setMovementCounter(*world, m(), false);
    EXPECT_FALSE(setHorseCounter(*world, m(), false).boxes);
    EXPECT_FALSE(chooseMount(*world, m(), Mount::Drafts).boxes);
}

TEST_F(MovementCounter, TheHundredAndFirstMoveIsIgnored)
{
    setTerrain(1, 2, kOpen);
    for (int i = 0; i <= kMaxPathEntries; ++i)
        click(1, 2);
    EXPECT_EQ(m().moveTotal, 400);
    EXPECT_FALSE(click(1, 2).redrawMap);
    EXPECT_EQ(mark(1, 2), 101);
    EXPECT_EQ(m().moveSteps, 100);
}

TEST_F(MovementCounter, TurningOffRemovesPathMarksAndCountsAndStopsTheOrders)
{
    setTerrain(4, 4, kCity);
    click(3, 4);
    click(4, 4);
    click(3, 4);
    const CounterUpdate u = setMovementCounter(*world, m(), false);
    EXPECT_EQ(u.boxes, (CounterBoxes{"0", "0"}));
    EXPECT_TRUE(u.redrawMap);
    EXPECT_EQ(mark(3, 4), 0);
    EXPECT_EQ(mark(4, 4), 0);
    EXPECT_EQ(m().moveTotal, 0);
    EXPECT_EQ(m().pathX, decltype(m().pathX){});

    platform.clipboard = "old";
    EXPECT_FALSE(copy());
    EXPECT_EQ(platform.clipboard, "old");
    EXPECT_TRUE(platform.messages.empty());

    EXPECT_FALSE(setMovementCounter(*world, m(), true).redrawMap);
}

TEST_F(MovementCounter, AClearedMapKeepsMarksAtZeroWhileTheOldPathIsTakenBack)
{
    click(1, 1);
    click(2, 1);
    world->clear();
    back();
    EXPECT_EQ(mark(2, 1), 0);
}

TEST(MoveCosts, CodesAndModesOutsideTheTableCostNothing)
{
    EXPECT_EQ(moveCost(kHill, 2), 2);
    EXPECT_EQ(moveCost(kCity, 4), 2);
    for (const int code : {0, 19, 25, 255})
        for (int mode = 0; mode < kMoveModes; ++mode)
            EXPECT_EQ(moveCost(code, mode), 0) << code;
    EXPECT_EQ(moveCost(kOpen, -1), 0);
    EXPECT_EQ(moveCost(kOpen, 5), 0);
}

} // namespace
