#include "cli/cli_runner.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

void place(World &world, int n, int x, int y, const std::string &name)
{
    world.settlement(n) = {1, static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), ""};
    world.sector(x, y).settlementNumber = static_cast<std::uint8_t>(n);
    world.sector(x, y).settlementName = name;
}

void sell(World &world, int n, int shop, int item, const std::string &name, const std::string &number,
          const std::string &price)
{
    world.setShopName(n, shop, "Store");
    world.setItem(n, shop, item, ItemField::Name, name);
    world.setItem(n, shop, item, ItemField::Number, number);
    world.setItem(n, shop, item, ItemField::Price, price);
}

std::string objectsMap(const TempDir &dir)
{
    auto w = std::make_unique<World>();
    place(*w, 3, 10, 10, "Ash\\ford");
    place(*w, 30, 20, 20, "Brill");
    place(*w, 90, 30, 30, "Cole");
    sell(*w, 3, 1, 1, "Rope\tlong", "5", "10");
    sell(*w, 30, 1, 1, "Rope", "5", "12");
    sell(*w, 90, 1, 1, "Rope", "5", "10");
    sell(*w, 90, 1, 2, "Map", "6", "0");
    sell(*w, 90, 1, 3, "Huge", "10000", "1");
    FileError e;
    EXPECT_TRUE(writeMapFile(dir.file("objects.om1"), *w, 1, e)) << e.describe();
    return dir.file("objects.om1");
}

const std::string kOutOfRange = "Error in settlement #90, shop #1.\n"
                                "Object # out of range - above 9999 - ignoring object. Please correct.\n";

} // namespace

TEST(CliObjects, ListsWithTheWindowsSettingsAndFilters)
{
    TempDir dir;
    const std::string map = objectsMap(dir);

    CliResult r = runCli({"objects", map});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Ash\\\\ford (3)\tStore (1)\tRope\\tlong\t5\t10\n");
    EXPECT_EQ(r.err, kOutOfRange + kOutOfRange);

    r = runCli({"objects", map, "--mode", "cheapest", "--once", "no", "--no-towns"});
    EXPECT_EQ(r.out, "Ash\\\\ford (3)\tStore (1)\tRope\\tlong\t5\t10\nCole (90)\tStore (1)\tRope\t5\t10\n");

    r = runCli({"objects", map, "--mode", "all", "--zero-cost", "no", "--no-cities", "--no-villages"});
    EXPECT_EQ(r.out, "Brill (30)\tStore (1)\tRope\t5\t12\n");
    EXPECT_EQ(r.err, "");

    r = runCli(
        {"objects", map, "--mode", "all", "--zero-cost", "no", "--no-cities", "--no-towns", "--sort", "5"});
    EXPECT_EQ(r.out, "Cole (90)\tStore (1)\tMap\t6\t0\nCole (90)\tStore (1)\tRope\t5\t10\n");
    EXPECT_EQ(r.err, kOutOfRange);

    r = runCli({"objects", map, "--mode", "dearest", "--once", "no", "--sort", "1", "--sort", "1"});
    EXPECT_EQ(r.out, "Brill (30)\tStore (1)\tRope\t5\t12\n");
}

TEST(CliObjects, BadOptionsAndMaps)
{
    TempDir dir;
    const std::string map = objectsMap(dir);
    for (const auto &args : {std::vector<std::string>{"objects", map, "--mode", "cheap"},
                             {"objects", map, "--once", "maybe"},
                             {"objects", map, "--zero-cost"},
                             {"objects", map, "--sort", "6"},
                             {"objects", map, "--sort", "0"},
                             {"objects", map, "--villages"},
                             {"objects"}}) {
        const CliResult r = runCli(args);
        EXPECT_EQ(r.status, 2) << args.back();
        EXPECT_EQ(r.out, "") << args.back();
    }
    writeFile(dir.file("broken.om1"), "v017\r\nnot a number\r\n");
    const CliResult r = runCli({"objects", dir.file("broken.om1")});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("broken.om1"), std::string::npos);
}
