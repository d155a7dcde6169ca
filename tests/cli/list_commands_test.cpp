// The dungeon list, the settlement list and a settlement's shop list as the
// command line prints them.
#include "cli/cli_runner.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

TEST(CliDungeons, ListsDungeonsInNumberOrderAndSortsByHeaderClicks)
{
    TempDir dir;
    auto w = std::make_unique<World>();
    w->dungeon(2).name = "Old Mine";
    w->dungeon(2).levels = 1;
    w->dungeon(2).level[1].map = "#.#";
    w->dungeon(2).level[4].map = "#D#";
    w->dungeon(30).name = "Crypt";
    w->dungeon(30).levels = 10;
    const std::string map = saveMap(dir, "d.om1", *w);

    CliResult r = runCli({"dungeons", map});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Old Mine\t1\t2\t2\nCrypt\t10\t0\t30\n");
    r = runCli({"dungeons", map, "--sort", "2", "--sort", "2"});
    EXPECT_EQ(r.out, "Crypt\t10\t0\t30\nOld Mine\t1\t2\t2\n");
    r = runCli({"dungeons", map, "--sort", "1"});
    EXPECT_EQ(r.out, "Crypt\t10\t0\t30\nOld Mine\t1\t2\t2\n");
}

TEST(CliSettlements, EverySettlementWithShopsAndPositionInTheChosenOrder)
{
    TempDir dir;
    auto w = std::make_unique<World>();
    placeSettlement(*w, 20, 3, 4, "Ashford");
    placeSettlement(*w, 160, 199, 198, "Brill");
    w->setShopName(160, 0, "Harbour");
    w->setShopName(160, 5, "Smith");
    const std::string map = saveMap(dir, "s.om1", *w);

    CliResult r = runCli({"settlements", map});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Ashford\t20\t0\t3\t4\nBrill\t160\t2\t199\t198\n");
    r = runCli({"settlements", map, "--sort", "2", "--sort", "2"});
    EXPECT_EQ(r.out, "Brill\t160\t2\t199\t198\nAshford\t20\t0\t3\t4\n");
}

TEST(CliShoplist, PrintsTheListAsTheEditorCopiesItAndRefusesOtherNumbers)
{
    TempDir dir;
    auto w = std::make_unique<World>();
    placeSettlement(*w, 12, 5, 6, "Oakvale");
    w->settlement(13) = {1, 7, 7, ""}; // its sector carries another number
    w->settlement(14) = {0, 8, 8, ""};
    // Opening tidies shop 20, the first shown, but not shop 21.
    w->setShopName(12, 20, "Smithy");
    stockItem(*w, 12, 20, 2, "Long Sword", "143", "120");
    w->setShopName(12, 21, "Stables");
    w->setItem(12, 21, 3, ItemField::Name, "Mule");
    const std::string map = saveMap(dir, "shops.om1", *w);

    const CliResult r = runCli({"shoplist", map, "12"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "20 Smithy" + std::string(21, ' ') + "Long Sword (143)" + std::string(13, ' ') +
                         "120\n" + "21 Stables" + std::string(30, ' ') + "Mule ()" + std::string(19, ' ') +
                         "\n");
    EXPECT_EQ(r.err, "");

    for (const char *n : {"0", "161", "13", "14", "x"}) {
        const CliResult bad = runCli({"shoplist", map, n});
        EXPECT_EQ(bad.status, 1) << n;
        EXPECT_EQ(bad.out, "") << n;
        EXPECT_FALSE(bad.err.empty()) << n;
    }
}
