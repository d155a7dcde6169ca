#include "model/world.h"
#include "sample/world_generator.h"
#include "storage/line_reader.h"
#include "storage/map_file.h"
#include "storage/map_file_versions.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

constexpr long kV17Lines = 1248402;
// Line numbers (1-based) in a format 17 file.
long sectorLine(int x, int y, int field)
{
    return 3 + ((y - 1) * 200 + (x - 1)) * 4 + field;
}
long settlementLine(int n)
{
    return 3 + 160000 + (n - 1) * (4 + 111 * 61);
}
long shopLine(int n, int s)
{
    return settlementLine(n) + 4 + s * 61;
}
long dungeonLine(int d)
{
    return 3 + 160000 + 160 * (4 + 111 * 61) + (d - 1) * 22;
}

void fillSample(World &w)
{
    w.sector(1, 1).terrain = 6;
    w.sector(1, 1).note = "  two\r\nlines  ";
    w.sector(200, 200).terrain = 17;
    w.sector(200, 200).settlementNumber = 21;
    w.sector(200, 200).settlementName = " Oak \"Vale\" ";
    w.sector(5, 7).note = "x@/@y";
    w.settlement(21) = {1, 200, 200, " free city "};
    w.setShopName(21, 0, "  Harbour Master ");
    w.setItem(21, 0, 20, ItemField::Price, " 12 ");
    w.setShopName(21, 110, "Last Shop");
    w.setItem(21, 110, 1, ItemField::Name, "Passage to Mere (3)");
    w.dungeon(200).name = " Deep ";
    w.dungeon(200).levels = 10;
    w.dungeon(200).level[10].map = "#.#\r\n...";
    w.dungeon(200).level[10].roomData = " a ";
}

std::unique_ptr<World> freshWorld()
{
    return std::make_unique<World>();
}

} // namespace

TEST(MapFile, WritesTheFormat17LayoutByteForByte)
{
    TempDir dir;
    auto w = freshWorld();
    fillSample(*w);
    FileError error;
    ASSERT_TRUE(writeMapFile(dir.file("a.om1"), *w, 7, error)) << error.describe();
    const std::string bytes = readFile(dir.file("a.om1"));
    const auto lines = mapFileLines(bytes);
    ASSERT_EQ(static_cast<long>(lines.size()), kV17Lines);
    ASSERT_EQ(bytes.substr(bytes.size() - 2), "\r\n");
    auto line = [&](long n) { return lines[n - 1]; };
    EXPECT_EQ(line(1),
              "\"v017 - This is a saved map file for the Wayscribe. Do *not* edit this file yourself!\"");
    EXPECT_EQ(line(2), "7");
    EXPECT_EQ(line(sectorLine(1, 1, 0)), "6");
    EXPECT_EQ(line(sectorLine(1, 1, 1)), "\"two@/@lines\"") << "escaped and trimmed in the file only";
    EXPECT_EQ(line(sectorLine(2, 1, 0)), "1");
    EXPECT_EQ(line(sectorLine(2, 1, 1)), "\"\"");
    EXPECT_EQ(line(sectorLine(200, 200, 2)), "21");
    EXPECT_EQ(line(sectorLine(200, 200, 3)), "\"Oak \"Vale\"\"") << "quotes are not doubled";
    EXPECT_EQ(line(settlementLine(21)), "1");
    EXPECT_EQ(line(settlementLine(21) + 3), "\" free city \"") << "city-state as stored";
    EXPECT_EQ(line(shopLine(21, 0)), "\"Harbour Master\"");
    EXPECT_EQ(line(shopLine(21, 0) + 60), "\"12\"");
    EXPECT_EQ(line(shopLine(21, 110)), "\"Last Shop\"");
    EXPECT_EQ(line(shopLine(21, 110) + 1), "\"Passage to Mere (3)\"");
    EXPECT_EQ(line(dungeonLine(200)), "\" Deep \"") << "dungeon name as stored";
    EXPECT_EQ(line(dungeonLine(200) + 1), "10");
    EXPECT_EQ(line(dungeonLine(200) + 20), "\"#.#@/@...\"");
    EXPECT_EQ(line(dungeonLine(200) + 21), "\" a \"");
    EXPECT_EQ(w->sector(1, 1).note, "  two\r\nlines  ") << "the model keeps its text";
}

TEST(MapFile, ReadsBackWhatItWrote)
{
    TempDir dir;
    auto w = freshWorld();
    fillSample(*w);
    FileError error;
    ASSERT_TRUE(writeMapFile(dir.file("a.om1"), *w, 250, error));
    auto r = freshWorld();
    r->settlement(3).cityState = "stale";
    std::uint8_t game = 0;
    const MapReadResult result = readMapFile(dir.file("a.om1"), *r, game);
    ASSERT_TRUE(result.ok) << result.error.describe();
    EXPECT_EQ(result.version, 17);
    EXPECT_EQ(game, 250);
    EXPECT_EQ(r->sector(1, 1).note, "two\r\nlines");
    EXPECT_EQ(r->sector(5, 7).note, "x\r\ny") << "a typed @/@ reads back as a line break";
    EXPECT_EQ(r->sector(200, 200).settlementName, "Oak \"Vale\"");
    EXPECT_EQ(r->settlement(21).cityState, " free city ");
    EXPECT_EQ(r->settlement(3).cityState, "");
    EXPECT_EQ(r->shopName(21, 0), "Harbour Master");
    EXPECT_EQ(r->item(21, 110, 1, ItemField::Name), "Passage to Mere (3)");
    EXPECT_EQ(r->dungeon(200).level[10].map, "#.#\r\n...");
    // A second save of what was read is identical to the first.
    ASSERT_TRUE(writeMapFile(dir.file("b.om1"), *r, game, error));
    EXPECT_EQ(readFile(dir.file("a.om1")), readFile(dir.file("b.om1")));
}

TEST(MapFile, OlderLayoutsKeepWhatTheModelHeldForMissingRecords)
{
    TempDir dir;
    auto w = freshWorld();
    fillSample(*w);
    FileError error;
    ASSERT_TRUE(writeMapFile(dir.file("v17.om1"), *w, 9, error));
    const std::string v17 = readFile(dir.file("v17.om1"));

    auto before = [] {
        auto m = std::make_unique<World>();
        m->settlement(21).cityState = "old state";
        m->dungeon(1).name = "Old Dungeon";
        m->dungeon(1).levels = 2;
        m->setShopName(5, 0, "Kept 0");
        m->setShopName(5, 105, "Kept 105");
        m->setShopName(5, 50, "Overwritten");
        return m;
    };
    struct Case {
        int version;
        long lines;
        bool cityStates, dungeons, allShops;
    };
    for (const Case c : {Case{18, kV17Lines, true, true, true}, Case{16, 1248242, false, true, true},
                         Case{11, 1248242, false, true, true}, Case{10, 1243842, false, false, true},
                         Case{0, 1126722, false, false, false}}) {
        SCOPED_TRACE(c.version);
        const std::string file = dir.file("old.om1");
        writeFile(file, downgradeMapFile(v17, c.version));
        ASSERT_EQ(static_cast<long>(mapFileLines(readFile(file)).size()), c.lines);
        auto m = before();
        std::uint8_t game = 0;
        const MapReadResult result = readMapFile(file, *m, game);
        ASSERT_TRUE(result.ok) << result.error.describe();
        EXPECT_EQ(result.version, c.version);
        EXPECT_EQ(game, 9);
        EXPECT_EQ(m->sector(1, 1).note, "two\r\nlines");
        EXPECT_EQ(m->settlement(21).cityState, c.cityStates ? " free city " : "old state");
        EXPECT_EQ(m->dungeon(1).name, c.dungeons ? "" : "Old Dungeon");
        EXPECT_EQ(m->dungeon(200).name, c.dungeons ? " Deep " : "");
        EXPECT_EQ(m->shopName(5, 0), c.allShops ? "" : "Kept 0");
        EXPECT_EQ(m->shopName(5, 105), c.allShops ? "" : "Kept 105");
        EXPECT_EQ(m->shopName(5, 50), "");
        EXPECT_EQ(m->shopName(21, 0), c.allShops ? "Harbour Master" : "");
    }
}

TEST(MapFile, VersionComesFromCharactersTwoToFiveOfTheHeader)
{
    for (const auto &[header, version] : std::vector<std::pair<std::string, int>>{{"\"v010 x\"", 10},
                                                                                  {"\"v018\"", 18},
                                                                                  {"\"v019\"", 0},
                                                                                  {"\"V017\"", 0},
                                                                                  {"v017", 0},
                                                                                  {"", 0},
                                                                                  {"\"v01", 0}})
        EXPECT_EQ(mapFormatVersion(header), version) << header;
}

TEST(MapFile, GeneratedWorldsLoadBackToTheSameFile)
{
    TempDir dir;
    for (bool full : {false, true}) {
        SCOPED_TRACE(full);
        auto world = std::make_unique<World>();
        std::uint8_t gameNumber = 0;
        GeneratorSettings settings;
        settings.seed = 21;
        settings.fullTables = full;
        generateWorld(*world, gameNumber, settings);
        FileError error;
        ASSERT_TRUE(writeMapFile(dir.file("first.om1"), *world, gameNumber, error)) << error.describe();

        auto loaded = std::make_unique<World>();
        std::uint8_t loadedGame = 0;
        const MapReadResult r = readMapFile(dir.file("first.om1"), *loaded, loadedGame);
        ASSERT_TRUE(r.ok) << r.error.describe();
        EXPECT_EQ(loadedGame, gameNumber);
        ASSERT_TRUE(writeMapFile(dir.file("second.om1"), *loaded, loadedGame, error)) << error.describe();
        EXPECT_EQ(readFile(dir.file("first.om1")), readFile(dir.file("second.om1")));
    }
}
