#include "cli/cli_runner.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

const std::string kGraphics = WAYSCRIBE_TEST_DATA "/../../assets/graphics";

// Width and height from a PNG file's header.
std::pair<int, int> pngSize(const std::string &bytes)
{
    auto number = [&](std::size_t at) {
        return int((unsigned char)bytes[at]) << 24 | int((unsigned char)bytes[at + 1]) << 16 |
               int((unsigned char)bytes[at + 2]) << 8 | int((unsigned char)bytes[at + 3]);
    };
    if (bytes.size() < 24 || bytes.compare(1, 3, "PNG") != 0)
        return {0, 0};
    return {number(16), number(20)};
}

} // namespace

TEST(CliRender, DrawsTheWholeWorldOrNamesWhatItCannotRead)
{
    TempDir dir;
    auto world = std::make_unique<World>();
    world->sector(100, 100).terrain = 15;
    world->sector(101, 100).terrain = 17;
    world->sector(5, 5).note = "DUNGEON: Pit";
    const std::string map = saveMap(dir, "map.om1", *world, 3);

    CliResult r =
        runCli({"render", map, "--out", dir.file("map.png"), "--graphics", kGraphics, "--set", "tolma_set"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(pngSize(readFile(dir.file("map.png"))), std::make_pair(3200, 3200));

    r = runCli({"render", map, "--out", dir.file("x.png"), "--graphics", dir.file("nowhere")});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find(dir.file("nowhere") + "/kjc_set1/l_unknown.bmp"), std::string::npos) << r.err;

    r = runCli({"render", map, "--out", dir.file("no/such/folder/x.png"), "--graphics", kGraphics});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("no/such/folder/x.png"), std::string::npos) << r.err;
}
