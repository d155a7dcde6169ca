#include "dungeons/dungeon_sheet.h"
#include "model/change_history.h"
#include "model/program_state.h"
#include "model/world.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;

namespace {

class DungeonWindowRules : public ::testing::Test {
protected:
    std::unique_ptr<World> world = std::make_unique<World>();
    DocumentState document;
    ChangeHistory history{*world, document};
    Selections selection;
    Dungeon &mine() { return world->dungeon(6); }

    DungeonWindowRules()
    {
        selection.selDungeon = 6;
        mine().name = "Old Mine";
        mine().levels = 3;
        for (int l = 1; l <= kLevelsPerDungeon; ++l)
            mine().level[l].roomData = std::string("rooms ").append(std::to_string(l));
    }
};

} // namespace

TEST_F(DungeonWindowRules, OpensOnTheDeepestMappedLevelAndTheLastEntranceNote)
{
    mine().level[2].map = "#.#";
    mine().level[5].map = "#D#";
    mine().level[7].map = "   ";
    world->sector(10, 3).note = "DUNGEON: Old Mine. 3+ levels.";
    world->sector(2, 9).note = "near the Old Mine";
    world->sector(150, 8).note = "the old mine"; // case-sensitive: no match
    DungeonSheet sheet(*world, selection, history);
    EXPECT_EQ(selection.dungeonFormOpen, 1);
    EXPECT_EQ(sheet.currentLevel(), 5);
    EXPECT_EQ(sheet.levelMap(), "#D#");
    EXPECT_EQ(sheet.roomData(), "rooms 5");
    EXPECT_EQ(sheet.position().x, 2);
    EXPECT_EQ(sheet.position().y, 9);
    sheet.close("3", sheet.roomData());
    EXPECT_EQ(selection.dungeonFormOpen, 0);

    mine().level[2].map = mine().level[5].map = "";
    world->sector(2, 9).note = world->sector(10, 3).note = "";
    DungeonSheet unmapped(*world, selection, history);
    EXPECT_EQ(unmapped.currentLevel(), 1);
    EXPECT_EQ(unmapped.position().x, 0);
    EXPECT_EQ(unmapped.position().y, 0);
}

TEST_F(DungeonWindowRules, StepsStayWithinLevelOneAndTheKnownLevelsStoringTheRoomData)
{
    DungeonSheet sheet(*world, selection, history);
    EXPECT_FALSE(sheet.levelUp("typed on 1"));
    EXPECT_EQ(mine().level[1].roomData, "rooms 1"); // no step, nothing stored
    EXPECT_TRUE(sheet.levelDown("typed on 1"));
    EXPECT_TRUE(sheet.levelDown("rooms 2"));
    EXPECT_FALSE(sheet.levelDown("typed on 3"));
    EXPECT_EQ(sheet.currentLevel(), 3);
    EXPECT_EQ(mine().level[1].roomData, "typed on 1");
    EXPECT_EQ(mine().level[3].roomData, "rooms 3");
    EXPECT_TRUE(sheet.levelUp("typed on 3"));
    EXPECT_EQ(sheet.roomData(), "rooms 2");
    EXPECT_EQ(mine().level[3].roomData, "typed on 3");
    history.undo();
    EXPECT_EQ(mine().level[3].roomData, "rooms 3");
    EXPECT_EQ(document.mapChanged, 1); // undo marks the map; the window itself never does
}

TEST_F(DungeonWindowRules, TypedLevelsOutsideOneToTenAreIgnored)
{
    mine().levels = 0;
    DungeonSheet sheet(*world, selection, history);
    EXPECT_FALSE(sheet.levelDown(sheet.roomData()));
    EXPECT_TRUE(sheet.typeLevel("7", "typed on 1"));
    EXPECT_EQ(sheet.currentLevel(), 7);
    EXPECT_EQ(mine().level[1].roomData, "typed on 1");
    for (const char *typed : {"0", "11", "-2", "abc", "", "10.7", " 7"})
        EXPECT_FALSE(sheet.typeLevel(typed, sheet.roomData())) << typed;
    EXPECT_TRUE(sheet.typeLevel(" 10abc", sheet.roomData()));
    EXPECT_EQ(sheet.currentLevel(), 10);
    EXPECT_FALSE(sheet.levelDown(sheet.roomData())); // never past the last level
    EXPECT_EQ(document.mapChanged, 0);
}

TEST_F(DungeonWindowRules, KnownLevelsAreStoredWhenTypedAndOnClose)
{
    DungeonSheet sheet(*world, selection, history);
    sheet.typeKnownLevels("8");
    EXPECT_EQ(mine().levels, 8);
    for (const char *typed : {"0", "11", "x"})
        sheet.typeKnownLevels(typed);
    EXPECT_EQ(mine().levels, 8);
    sheet.close("11", "closing rooms");
    EXPECT_EQ(mine().levels, 8); // out of range on close too
    EXPECT_EQ(mine().level[1].roomData, "closing rooms");
    DungeonSheet again(*world, selection, history);
    again.close("0", again.roomData()); // closing may store 0
    EXPECT_EQ(mine().levels, 0);
    history.undo();
    history.undo();
    EXPECT_EQ(mine().levels, 8);
    EXPECT_EQ(mine().level[1].roomData, "rooms 1");
}
