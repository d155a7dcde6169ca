#include "model/world.h"
#include "storage/map_file.h"
#include "storage/map_file_versions.h"
#include "storage/map_merge.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

// The second map: everything the merge may take.
std::string writeOther(const TempDir &dir, int version = 17)
{
    auto w = std::make_unique<World>();
    w->sector(1, 1).terrain = 2;
    w->sector(2, 1).terrain = 2;
    w->sector(3, 1).terrain = 1;
    w->sector(1, 1).note = "from\r\nfile";
    w->sector(2, 1).note = "file note";
    w->sector(4, 4).settlementNumber = 9;
    w->sector(4, 4).settlementName = "Filetown";
    w->sector(5, 5).settlementName = "Named";
    w->settlement(9) = {1, 4, 4, ""};
    w->settlement(10) = {1, 8, 9, "File State"};
    w->setShopName(9, 0, "Armoury");
    w->setItem(9, 0, 1, ItemField::Name, "Sword");
    w->setItem(9, 0, 1, ItemField::Price, "10");
    w->setShopName(9, 110, "Top Shop");
    w->dungeon(1).name = "File Crypt";
    w->dungeon(1).levels = 5;
    w->dungeon(1).level[1].map = "file map 1";
    w->dungeon(1).level[2].map = "file map 2";
    w->dungeon(2).levels = 1;
    FileError error;
    writeMapFile(dir.file("other17.om1"), *w, 42, error);
    if (version == 17)
        return dir.file("other17.om1");
    const std::string path = dir.file("other" + std::to_string(version) + ".om1");
    writeFile(path, downgradeMapFile(readFile(dir.file("other17.om1")), version));
    return path;
}

std::unique_ptr<World> current()
{
    auto w = std::make_unique<World>();
    w->sector(2, 1).terrain = 6; // known Forest stays Forest
    w->sector(2, 1).note = "mine";
    w->sector(5, 5).settlementName = "Unknown";
    w->settlement(10) = {0, 0, 7, "My State"};
    w->setItem(9, 0, 1, ItemField::Price, "12");
    w->dungeon(1).levels = 2;
    w->dungeon(1).level[2].map = "my map 2";
    w->dungeon(2).levels = 3;
    return w;
}

} // namespace

TEST(MapMerge, FillsGapsAndNeverOverwritesKnownValues)
{
    TempDir dir;
    auto w = current();
    std::uint8_t game = 1;
    const MapReadResult r = mergeMapFile(writeOther(dir), *w, game);
    ASSERT_TRUE(r.ok) << r.error.describe();
    EXPECT_EQ(game, 42) << "the file's game number replaces the current one";
    EXPECT_EQ(w->sector(1, 1).terrain, 2);
    EXPECT_EQ(w->sector(2, 1).terrain, 6);
    EXPECT_EQ(w->sector(3, 1).terrain, 1);
    EXPECT_EQ(w->sector(1, 1).note, "from\r\nfile");
    EXPECT_EQ(w->sector(2, 1).note, "mine");
    EXPECT_EQ(w->sector(4, 4).settlementNumber, 9);
    EXPECT_EQ(w->sector(4, 4).settlementName, "Filetown");
    EXPECT_EQ(w->sector(5, 5).settlementName, "Named") << "a settlement named Unknown takes the file's name";
    EXPECT_EQ(w->settlement(9).inUse, 1);
    EXPECT_EQ(w->settlement(10).inUse, 1);
    EXPECT_EQ(w->settlement(10).x, 8);
    EXPECT_EQ(w->settlement(10).y, 7) << "a known y stays";
    EXPECT_EQ(w->settlement(10).cityState, "File State") << "city-states are always replaced";
    EXPECT_EQ(w->settlement(9).cityState, "") << "also with empty texts";
    EXPECT_EQ(w->shopName(9, 0), "Armoury");
    EXPECT_EQ(w->item(9, 0, 1, ItemField::Name), "Sword");
    EXPECT_EQ(w->item(9, 0, 1, ItemField::Price), "12") << "item fields are merged one by one";
    EXPECT_EQ(w->shopName(9, 110), "Top Shop");
    EXPECT_EQ(w->dungeon(1).name, "File Crypt");
    EXPECT_EQ(w->dungeon(1).levels, 5) << "the larger level count wins";
    EXPECT_EQ(w->dungeon(2).levels, 3);
    EXPECT_EQ(w->dungeon(1).level[1].map, "file map 1");
    EXPECT_EQ(w->dungeon(1).level[2].map, "my map 2");
}

TEST(MapMerge, OlderFilesMergeOnlyTheRecordsTheyCarry)
{
    TempDir dir;
    for (const int version : {16, 10, 0}) {
        SCOPED_TRACE(version);
        auto w = current();
        std::uint8_t game = 0;
        ASSERT_TRUE(mergeMapFile(writeOther(dir, version), *w, game).ok);
        EXPECT_EQ(w->settlement(10).cityState, "My State");
        EXPECT_EQ(w->dungeon(1).name, version >= 11 ? "File Crypt" : "");
        EXPECT_EQ(w->shopName(9, 0), version >= 10 ? "Armoury" : "");
        EXPECT_EQ(w->shopName(9, 110), version >= 10 ? "Top Shop" : "");
        EXPECT_EQ(w->sector(4, 4).settlementName, "Filetown");
    }
}

TEST(MapMerge, ABrokenFileStopsAndKeepsWhatWasMerged)
{
    TempDir dir;
    std::string bytes = readFile(writeOther(dir));
    // Cut the file inside settlement 9's first shop.
    const long keep = 2 + 160000 + 8 * (4 + 111 * 61) + 4 + 1;
    std::size_t at = 0;
    for (long i = 0; i < keep; ++i)
        at = bytes.find("\r\n", at) + 2;
    writeFile(dir.file("cut.om1"), bytes.substr(0, at));
    auto w = current();
    std::uint8_t game = 0;
    const MapReadResult r = mergeMapFile(dir.file("cut.om1"), *w, game);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.error.line, keep + 1);
    EXPECT_EQ(w->sector(4, 4).settlementName, "Filetown");
    EXPECT_EQ(w->shopName(9, 0), "Armoury");
    EXPECT_EQ(w->item(9, 0, 1, ItemField::Name), "") << "not reached";
    EXPECT_EQ(w->settlement(10).cityState, "My State");
}
