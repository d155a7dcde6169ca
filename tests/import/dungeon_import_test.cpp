#include "import_fixture.h"

namespace wayscribe::test {

using DungeonImport = ImportTest;

TEST_F(DungeonImport, ScoutsReportsAndInitialExplorationsPlaceTheDungeonFromTheParty)
{
    // Town at 46,68, the dungeon 4 north and 2 east; city at 11,20, the
    // dungeon 5 south and 3 west. The character before the comma is not part
    // of the name, and the note is written with two blanks.
    readData("banner_town.htm");
    EXPECT_EQ(at(48, 64).note, "DUNGEON: Black Pit.  1+ levels.");
    EXPECT_EQ(world->dungeon(1).name, "Black Pit");
    EXPECT_EQ(world->dungeon(1).levels, 1);
    readData("plain_city.html");
    EXPECT_EQ(at(8, 25).note, "DUNGEON: Sunken Crypt.  2+ levels.");
    EXPECT_EQ(world->dungeon(2).name, "Sunken Crypt");
    EXPECT_EQ(world->dungeon(2).levels, 2);
    EXPECT_EQ(world->dungeon(3).name, "");
}

TEST_F(DungeonImport, TheRecordKeepsALevelCountAboveTen)
{
    std::string report = readFile(reportPath("plain_city.html"));
    const std::size_t at2 = report.find("empty level 2 ");
    ASSERT_NE(at2, std::string::npos);
    report.replace(at2, 14, "empty level 12 ");
    readText(report);
    EXPECT_EQ(at(8, 25).note, "DUNGEON: Sunken Crypt.  12+ levels.");
    EXPECT_EQ(world->dungeon(1).levels, 12);
}

TEST_F(DungeonImport, ARecordOfTheSameNameTakesTheDungeonFromTheClaimedSlot)
{
    world->dungeon(5).name = "black pit";
    world->dungeon(5).levels = 4;
    readData("banner_town.htm");
    EXPECT_EQ(world->dungeon(1).name, "");
    EXPECT_EQ(world->dungeon(1).levels, 0);
    EXPECT_EQ(world->dungeon(5).name, "black pit");
    EXPECT_EQ(world->dungeon(5).levels, 1); // the new note was written, so the count follows it
}

TEST_F(DungeonImport, AnExistingNoteDecidesNameAndLevels)
{
    at(48, 64).note = "DUNGEON: Black Pit. 3 levels.";
    readData("banner_town.htm");
    EXPECT_EQ(at(48, 64).note, "DUNGEON: Black Pit. 3 levels.");
    EXPECT_EQ(world->dungeon(1).name, "Black Pit");

    auto fresh = std::make_unique<World>();
    world.swap(fresh);
    at(48, 64).note = "Tavern here";
    readData("banner_town.htm");
    EXPECT_EQ(at(48, 64).note, "Tavern here");
    EXPECT_EQ(world->dungeon(1).name, "");
}

TEST_F(DungeonImport, DungeonMapStoresTheLevelUnderTheDungeonsName)
{
    readData("dungeon_level.htm");
    const Dungeon &d = world->dungeon(200);
    EXPECT_EQ(d.name, "Dark Hole");
    EXPECT_EQ(d.levels, 3);
    EXPECT_EQ(d.level[3].map, " #####\r\n #..D#\r\n #####\r\n");
    EXPECT_EQ(d.level[3].roomData, "#   U/D  TYPE\r\n"
                                   "12  D    Cavern\r\n"
                                   "7   U    Stairs up to leve\r\n"
                                   "3        Empty room with a\r\n"
                                   "Stairs down             \r\n");
    EXPECT_EQ(world->dungeon(199).name, "");
}

TEST_F(DungeonImport, DeeperLevelsRaiseTheCountShallowerOnesDoNot)
{
    const std::string text = readFile(reportPath("dungeon_level.htm"));
    auto atLevel = [&](const std::string &level) {
        std::string t = text;
        t.replace(t.find("level 3,"), 8, "level " + level + ",");
        readText(t);
    };
    readData("dungeon_level.htm");
    atLevel("2");
    EXPECT_EQ(world->dungeon(200).levels, 3);
    EXPECT_EQ(world->dungeon(200).level[2].roomData.substr(0, 5), "#   U");
    atLevel("5");
    EXPECT_EQ(world->dungeon(200).levels, 5);
    atLevel("11"); // no room for it
    EXPECT_EQ(world->dungeon(200).levels, 5);
    EXPECT_EQ(world->dungeon(199).name, "");
}

TEST_F(DungeonImport, TheLowestSlotOfTheSameNameWinsWhateverTheOptions)
{
    setImportOptions(false, false, false, false);
    world->dungeon(3).name = "DARK HOLE";
    world->dungeon(7).name = "dark hole";
    world->dungeon(3).levels = 6;
    readData("dungeon_level.htm");
    EXPECT_EQ(world->dungeon(3).name, "Dark Hole");
    EXPECT_EQ(world->dungeon(3).levels, 6);
    EXPECT_EQ(world->dungeon(7).name, "dark hole");
    EXPECT_EQ(world->dungeon(200).name, "");
}

} // namespace wayscribe::test
