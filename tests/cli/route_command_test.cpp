#include "cli/cli_runner.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

TEST(CliRoute, EmptyBoxIsSilentMalformedBoxFailsAndARouteIsPrinted)
{
    TempDir dir;
    // Oakvale (1) sells a passage to Ulm (2) for 30 gp.
    auto w = std::make_unique<World>();
    placeSettlement(*w, 1, 5, 5, "Oakvale");
    placeSettlement(*w, 2, 9, 5, "Ulm");
    stockItem(*w, 1, 1, 1, "Passage (2)", "3", "30");
    const std::string map = saveMap(dir, "towns.om1", *w);

    for (const auto &boxes : {std::pair<std::string, std::string>{"", "Ulm (2)"}, {"Oakvale (1)", ""}}) {
        const CliResult r = runCli({"route", map, boxes.first, boxes.second});
        EXPECT_EQ(r.status, 0) << r.err;
        EXPECT_EQ(r.out, "");
        EXPECT_EQ(r.err, "");
    }

    CliResult r = runCli({"route", map, "Oakvale", "Ulm (2)"});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(r.err, "Bad settlement names in to/from field? Cancelling search.\n");

    r = runCli({"route", map, "Oakvale (1)", "Ulm (2)"});
    EXPECT_EQ(r.status, 0) << r.err;
    const std::string orders = "B 99 1 3 @ 30gp to get to Ulm (2)\n"
                               "Total cost to reach destination:  30 gp per head\n\n";
    EXPECT_EQ(r.out, "Please wait, calculating routes...\nCheapest Route:\n" + orders + "Shortest Route:\n" +
                         orders + "Finished.\n");
}
