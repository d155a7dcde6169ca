#include "cli/cli_runner.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

TEST(CliSettlements, EverySettlementWithShopsAndPositionInTheChosenOrder)
{
    TempDir dir;
    auto w = std::make_unique<World>();
    auto place = [&w](int n, int x, int y, const std::string &name) {
        w->settlement(n) = {1, static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), ""};
        w->sector(x, y).settlementNumber = static_cast<std::uint8_t>(n);
        w->sector(x, y).settlementName = name;
    };
    place(20, 3, 4, "Ashford");
    place(160, 199, 198, "Brill");
    w->setShopName(160, 0, "Harbour");
    w->setShopName(160, 5, "Smith");
    FileError e;
    ASSERT_TRUE(writeMapFile(dir.file("s.om1"), *w, 1, e)) << e.describe();

    CliResult r = runCli({"settlements", dir.file("s.om1")});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Ashford\t20\t0\t3\t4\nBrill\t160\t2\t199\t198\n");

    r = runCli({"settlements", dir.file("s.om1"), "--sort", "2", "--sort", "2"});
    EXPECT_EQ(r.out, "Brill\t160\t2\t199\t198\nAshford\t20\t0\t3\t4\n");

    r = runCli({"settlements", dir.file("s.om1"), "--sort", "6"});
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(runCli({"settlements"}).status, 2);
}
