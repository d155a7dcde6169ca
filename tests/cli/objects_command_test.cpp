#include "cli/cli_runner.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

TEST(CliObjects, ListsWithTheWindowsSettingsAndFilters)
{
    TempDir dir;
    auto w = std::make_unique<World>();
    placeSettlement(*w, 3, 10, 10, "Ash\\ford");
    placeSettlement(*w, 30, 20, 20, "Brill");
    placeSettlement(*w, 90, 30, 30, "Cole");
    for (int n : {3, 30, 90})
        w->setShopName(n, 1, "Store");
    stockItem(*w, 3, 1, 1, "Rope\tlong", "5", "10");
    stockItem(*w, 30, 1, 1, "Rope", "5", "12");
    stockItem(*w, 90, 1, 1, "Rope", "5", "10");
    stockItem(*w, 90, 1, 2, "Map", "6", "0");
    stockItem(*w, 90, 1, 3, "Huge", "10000", "1");
    const std::string map = saveMap(dir, "objects.om1", *w);
    const std::string outOfRange = "Error in settlement #90, shop #1.\n"
                                   "Object # out of range - above 9999 - ignoring object. Please correct.\n";

    CliResult r = runCli({"objects", map});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Ash\\\\ford (3)\tStore (1)\tRope\\tlong\t5\t10\n");
    EXPECT_EQ(r.err, outOfRange + outOfRange);

    r = runCli({"objects", map, "--mode", "cheapest", "--once", "no", "--no-towns"});
    EXPECT_EQ(r.out, "Ash\\\\ford (3)\tStore (1)\tRope\\tlong\t5\t10\nCole (90)\tStore (1)\tRope\t5\t10\n");

    r = runCli({"objects", map, "--mode", "all", "--zero-cost", "no", "--no-cities", "--no-villages"});
    EXPECT_EQ(r.out, "Brill (30)\tStore (1)\tRope\t5\t12\n");
    EXPECT_EQ(r.err, "");

    r = runCli(
        {"objects", map, "--mode", "all", "--zero-cost", "no", "--no-cities", "--no-towns", "--sort", "5"});
    EXPECT_EQ(r.out, "Cole (90)\tStore (1)\tMap\t6\t0\nCole (90)\tStore (1)\tRope\t5\t10\n");
    EXPECT_EQ(r.err, outOfRange);

    r = runCli({"objects", map, "--mode", "dearest", "--once", "no", "--sort", "1", "--sort", "1"});
    EXPECT_EQ(r.out, "Brill (30)\tStore (1)\tRope\t5\t12\n");
}
