#include "dungeons/dungeon_note.h"
#include "model/change_history.h"
#include "model/program_state.h"
#include "model/world.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;

namespace {

class DungeonFromNote : public ::testing::Test {
protected:
    std::unique_ptr<World> world = std::make_unique<World>();
    DocumentState document;
    ChangeHistory history{*world, document};
    Selections selection;

    std::optional<int> open(const std::string &note)
    {
        world->sector(4, 9).note = note;
        return selectDungeonOfNote(*world, selection, history, 4, 9);
    }
};

} // namespace

TEST(DungeonNoteText, NameUpToTheFullStopAndTheCountAfterIt)
{
    auto read = [](const std::string &note) {
        const DungeonNote n = readDungeonNote(note);
        return std::make_pair(n.name, n.levels);
    };
    EXPECT_EQ(read("DUNGEON: Old Mine. 3+ levels."), std::make_pair(std::string("Old Mine"), 3));
    EXPECT_EQ(read("DUNGEON: Crypt"), std::make_pair(std::string("Crypt"), 0));
    EXPECT_EQ(read("DUNGEON:Deep Hall.12 levels"), std::make_pair(std::string("Deep Hall"), 12));
    EXPECT_EQ(read("DUNGEON: Pit."), std::make_pair(std::string("Pit"), 0)); // nothing after the "."
    EXPECT_EQ(read("DUNGEON: Pit.x3"), std::make_pair(std::string("Pit"), 0));
    EXPECT_TRUE(isDungeonNote("DUNGEON:"));
    EXPECT_FALSE(isDungeonNote("Dungeon: Crypt"));
}

TEST_F(DungeonFromNote, CreatesInTheLowestFreeSlotAndFindsItAgainInAnyCase)
{
    world->dungeon(1).name = "Other";
    ASSERT_EQ(open("DUNGEON: Old Mine. 3+ levels."), 2);
    EXPECT_EQ(world->dungeon(2).name, "Old Mine");
    EXPECT_EQ(world->dungeon(2).levels, 3);
    EXPECT_EQ(selection.selDungeon, 2);
    EXPECT_EQ(document.mapChanged, 0);

    world->dungeon(2).levels = 7; // the dungeon keeps its own count
    EXPECT_EQ(open("DUNGEON: OLD MINE. 3+ levels."), 2);
    EXPECT_EQ(world->dungeon(2).levels, 7);
    EXPECT_EQ(world->dungeon(3).name, "");

    ASSERT_EQ(open("DUNGEON: Crypt"), 3);
    EXPECT_EQ(world->dungeon(3).levels, 0);
    history.undo();
    EXPECT_EQ(world->dungeon(3).name, "");
}

TEST_F(DungeonFromNote, ALaterMatchFreesTheSlotTakenOnTheWayAndTheLastMatchWins)
{
    world->dungeon(5).name = "crypt";
    world->dungeon(5).levels = 2;
    world->dungeon(9).name = "CRYPT";
    world->dungeon(9).levels = 4;
    EXPECT_EQ(open("DUNGEON: Crypt. 1 level."), 9);
    EXPECT_EQ(world->dungeon(1).name, "");
    EXPECT_EQ(world->dungeon(1).levels, 0);
    EXPECT_EQ(world->dungeon(9).levels, 4);
    EXPECT_FALSE(history.canUndo()); // the world is as it was
}

TEST_F(DungeonFromNote, AFullTableGivesSlotZero)
{
    for (int d = 1; d <= kMaxDungeons; ++d)
        world->dungeon(d).name = std::string("D").append(std::to_string(d));
    EXPECT_EQ(open("DUNGEON: Newcomer. 2 levels."), 0);
    EXPECT_EQ(selection.selDungeon, 0);
    EXPECT_EQ(world->dungeon(0).name, "");
}

TEST_F(DungeonFromNote, NothingHappensForOtherNotesOrWhileADungeonWindowIsOpen)
{
    selection.selDungeon = 42;
    EXPECT_FALSE(open("dungeon: Crypt"));
    selection.dungeonFormOpen = 1;
    EXPECT_FALSE(open("DUNGEON: Crypt"));
    EXPECT_EQ(selection.selDungeon, 42);
    EXPECT_EQ(world->dungeon(1).name, "");
}
