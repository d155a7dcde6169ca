#include "cli/cli_runner.h"
#include "model/terrain.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

// Row 10 from X = 11 eastward: Open, Forest, Desert, Water, Road, ...
std::string pathMap(const TempDir &dir)
{
    auto w = std::make_unique<World>();
    const int row[] = {kOpen, kForest, kDesert, kWater, kRoad};
    for (int i = 0; i < 5; ++i)
        w->sector(11 + i, 10).terrain = static_cast<std::uint8_t>(row[i]);
    return saveMap(dir, "path.om1", *w);
}

} // namespace

TEST(CliPath, CountsThePathWithTheMountAndPrintsTheOrders)
{
    TempDir dir;
    const std::string map = pathMap(dir);

    CliResult r = runCli({"path", map, "10,10", "11,10", "12,10", "13,10", "14,10", "15,10"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Movement points: 17\nSquares: 5\nM 33333\n");
    EXPECT_EQ(r.err, "You moved 5 sectors, using 1 orders.\n"
                     "The necessary 'M' commands have been copied to the clipboard.\n"
                     "You can now 'Paste' it to a turn or elsewhere.\n");

    // Mules cost 3 in the desert; the step back takes the road off again.
    r = runCli(
        {"path", map, "--mount", "mules", "10,10", "11,10", "12,10", "13,10", "14,10", "15,10", "back"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Movement points: 12\nSquares: 4\nM 3333\n");

    // Nine moves make two orders.
    r = runCli({"path", map, "--mount", "flying", "1,1", "2,1", "3,1", "4,1", "5,1", "6,1", "7,1", "8,1",
                "9,1", "9,2"});
    EXPECT_EQ(r.out, "Movement points: 0\nSquares: 9\nM 33333333\nM 5\n");
}

TEST(CliPath, NoMovesNoOrders)
{
    TempDir dir;
    const CliResult r = runCli({"path", pathMap(dir), "10,10"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Movement points: 0\nSquares: 0\n");
    EXPECT_EQ(r.err, "No orders were copied to your clipboard. \n"
                     "Please select at least 1 movement square after the start square.\n");
}
