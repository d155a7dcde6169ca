#include "cli/cli_runner.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {
// Oakvale (1) sells a passage to Ulm (2) for 30 gp.
std::string twoTownMap(const TempDir &dir)
{
    auto w = std::make_unique<World>();
    w->sector(5, 5).settlementName = "Oakvale";
    w->sector(9, 5).settlementName = "Ulm";
    w->settlement(1) = {1, 5, 5, ""};
    w->settlement(2) = {1, 9, 5, ""};
    w->setItem(1, 1, 1, ItemField::Name, "Passage (2)");
    w->setItem(1, 1, 1, ItemField::Number, "3");
    w->setItem(1, 1, 1, ItemField::Price, "30");
    FileError e;
    EXPECT_TRUE(writeMapFile(dir.file("towns.om1"), *w, 1, e)) << e.describe();
    return dir.file("towns.om1");
}
} // namespace

TEST(CliRoute, EmptyBoxIsSilentMalformedBoxFailsAndARouteIsPrinted)
{
    TempDir dir;
    const std::string map = twoTownMap(dir);

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
    EXPECT_EQ(r.out, "Please wait, calculating routes...\n"
                     "Cheapest Route:\n"
                     "B 99 1 3 @ 30gp to get to Ulm (2)\n"
                     "Total cost to reach destination:  30 gp per head\n\n"
                     "Shortest Route:\n"
                     "B 99 1 3 @ 30gp to get to Ulm (2)\n"
                     "Total cost to reach destination:  30 gp per head\n\n"
                     "Finished.\n");

    EXPECT_EQ(runCli({"route", map, "Oakvale (1)"}).status, 2);
}
