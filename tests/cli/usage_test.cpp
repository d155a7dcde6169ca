#include "cli/cli_runner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

using Args = std::vector<std::string>;

TEST(CliUsage, BadUsageExitsWithTwoAndWritesNothing)
{
    TempDir dir;
    auto world = std::make_unique<World>();
    const std::string map = saveMap(dir, "map.om1", *world);
    const Args cases[] = {{},
                          {"frobnicate"},
                          {"convert", "only-one"},
                          {"merge", "a", "b"},
                          {"merge", "a", "b", "--out"},
                          {"stats"},
                          {"objects"},
                          {"objects", map, "--mode", "cheap"},
                          {"objects", map, "--once", "maybe"},
                          {"objects", map, "--zero-cost"},
                          {"objects", map, "--sort", "6"},
                          {"objects", map, "--sort", "0"},
                          {"objects", map, "--villages"},
                          {"notes"},
                          {"notes", map, "--search"},
                          {"notes", map, "--sort", "4"},
                          {"notes", map, "--sort", "x"},
                          {"dungeons", map, "--sort", "5"},
                          {"dungeons", map, "extra"},
                          {"settlements"},
                          {"settlements", map, "--sort", "6"},
                          {"shoplist", map},
                          {"route", map, "Oakvale (1)"},
                          {"render", map},
                          {"path"},
                          {"path", map, "0,5"},
                          {"path", map, "5,201"},
                          {"path", map, "5"},
                          {"path", map, "5,5x"},
                          {"path", map, "forward"},
                          {"path", map, "--mount", "camels", "5,5"},
                          {"questor", "lands.mp1"},
                          {"questor", "--out", "out.om1"},
                          {"questor", "--bogus", "x", "--out", "out.om1", "lands.mp1"}};
    for (const Args &args : cases) {
        const CliResult r = runCli(args);
        const std::string call = args.empty() ? "(nothing)" : args.front() + " ... " + args.back();
        EXPECT_EQ(r.status, 2) << call;
        EXPECT_EQ(r.out, "") << call;
        EXPECT_FALSE(r.err.empty()) << call;
    }
}

TEST(CliUsage, AMapThatCannotBeReadExitsWithOneNamingItsFileAndLine)
{
    TempDir dir;
    const std::string broken = dir.file("broken.om1");
    writeFile(broken, "v017\r\nnot a number\r\n");
    const Args cases[] = {{"convert", broken, dir.file("out.om1")},
                          {"stats", broken},
                          {"info", broken},
                          {"objects", broken},
                          {"notes", broken},
                          {"dungeons", broken},
                          {"settlements", broken},
                          {"shoplist", broken, "12"},
                          {"route", broken, "A (1)", "B (2)"},
                          {"path", broken, "1,1"},
                          {"render", broken, "--out", dir.file("out.png")}};
    for (const Args &args : cases) {
        const CliResult r = runCli(args);
        EXPECT_EQ(r.status, 1) << args.front();
        EXPECT_EQ(r.out, "") << args.front();
        EXPECT_NE(r.err.find(broken + ", line "), std::string::npos) << args.front() << ": " << r.err;
    }
    EXPECT_FALSE(std::filesystem::exists(dir.file("out.om1")));
    EXPECT_FALSE(std::filesystem::exists(dir.file("out.png")));
    const CliResult missing = runCli({"notes", dir.file("missing.om1")});
    EXPECT_EQ(missing.status, 1);
    EXPECT_NE(missing.err.find(dir.file("missing.om1")), std::string::npos);
}
