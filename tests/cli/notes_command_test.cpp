#include "cli/cli_runner.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

TEST(CliNotes, ListsTheNotesWithTheWindowsFiltersSortsAndEscapedCells)
{
    TempDir dir;
    auto w = std::make_unique<World>();
    w->sector(3, 1).note = "DUNGEON: Old Mine. 3+ levels.";
    w->sector(10, 1).note = "Town gate";
    w->sector(10, 1).settlementName = "Oakvale";
    w->sector(2, 40).note = "Level ground\r\nby the\triver \\ ford";
    const std::string map = saveMap(dir, "notes.om1", *w);
    const std::string mine = "DUNGEON: Old Mine. 3+ levels.\t 3\t 1\n", gate = "Town gate\t 10\t 1\n",
                      ground = "Level ground\\r\\nby the\\triver \\\\ ford\t 2\t 40\n";

    CliResult r = runCli({"notes", map});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, mine + gate + ground);
    EXPECT_EQ(runCli({"notes", map, "--no-settlements", "--search", "LEVEL + mine"}).out, mine);
    EXPECT_EQ(runCli({"notes", map, "--search", "level+mine", "--or"}).out, mine + mine + ground);
    r = runCli({"notes", map, "--search", "nowhere"});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out, "");
    // Y ascending, then X: first click ascending, second descending.
    EXPECT_EQ(runCli({"notes", map, "--sort", "3", "--sort", "2", "--sort", "2"}).out, gate + mine + ground);
}
