// A QuestOR names file whose quoted names span lines still gives a map that
// saves and reads back whole.
#include "support/questor_writer.h"

#include "model/program_state.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "storage/questor_import.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>

namespace wayscribe {
namespace {

using test::QuestorMapWriter;
using test::QuestorNamesWriter;

TEST(QuestorLineBreaks, NamesLoseTheirLineBreaksNotesKeepThemAndTheSavedMapReadsBack)
{
    test::TempDir dir;
    auto world = std::make_unique<World>();
    ProgramState state;
    test::ScriptedPlatform platform;

    QuestorMapWriter mp1;
    mp1.finishTerrain();
    mp1.nameIndex(1).at(10, 20).settlement(5);
    mp1.shop(20).shopNameIndex(1);
    mp1.item(150, 40);
    mp1.item(310, 500, 1);
    QuestorNamesWriter mp2;
    mp2.notes = {{10, 20, "Gate\r\nsecond line"}};
    mp2.settlementNames = {"River\r\nton"};
    mp2.shopNames = {"Arm\noury"};
    mp2.itemNames = {{150, "Short\r\nSword"}};
    mp2.specialSection = true;
    mp2.specialNames = {"Crown\rof Ages"};
    test::writeFile(dir.file("map.mp1"), mp1.bytes());
    test::writeFile(dir.file("map.mp2"), mp2.text());
    const QuestorImportResult result = readQuestorMap(dir.file("map.mp1"), *world, state, platform);
    ASSERT_TRUE(result.ok) << result.error.describe();

    EXPECT_EQ(world->sector(10, 20).settlementName, "River  ton");
    EXPECT_EQ(world->shopName(5, 20), "Arm oury");
    EXPECT_EQ(world->item(5, 20, 1, ItemField::Name), "Short  Sword");
    EXPECT_EQ(world->item(5, 20, 2, ItemField::Name), "Crown of Ages");
    EXPECT_EQ(world->sector(10, 20).note, "Gate\r\nsecond line");

    FileError error;
    ASSERT_TRUE(writeMapFile(dir.file("out.om1"), *world, 0, error)) << error.describe();
    auto reread = std::make_unique<World>();
    std::uint8_t game = 0;
    const MapReadResult read = readMapFile(dir.file("out.om1"), *reread, game);
    ASSERT_TRUE(read.ok) << read.error.describe();
    EXPECT_EQ(reread->sector(10, 20).settlementName, "River  ton");
    EXPECT_EQ(reread->sector(10, 20).note, "Gate\r\nsecond line");
    EXPECT_EQ(reread->item(5, 20, 1, ItemField::Name), "Short  Sword");
}

} // namespace
} // namespace wayscribe
