#include "cli/cli_runner.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

TEST(CliShoplist, PrintsTheListAsTheEditorCopiesItAndRefusesOtherNumbers)
{
    TempDir dir;
    auto w = std::make_unique<World>();
    w->settlement(12) = {1, 5, 6, ""};
    w->sector(5, 6).settlementNumber = 12;
    w->sector(5, 6).settlementName = "Oakvale";
    w->settlement(13) = {1, 7, 7, ""}; // its sector carries another number
    w->settlement(14) = {0, 8, 8, ""};
    // Opening tidies shop 20, the first shown, but not shop 21.
    w->setShopName(12, 20, "Smithy");
    w->setItem(12, 20, 2, ItemField::Name, "Long Sword");
    w->setItem(12, 20, 2, ItemField::Number, "143");
    w->setItem(12, 20, 2, ItemField::Price, "120");
    w->setShopName(12, 21, "Stables");
    w->setItem(12, 21, 3, ItemField::Name, "Mule");
    const std::string map = dir.file("shops.om1");
    FileError e;
    ASSERT_TRUE(writeMapFile(map, *w, 1, e)) << e.describe();

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
    EXPECT_EQ(runCli({"shoplist", map}).status, 2);
    EXPECT_EQ(runCli({"shoplist", dir.file("missing.om1"), "12"}).status, 1);
}
