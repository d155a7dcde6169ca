#include "cli/cli_runner.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {
std::string notesMap(const TempDir &dir)
{
    auto w = std::make_unique<World>();
    w->sector(3, 1).note = "DUNGEON: Old Mine. 3+ levels.";
    w->sector(10, 1).note = "Town gate";
    w->sector(10, 1).settlementName = "Oakvale";
    w->sector(2, 40).note = "Level ground\r\nby the\triver \\ ford";
    FileError e;
    EXPECT_TRUE(writeMapFile(dir.file("notes.om1"), *w, 1, e)) << e.describe();
    return dir.file("notes.om1");
}
} // namespace

TEST(CliNotes, ListsTheNotesWithTheWindowsFiltersAndEscapedCells)
{
    TempDir dir;
    const std::string map = notesMap(dir);
    CliResult r = runCli({"notes", map});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "DUNGEON: Old Mine. 3+ levels.\t 3\t 1\n"
                     "Town gate\t 10\t 1\n"
                     "Level ground\\r\\nby the\\triver \\\\ ford\t 2\t 40\n");

    r = runCli({"notes", map, "--no-settlements", "--search", "LEVEL + mine"});
    EXPECT_EQ(r.out, "DUNGEON: Old Mine. 3+ levels.\t 3\t 1\n");
    r = runCli({"notes", map, "--search", "level+mine", "--or"});
    EXPECT_EQ(r.out, "DUNGEON: Old Mine. 3+ levels.\t 3\t 1\n"
                     "DUNGEON: Old Mine. 3+ levels.\t 3\t 1\n"
                     "Level ground\\r\\nby the\\triver \\\\ ford\t 2\t 40\n");
    r = runCli({"notes", map, "--search", "nowhere"});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out, "");
}

TEST(CliNotes, SortClicksAreHeaderClicksAndAColumnOutsideTheListIsAUsageError)
{
    TempDir dir;
    const std::string map = notesMap(dir);
    // Y ascending, then X: first click ascending, second descending.
    CliResult r = runCli({"notes", map, "--sort", "3", "--sort", "2", "--sort", "2"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Town gate\t 10\t 1\n"
                     "DUNGEON: Old Mine. 3+ levels.\t 3\t 1\n"
                     "Level ground\\r\\nby the\\triver \\\\ ford\t 2\t 40\n");
    for (const char *column : {"0", "4", "x"}) {
        r = runCli({"notes", map, "--sort", column});
        EXPECT_EQ(r.status, 2) << column;
        EXPECT_EQ(r.out, "");
    }
    EXPECT_EQ(runCli({"notes", map, "--search"}).status, 2);
    EXPECT_EQ(runCli({"notes"}).status, 2);
    r = runCli({"notes", dir.file("missing.om1")});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("missing.om1"), std::string::npos);
}
