#include "cli/cli_runner.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "support/test_support.h"

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
    FileError e;
    ASSERT_TRUE(writeMapFile(dir.file("d.om1"), *w, 1, e)) << e.describe();

    CliResult r = runCli({"dungeons", dir.file("d.om1")});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "Old Mine\t1\t2\t2\nCrypt\t10\t0\t30\n");

    r = runCli({"dungeons", dir.file("d.om1"), "--sort", "2", "--sort", "2"});
    EXPECT_EQ(r.out, "Crypt\t10\t0\t30\nOld Mine\t1\t2\t2\n");
    r = runCli({"dungeons", dir.file("d.om1"), "--sort", "1"});
    EXPECT_EQ(r.out, "Crypt\t10\t0\t30\nOld Mine\t1\t2\t2\n");
    EXPECT_EQ(runCli({"dungeons", dir.file("d.om1"), "--sort", "5"}).status, 2);
    EXPECT_EQ(runCli({"dungeons", dir.file("d.om1"), "extra"}).status, 2);
}
