#include "import/html_import.h"
#include "import/map_table.h"
#include "import_fixture.h"

namespace wayscribe::test {

namespace {
using Terrain = std::vector<std::tuple<int, int, int>>;

void expectTerrain(World &world, const Terrain &expected)
{
    for (const auto &[x, y, code] : expected)
        EXPECT_EQ(world.sector(x, y).terrain, code) << "sector " << x << "," << y;
}
} // namespace

using WildernessMap = ImportTest;

TEST_F(WildernessMap, BannerLayoutRowsStartAtTheMapInfoRow)
{
    EXPECT_EQ(readData("banner_town.htm").result, ReportResult::Imported);
    // Blank moves on without writing; the sky neither writes nor moves; an
    // unknown picture (Lava) does not move, so Desert and Marsh shift left.
    expectTerrain(*world, {{45, 67, 6},
                           {46, 67, 4},
                           {47, 67, 1},
                           {48, 67, 12},
                           {45, 68, 2},
                           {46, 68, 17},
                           {47, 68, 15},
                           {48, 68, 11},
                           {49, 68, 1},
                           {45, 69, 14},
                           {46, 69, 10},
                           {47, 69, 13},
                           {48, 69, 1},
                           {45, 66, 1},
                           {45, 70, 1}});
    EXPECT_EQ(state.document.gameNumber, 7);
}

TEST_F(WildernessMap, PlainLayoutReadsCommaSeparatedCells)
{
    EXPECT_EQ(readData("plain_city.html").result, ReportResult::Imported);
    expectTerrain(*world, {{10, 20, 3},
                           {11, 20, 18},
                           {12, 20, 8},
                           {10, 21, 7},
                           {11, 21, 9},
                           {12, 21, 5},
                           {10, 19, 1},
                           {10, 22, 1},
                           {13, 20, 1}});
}

TEST_F(WildernessMap, KnownTerrainIsOverwrittenButNeverMadeUnknown)
{
    at(45, 67).terrain = 2;
    at(47, 67).terrain = 5; // under a Blank cell
    readData("banner_town.htm");
    EXPECT_EQ(at(45, 67).terrain, 6);
    EXPECT_EQ(at(47, 67).terrain, 5);
    readData("banner_town.htm"); // the same report again: the same terrain, no question
    EXPECT_EQ(at(46, 68).terrain, 17);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(WildernessMap, CellsPastTheWorldsEdgeAreSkippedAndTheViewStaysInside)
{
    ReportShape shape;
    shape.startX = 198;
    shape.startY = 199;
    shape.map.assign(3, {"Forest", "Forest", "Forest", "Forest"});
    writeFile(dir.file("edge.htm"), reportText(shape));
    EXPECT_EQ(importHtmlFile(*world, state, platform, dir.file("edge.htm"), writeOptions),
              ReportResult::Imported);
    expectTerrain(*world, {{198, 199, 6}, {200, 199, 6}, {198, 200, 6}, {200, 200, 6}, {197, 199, 1}});
    EXPECT_EQ(state.view.viewLeft, 160);
    EXPECT_EQ(state.view.viewTop, 170);

    shape.banner = false;
    shape.startX = 1;
    shape.startY = 1;
    writeFile(dir.file("corner.htm"), reportText(shape));
    importHtmlFile(*world, state, platform, dir.file("corner.htm"), writeOptions);
    expectTerrain(*world, {{1, 1, 6}, {4, 3, 6}, {5, 1, 1}, {1, 4, 1}});
    EXPECT_EQ(state.view.viewLeft, 1);
    EXPECT_EQ(state.view.viewTop, 1);
}

TEST_F(WildernessMap, APartyOnWaterLeavesThePartyPositionAtZero)
{
    ReportShape shape;
    shape.prose = {
        "Scouts reckon that a unit of creatures is holed up in the Deep Well , 4 sectors south and 2 "
        "sectors east of here.",
        "We're in the town.", "Hides (@ 3 gp): Three gp."};
    shape.map = {{"Party and Water", "Party and Heavy Forest"}};
    shape.heading = "TOWN OF NOWHERE (30)";
    shape.afterHeading = {"", ""};
    shape.shops = {shopHeader("4", "BAKER", tableRow("401", "Bread", "2"))};
    readText(reportText(shape));
    EXPECT_EQ(at(45, 67).terrain, 2);
    EXPECT_EQ(at(46, 67).terrain, 7);
    // No settlement cell was seen: the party is at 0,0, the unused corner of
    // the tables, and everything placed from it is placed from there.
    EXPECT_EQ(recordText(world->settlement(30)), "1 0,0 ");
    EXPECT_EQ(at(0, 0).settlementName, "Nowhere ");
    EXPECT_EQ(at(0, 0).note, "Three gp.");
    EXPECT_EQ(at(2, 4).note, "DUNGEON: Deep Well.  1+ levels.");
    EXPECT_EQ(world->dungeon(1).name, "Deep Well");
    EXPECT_EQ(item(30, 4, 1, ItemField::Name), "Bread");
}

TEST(CellNames, PartyCellsShowTheTerrainUnderneath)
{
    EXPECT_EQ(cellTerrain("Heavy Forest"), 7);
    EXPECT_EQ(cellTerrain("Party and City"), 18);
    EXPECT_EQ(cellTerrain("Party and Fields"), 4);
    EXPECT_EQ(cellTerrain("Field"), 0);
    EXPECT_EQ(cellTerrain("forest"), 0);
    EXPECT_EQ(cellTerrain("Blank"), 0);
}

} // namespace wayscribe::test
