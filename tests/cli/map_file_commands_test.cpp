#include "cli/cli_runner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {
std::string sampleMap(const TempDir &dir, const std::string &name, int terrain)
{
    auto w = std::make_unique<World>();
    w->sector(1, 1).terrain = static_cast<std::uint8_t>(terrain);
    w->sector(2, 2).note = "a\r\nb";
    w->sector(3, 3).settlementName = "Hamley";
    w->settlement(7) = {1, 3, 3, ""};
    w->setShopName(7, 1, "Smithy");
    w->setItem(7, 1, 1, ItemField::Name, "Axe");
    w->dungeon(4).name = "Pit";
    return saveMap(dir, name, *w, 12);
}
} // namespace

TEST(CliMapCommands, ConvertMergeStatsAndInfo)
{
    TempDir dir;
    const std::string a = sampleMap(dir, "a.om1", 2);
    CliResult r = runCli({"convert", a, dir.file("copy.om1")});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(readFile(dir.file("copy.om1")), readFile(a));

    r = runCli({"stats", a});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out,
              "The map is 0% complete.\n\nThere are 1 filled sectors out of 40000, 1 of which are water.\n\n"
              "There are 1 settlements and 1 notes.\n");

    r = runCli({"info", a});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out,
              "format version: 17\ngame number: 12\nknown sectors: 1\nsettlements: 1\nshops: 1\nitems: 1\n"
              "notes: 1\ndungeons: 1\n");

    const std::string b = sampleMap(dir, "b.om1", 6);
    r = runCli({"merge", a, b, "--out", dir.file("merged.om1")});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(readFile(dir.file("merged.om1")), readFile(a)) << "nothing of b fills a gap of a";
}

TEST(CliMapCommands, BadInputExitsWithOneAndWritesNothing)
{
    TempDir dir;
    const std::string good = sampleMap(dir, "good.om1", 2);
    writeFile(dir.file("cut.om1"), readFile(good).substr(0, 1000));
    for (const std::string &input : {dir.file("cut.om1"), dir.file("missing.om1"), dir.path().string()}) {
        SCOPED_TRACE(input);
        CliResult r = runCli({"convert", input, dir.file("out.om1")});
        EXPECT_EQ(r.status, 1);
        EXPECT_NE(r.err.find(input), std::string::npos) << r.err;
        EXPECT_FALSE(std::filesystem::exists(dir.file("out.om1")));
        r = runCli({"merge", good, input, "--out", dir.file("out.om1")});
        EXPECT_EQ(r.status, 1);
        EXPECT_NE(r.err.find("There was an unknown error merging the map."), std::string::npos);
        EXPECT_FALSE(std::filesystem::exists(dir.file("out.om1")));
    }
    CliResult r = runCli({"convert", dir.file("cut.om1"), dir.file("out.om1")});
    EXPECT_NE(r.err.find("cut.om1, line "), std::string::npos) << r.err;
}
