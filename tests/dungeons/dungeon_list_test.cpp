#include "dungeons/dungeon_list.h"
#include "model/world.h"
#include "support/table_rows.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

TEST(DungeonList, RowsOfDungeonsInUseCountMappedLevelsWhateverTheKnownCount)
{
    auto world = std::make_unique<World>();
    ReportTable table = dungeonListTable(*world);
    EXPECT_FALSE(fillDungeonList(table, *world));

    Dungeon &mine = world->dungeon(4);
    mine.name = "Old Mine";
    mine.levels = 1;
    mine.level[2].map = "#.#";
    mine.level[3].map = "   "; // blanks only: not mapped
    mine.level[10].map = "\r\n";
    world->dungeon(150).name = "Crypt";
    world->dungeon(150).levels = 3;
    EXPECT_TRUE(fillDungeonList(table, *world));
    EXPECT_EQ(tableRows(table), std::vector<std::string>({"Old Mine|1|2|4", "Crypt|3|0|150"}));
    EXPECT_EQ(table.column(1).kind, SortKind::Text);
    EXPECT_EQ(table.column(4).kind, SortKind::Number);
}

TEST(DungeonList, RemovalClearsEveryLevelAndTheOtherRowsKeepTheirNumbers)
{
    auto world = std::make_unique<World>();
    world->sector(3, 3).note = "DUNGEON: Old Mine";
    for (int d : {2, 4, 6}) {
        world->dungeon(d).name = std::string("Cave ").append(std::to_string(d));
        world->dungeon(d).levels = 10;
        for (int l = 1; l <= kLevelsPerDungeon; ++l)
            world->dungeon(d).level[l] = {"map", "rooms"};
    }
    EXPECT_EQ(dungeonRemovalQuestion(*world, 4), "Really remove dungeon 'Cave 4' ?");
    removeDungeon(*world, 4);
    const Dungeon &removed = world->dungeon(4);
    EXPECT_EQ(removed.name, "");
    EXPECT_EQ(removed.levels, 0);
    for (int l = 1; l <= kLevelsPerDungeon; ++l) {
        EXPECT_EQ(removed.level[l].map, "");
        EXPECT_EQ(removed.level[l].roomData, "");
    }
    EXPECT_EQ(world->sector(3, 3).note, "DUNGEON: Old Mine");
    ReportTable table = dungeonListTable(*world);
    fillDungeonList(table, *world);
    EXPECT_EQ(tableRows(table), std::vector<std::string>({"Cave 2|10|10|2", "Cave 6|10|10|6"}));
}
