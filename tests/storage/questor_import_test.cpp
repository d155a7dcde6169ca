// What a QuestOR map puts into the model: terrain, settlements, shops, items
// and their names.
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

class QuestorImportTest : public ::testing::Test {
protected:
    QuestorImportResult import(const QuestorMapWriter &mp1, const QuestorNamesWriter &mp2)
    {
        const std::string path = dir.file("map.mp1");
        test::writeFile(path, mp1.bytes());
        test::writeFile(dir.file("map.mp2"), mp2.text());
        return readQuestorMap(path, *world, state, platform);
    }

    std::string item(int n, int shop, int i, ItemField f) const
    {
        return std::string(world->item(n, shop, i, f));
    }
    std::string shopName(int n, int shop) const { return std::string(world->shopName(n, shop)); }

    test::TempDir dir;
    std::unique_ptr<World> world = std::make_unique<World>();
    ProgramState state;
    test::ScriptedPlatform platform;
};

TEST_F(QuestorImportTest, TerrainRunsGoDownTheColumnsAndKeepCodesWithoutAName)
{
    world->sector(1, 3).note = "old note";
    world->sector(200, 200).terrain = 11;
    world->sector(200, 200).note = "another";
    world->settlement(4).inUse = 1;
    world->sector(120, 7).settlementName = "Kept";

    QuestorMapWriter mp1;
    mp1.run(5, 1);   // the value 126: five sectors of Water
    mp1.run(197, 3); // the rest of column 1 and the top of column 2
    mp1.value(-60);  // a negative value makes no run
    mp1.run(1, 18);  // QuestOR codes 18..24 give 19..25
    mp1.run(1, 24);
    mp1.finishTerrain(0);
    ASSERT_TRUE(import(mp1, {}).ok);

    EXPECT_EQ(mp1.bytes().substr(0, 2), std::string("\x7e\x00", 2));
    for (int y = 1; y <= 5; ++y)
        EXPECT_EQ(world->sector(1, y).terrain, 2) << y;
    EXPECT_EQ(world->sector(1, 6).terrain, 4);
    EXPECT_EQ(world->sector(1, 200).terrain, 4);
    EXPECT_EQ(world->sector(2, 2).terrain, 4);
    EXPECT_EQ(world->sector(2, 3).terrain, 19);
    EXPECT_EQ(world->sector(2, 4).terrain, 25);
    EXPECT_EQ(world->sector(2, 5).terrain, 1);
    EXPECT_EQ(world->sector(200, 200).terrain, 1);
    EXPECT_EQ(world->sector(1, 3).note, "");
    EXPECT_EQ(world->sector(200, 200).note, "");
    // Only what the files name is replaced.
    EXPECT_EQ(world->settlement(4).inUse, 1);
    EXPECT_EQ(world->sector(120, 7).settlementName, "Kept");

    // The map file keeps the codes that have no name.
    FileError error;
    ASSERT_TRUE(writeMapFile(dir.file("out.om1"), *world, 0, error)) << error.describe();
    auto reread = std::make_unique<World>();
    std::uint8_t game = 0;
    ASSERT_TRUE(readMapFile(dir.file("out.om1"), *reread, game).ok);
    EXPECT_EQ(reread->sector(2, 3).terrain, 19);
    EXPECT_EQ(reread->sector(2, 4).terrain, 25);
}

TEST_F(QuestorImportTest, TokensPlaceSettlementsShopsAndItemsThatTheNamesFileNames)
{
    world->setShopName(9, 4, "4 Winds"); // an older shop whose name reads as a number

    QuestorMapWriter mp1;
    mp1.finishTerrain();
    mp1.nameIndex(3).at(10, 20).settlement(5);
    mp1.shop(20).shopNameIndex(1);
    mp1.item(150, 40);
    mp1.item(310, 500, 1);  // special: named by the special section
    mp1.value(0).value(-7); // an item without a number
    mp1.item(200, 12);
    mp1.shop(21); // no name token: keeps its placeholder
    mp1.nameIndex(4).at(30, 40).settlement(0);
    mp1.value(3501);
    // Coordinates alternate through the whole stream: 8 is X, 9 is Y, 11 is X.
    mp1.nameIndex(1).value(2008).value(2009).value(2011).settlement(7);
    mp1.shop(30).shopNameIndex(2).item(317, 3, 2).item(999, 1, 1);
    mp1.shop(100).shopNameIndex(3);
    // Number only; then a shop name "0", and a name index for the item
    // before the first.
    mp1.shop(40).value(150).value(5000).value(5004);

    QuestorNamesWriter mp2;
    mp2.notes = {{10, 20, "Castle gate"}, {200, 1, "Corner\r\nsecond line"}, {0, 7, "row zero"}};
    mp2.settlementNames = {"Riverton", "Nobody", "Highcastle"};
    mp2.shopNames = {"Armoury", "Stables", "Tower", "Winds", "Nowhere"};
    mp2.itemNames = {{150, "Short Sword"},
                     {200, "Rope"},
                     {310, "Not a special name"},
                     {999, "Lamp"},
                     {1000, "Entry 1000"}};
    mp2.specialSection = true;
    mp2.specialNames = {"Crown of Ages", "Orb of Night"};
    const QuestorImportResult result = import(mp1, mp2);
    ASSERT_TRUE(result.ok) << result.error.describe();

    // Settlements: name index as a name, until the names file renames them.
    EXPECT_EQ(world->settlement(5).inUse, 1);
    EXPECT_EQ(world->settlement(5).x, 10);
    EXPECT_EQ(world->settlement(5).y, 20);
    EXPECT_EQ(world->sector(10, 20).settlementNumber, 5);
    EXPECT_EQ(world->sector(10, 20).settlementName, "Highcastle");
    EXPECT_EQ(world->sector(11, 9).settlementNumber, 7);
    EXPECT_EQ(world->sector(11, 9).settlementName, "Riverton");
    EXPECT_EQ(world->settlement(0).inUse, 1);
    EXPECT_EQ(world->sector(30, 40).settlementName, "Unknown");

    // Shops: the j-th name goes to the first shop 1..99 whose name reads j.
    EXPECT_EQ(shopName(5, 20), "Armoury");
    EXPECT_EQ(shopName(5, 21), "a");
    EXPECT_EQ(shopName(7, 30), "Stables");
    EXPECT_EQ(shopName(7, 100), "3");
    EXPECT_EQ(shopName(9, 4), "Winds");
    EXPECT_EQ(shopName(7, 40), "0");

    // Items: number, price with its blank, and the name.
    EXPECT_EQ(item(5, 20, 1, ItemField::Number), "150");
    EXPECT_EQ(item(5, 20, 1, ItemField::Price), " 40");
    EXPECT_EQ(item(5, 20, 1, ItemField::Name), "Short Sword");
    EXPECT_EQ(item(5, 20, 2, ItemField::Number), "310");
    EXPECT_EQ(item(5, 20, 2, ItemField::Name), "Crown of Ages");
    EXPECT_EQ(item(5, 20, 3, ItemField::Number), "");
    EXPECT_EQ(item(5, 20, 3, ItemField::Price), " 7");
    EXPECT_EQ(item(5, 20, 3, ItemField::Name), "");
    EXPECT_EQ(item(5, 20, 4, ItemField::Name), "Rope");
    EXPECT_EQ(item(7, 30, 1, ItemField::Name), "Orb of Night");
    EXPECT_EQ(item(7, 30, 2, ItemField::Name), "Lamp");
    EXPECT_EQ(item(7, 40, 1, ItemField::Name), "Short Sword");
    EXPECT_EQ(item(7, 40, 1, ItemField::Price), "");

    // Special names use up the indexes they matched; the rest stay.
    EXPECT_EQ(world->questorNameIndex(5, 20, 2), 0);
    EXPECT_EQ(world->questorNameIndex(7, 30, 1), 0);
    EXPECT_EQ(world->questorNameIndex(7, 30, 2), 1);
    EXPECT_EQ(world->questorNameIndex(7, 40, 0), 4);

    // Notes, and the item name table in full.
    EXPECT_EQ(world->sector(10, 20).note, "Castle gate");
    EXPECT_EQ(world->sector(200, 1).note, "Corner\r\nsecond line");
    EXPECT_EQ(world->sector(0, 7).note, "row zero");
    EXPECT_EQ(state.selection.selX, 255);
    EXPECT_EQ(state.selection.selY, 7);
    EXPECT_EQ(world->questorItemName(310), "Not a special name");
    EXPECT_EQ(world->questorItemName(1000), "Entry 1000");
    EXPECT_TRUE(platform.messages.empty());

    // A new map empties the item name table but not the name indexes.
    world->clear();
    EXPECT_EQ(world->questorItemName(999), "");
    EXPECT_EQ(world->questorNameIndex(7, 30, 2), 1);
}

TEST_F(QuestorImportTest, SettlementsOver160AreWarnedAboutAndShareTheLastNumber)
{
    QuestorMapWriter mp1;
    mp1.finishTerrain();
    mp1.nameIndex(1).at(1, 2).settlement(170).shop(25).item(120, 5);
    mp1.nameIndex(2).at(3, 4).settlement(499);

    QuestorNamesWriter mp2; // no special items: the other layout
    mp2.settlementNames = {"First", "Second"};
    mp2.shopNames = {"Smithy"};
    mp2.itemNames = {{120, "Dagger"}};
    const QuestorImportResult result = import(mp1, mp2);
    ASSERT_TRUE(result.ok) << result.error.describe();

    ASSERT_EQ(platform.messages.size(), 2u);
    EXPECT_EQ(platform.messages[0].text, "Warning! Import found a settlement with a number over 160.\r\n"
                                         "If more than 1 of these is found, then 1 settlement's info will "
                                         "over-write another's!");
    EXPECT_EQ(platform.messages[0].title, "Wayscribe");
    EXPECT_EQ(platform.messages[0].buttons, MessageButtons::Ok);
    EXPECT_EQ(world->settlement(160).x, 3);
    EXPECT_EQ(world->settlement(160).y, 4);
    EXPECT_EQ(world->sector(1, 2).settlementNumber, 160);
    EXPECT_EQ(world->sector(3, 4).settlementName, "Second");
    // The first sector was overwritten in the settlement record, so the
    // name search finds only the second.
    EXPECT_EQ(world->sector(1, 2).settlementName, "1");
    EXPECT_EQ(shopName(160, 25), "a");
    EXPECT_EQ(item(160, 25, 1, ItemField::Name), "Dagger");
}

// A small map kept with the tests, so that the reader cannot drift from the
// format together with the test writer.
TEST_F(QuestorImportTest, TheKeptSampleMapImportsAsItWasWritten)
{
    const QuestorImportResult result =
        readQuestorMap(std::string(WAYSCRIBE_TEST_DATA) + "/questor/sample.mp1", *world, state, platform);
    ASSERT_TRUE(result.ok) << result.error.describe();

    EXPECT_EQ(world->sector(1, 50).terrain, 2);
    EXPECT_EQ(world->sector(1, 51).terrain, 4);
    EXPECT_EQ(world->sector(1, 151).terrain, 15);
    EXPECT_EQ(world->sector(2, 60).terrain, 6);
    EXPECT_EQ(world->sector(2, 61).terrain, 19);
    EXPECT_EQ(world->sector(2, 62).terrain, 1);
    EXPECT_EQ(world->sector(2, 61).note, "SPECIAL: old ruins");

    EXPECT_EQ(world->sector(1, 120).settlementNumber, 12);
    EXPECT_EQ(world->sector(1, 120).settlementName, "Saltmere");
    EXPECT_EQ(world->sector(1, 120).note, "Harbour town");
    EXPECT_EQ(world->sector(2, 30).settlementName, "Brackenford");
    EXPECT_EQ(world->settlement(75).x, 2);

    EXPECT_EQ(shopName(12, 20), "Weaponsmith");
    EXPECT_EQ(shopName(12, 21), "Tavern");
    EXPECT_EQ(shopName(75, 20), "Market");
    EXPECT_EQ(item(12, 20, 2, ItemField::Name), "Long Sword");
    EXPECT_EQ(item(12, 20, 3, ItemField::Name), "Crown of the Tides");
    EXPECT_EQ(item(12, 20, 3, ItemField::Price), " 900");
    EXPECT_EQ(item(12, 21, 1, ItemField::Name), "Ale");
    EXPECT_EQ(item(75, 20, 1, ItemField::Name), "Short Sword");
    EXPECT_EQ(item(75, 20, 2, ItemField::Number), "");
    EXPECT_EQ(item(75, 20, 2, ItemField::Price), " 3");
}

TEST_F(QuestorImportTest, TheNamesFileFollowsTheCaseOfTheMapFilesExtension)
{
    // Only SAMPLE.MP2 beside SAMPLE.MP1: an upper-case pair imports whole.
    QuestorMapWriter mp1;
    mp1.finishTerrain(3);
    test::writeFile(dir.file("SAMPLE.MP1"), mp1.bytes());
    test::writeFile(dir.file("SAMPLE.MP2"), QuestorNamesWriter().text());
    EXPECT_EQ(questorNamesPath(dir.file("SAMPLE.MP1")), dir.file("SAMPLE.MP2"));
    EXPECT_TRUE(readQuestorMap(dir.file("SAMPLE.MP1"), *world, state, platform).ok);

    // The other case when the same case is not there; the same case when
    // neither is, so that the message names the file looked for.
    test::writeFile(dir.file("mixed.MP1"), mp1.bytes());
    test::writeFile(dir.file("mixed.mp2"), QuestorNamesWriter().text());
    EXPECT_EQ(questorNamesPath(dir.file("mixed.MP1")), dir.file("mixed.mp2"));
    EXPECT_EQ(questorNamesPath(dir.file("alone.Mp1")), dir.file("alone.Mp2"));
}

} // namespace
} // namespace wayscribe
