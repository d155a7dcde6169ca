#include "cli/cli_runner.h"
#include "storage/map_file.h"
#include "support/questor_writer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

void writeQuestorMap(const TempDir &dir, int settlementNumber)
{
    QuestorMapWriter mp1;
    mp1.finishTerrain(1)
        .nameIndex(1)
        .at(4, 9)
        .settlement(settlementNumber)
        .shop(20)
        .shopNameIndex(1)
        .item(150, 3);
    QuestorNamesWriter mp2;
    mp2.settlementNames = {"Ford"};
    mp2.shopNames = {"Smithy"};
    mp2.itemNames = {{150, "Axe"}};
    writeFile(dir.file("lands.mp1"), mp1.bytes());
    writeFile(dir.file("lands.mp2"), mp2.text());
}

} // namespace

TEST(CliQuestor, ImportsIntoANewMapOrIntoAGivenOne)
{
    TempDir dir;
    writeQuestorMap(dir, 170);
    auto base = std::make_unique<World>();
    base->dungeon(3).name = "Pit";
    saveMap(dir, "base.om1", *base, 42);

    CliResult r = runCli(
        {"questor", "--map", dir.file("base.om1"), "--out", dir.file("out.om1"), dir.file("lands.mp1")});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_NE(r.err.find("Warning! Import found a settlement with a number over 160.\nIf more"),
              std::string::npos)
        << r.err;
    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    ASSERT_TRUE(readMapFile(dir.file("out.om1"), *world, game).ok);
    EXPECT_EQ(game, 42);
    EXPECT_EQ(world->dungeon(3).name, "Pit");
    EXPECT_EQ(world->sector(4, 9).settlementName, "Ford");
    EXPECT_EQ(world->sector(4, 9).terrain, 2);
    EXPECT_EQ(world->item(160, 20, 1, ItemField::Name), "Axe");

    writeQuestorMap(dir, 8);
    r = runCli({"questor", "--out", dir.file("new.om1"), dir.file("lands.mp1")});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.err, "");
    ASSERT_TRUE(readMapFile(dir.file("new.om1"), *world, game).ok);
    EXPECT_EQ(game, 0);
    EXPECT_EQ(world->shopName(8, 20), "Smithy");
}

TEST(CliQuestor, BrokenInputWritesNothing)
{
    TempDir dir;
    writeQuestorMap(dir, 8);
    const std::string mp1 = readFile(dir.file("lands.mp1"));
    writeFile(dir.file("lands.mp1"), mp1 + '\x01');
    CliResult r = runCli({"questor", "--out", dir.file("out.om1"), dir.file("lands.mp1")});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find(dir.file("lands.mp1") + ", byte offset " + std::to_string(mp1.size())),
              std::string::npos)
        << r.err;
    EXPECT_FALSE(std::filesystem::exists(dir.file("out.om1")));

    writeFile(dir.file("lands.mp1"), mp1);
    r = runCli(
        {"questor", "--map", dir.file("missing.om1"), "--out", dir.file("out.om1"), dir.file("lands.mp1")});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find(dir.file("missing.om1")), std::string::npos) << r.err;
    EXPECT_FALSE(std::filesystem::exists(dir.file("out.om1")));
}
