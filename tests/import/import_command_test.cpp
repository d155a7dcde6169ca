#include "import/html_import.h"
#include "import_fixture.h"

#include <random>

namespace wayscribe::test {

using ImportCommand = ImportTest;

namespace {
int knownSectors(const World &world)
{
    int known = 0;
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x)
            known += world.sector(x, y).terrain != 1 || !world.sector(x, y).note.empty();
    return known;
}
} // namespace

TEST_F(ImportCommand, CancelledDialogChangesNothing)
{
    state.options.lastImp = "/turns/";
    Import_HTML(*world, state, platform, writeOptions);
    ASSERT_EQ(platform.dialogs.size(), 1u);
    EXPECT_EQ(platform.dialogs[0].title, "Import HTML Turn...");
    EXPECT_EQ(platform.dialogs[0].filter, "HTML File (*.html)|*.htm*");
    EXPECT_EQ(platform.dialogs[0].startFolder, "/turns/");
    EXPECT_TRUE(platform.statuses.empty());
    EXPECT_EQ(state.document.mapChanged, 0);
}

TEST_F(ImportCommand, ImportMovesTheViewOntoTheMapAndRemembersTheFolder)
{
    state.optionsFilePath = dir.file("wayscribe.ini");
    platform.files = {reportPath("banner_town.htm")};
    Import_HTML(*world, state, platform, writeOptions);
    EXPECT_EQ(platform.statuses, (std::vector<std::string>{"Please wait, importing HTML turn...", ""}));
    EXPECT_FALSE(platform.waitCursor);
    EXPECT_EQ(state.document.fileBusy, 0);
    EXPECT_EQ(state.document.mapChanged, 1);
    EXPECT_EQ(state.options.lastImp, std::string(WAYSCRIBE_TEST_DATA) + "/reports/");
    EXPECT_NE(readFile(state.optionsFilePath).find("LastImp = " + state.options.lastImp + "\r\n"),
              std::string::npos);
    EXPECT_EQ(state.view.viewLeft, 45 - 20 + 5);
    EXPECT_EQ(state.view.viewTop, 67 - 15 + 5);
    EXPECT_EQ(platform.redraws, 1);
}

TEST_F(ImportCommand, ReportWithoutMapLeavesTheView)
{
    state.view.viewLeft = 3;
    importHtmlFile(*world, state, platform, reportPath("dungeon_level.htm"), writeOptions);
    EXPECT_EQ(state.view.viewLeft, 3);
    EXPECT_EQ(platform.redraws, 0);
}

TEST_F(ImportCommand, ReportOfAnotherGameKeepsOnlyWhatCameBefore)
{
    state.document.gameNumber = 7;
    importHtmlFile(*world, state, platform, reportPath("other_game.htm"), writeOptions);
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].text,
              "You tried importing from G9\r\nBut this map is for G7\r\nAborting Import.");
    EXPECT_EQ(platform.messages[0].title, "Wayscribe");
    EXPECT_EQ(at(101, 100).terrain, 6);
    EXPECT_EQ(at(120, 120).terrain, 1);
    EXPECT_EQ(world->settlement(99).inUse, 0);
    EXPECT_EQ(state.document.gameNumber, 7);
    EXPECT_EQ(platform.redraws, 0);

    read(reportPath("other_game.htm"), true); // the batch import says nothing
    EXPECT_EQ(platform.messages.size(), 1u);

    state.document.gameNumber = 0; // a map without a game takes the report's
    readData("other_game.htm");
    EXPECT_EQ(state.document.gameNumber, 9);
    EXPECT_EQ(at(120, 120).terrain, 16);
    EXPECT_EQ(at(120, 120).settlementName, "Otterby ");
    EXPECT_EQ(item(99, 3, 1, ItemField::Name), "Bread");
}

TEST_F(ImportCommand, ReportCutOffKeepsWhatWasReadAndSaysWhere)
{
    EXPECT_EQ(importHtmlFile(*world, state, platform, reportPath("cut_map.htm"), writeOptions),
              ReportResult::Stopped);
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].detail,
              reportPath("cut_map.htm") + ", line 22: the report ends inside the map table");
    EXPECT_EQ(at(48, 67).terrain, 12);
    EXPECT_EQ(at(46, 68).terrain, 17);
    EXPECT_EQ(at(47, 68).terrain, 1);
    EXPECT_EQ(state.document.fileBusy, 0);
    EXPECT_EQ(platform.statuses.back(), "");
    EXPECT_FALSE(platform.waitCursor);
    EXPECT_EQ(state.view.viewLeft, 0); // not moved, but redrawn
    EXPECT_EQ(platform.redraws, 1);

    readData("cut_shops.html");
    EXPECT_EQ(platform.messages[1].detail,
              reportPath("cut_shops.html") + ", line 23: the report ends inside the shop list");
    EXPECT_EQ(at(11, 20).settlementName, "Karnak ");
    EXPECT_EQ(item(7, 12, 2, ItemField::Name), "Passage to Ulm ");
}

TEST_F(ImportCommand, NumbersTooLargeForTheirFieldStopTheReport)
{
    std::string text = readFile(reportPath("banner_town.htm"));
    text.replace(text.find("MAP INFO 45"), 11, "MAP INFO 99999");
    readText(text);
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].detail,
              dir.file("turn.htm") +
                  ", line 11: the map start column \"99999\" does not fit its field (-32768 to 32767)");
    EXPECT_EQ(state.document.gameNumber, 7); // read before the faulty line

    text = readFile(reportPath("banner_town.htm"));
    text.replace(text.find("G07"), 3, "G-1");
    readText(text);
    EXPECT_NE(platform.messages[1].detail.find("line 8: the game number \"-1\""), std::string::npos);
}

TEST_F(ImportCommand, UnreadableAndMeaninglessReportsChangeNothing)
{
    EXPECT_EQ(readData("missing.htm").result, ReportResult::NotOpened);
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].text, "The HTML turn could not be opened.");

    EXPECT_EQ(readData("empty.htm").result, ReportResult::Imported);
    EXPECT_EQ(readData("junk.htm").result, ReportResult::Imported);
    std::mt19937 random(7);
    std::string junk(300000, '\0');
    for (char &c : junk)
        c = static_cast<char>(random());
    EXPECT_EQ(readText(junk).result, ReportResult::Imported);
    EXPECT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(knownSectors(*world), 0);
    EXPECT_EQ(state.document.gameNumber, 0);
}

TEST_F(ImportCommand, LinesOfAHundredThousandCharacters)
{
    ReportShape shape;
    shape.banner = false;
    shape.prose = {std::string(100000, 'x'), "We're in " + std::string(100000, 'y')};
    shape.map = {std::vector<std::string>(2500, "Swamp")};
    shape.map[0][1] = "Party and Town";
    shape.heading = "TOWN OF LONGTON (40)";
    shape.afterHeading = {std::string(100000, 'z'), ""};
    shape.shops = {shopHeader("2", "STALL", "(001) Rope" + std::string(100000, '-'))};
    EXPECT_EQ(readText(reportText(shape)).result, ReportResult::Imported);
    EXPECT_EQ(at(200, 67).terrain, 14);
    EXPECT_EQ(at(46, 67).terrain, 17);
    EXPECT_EQ(item(40, 2, 1, ItemField::Name), "Rope----------------");
    EXPECT_EQ(item(40, 2, 1, ItemField::Price), "0");
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(ImportCommand, EachOptionGatesItsPart)
{
    for (int mask = 0; mask < 16; ++mask) {
        SCOPED_TRACE(mask);
        world = std::make_unique<World>();
        state.document.gameNumber = 0;
        const bool map = mask & 1, shops = mask & 2, hides = mask & 4, dungeons = mask & 8;
        setImportOptions(map, shops, hides, dungeons);
        readData("banner_town.htm");
        readData("plain_city.html");
        readData("dungeon_level.htm");
        EXPECT_EQ(at(45, 67).terrain, map ? 6 : 1);
        EXPECT_EQ(at(10, 20).terrain, map ? 3 : 1);
        // Without the map the party is still found.
        EXPECT_EQ(world->settlement(23).x, shops ? 46 : 0);
        EXPECT_EQ(at(11, 20).settlementName, shops ? "Karnak " : "");
        EXPECT_EQ(item(23, 7, 1, ItemField::Name), shops ? "Longsword" : "");
        EXPECT_EQ(at(46, 68).note.empty(), !(shops && hides));
        EXPECT_EQ(at(8, 25).note.empty(), !(shops && dungeons));
        EXPECT_EQ(at(48, 64).note.empty(), !(shops && dungeons));
        EXPECT_EQ(world->dungeon(1).name, shops && dungeons ? "Black Pit" : "");
        EXPECT_EQ(world->dungeon(200).name, "Dark Hole");
        EXPECT_EQ(state.document.gameNumber, 7);
    }
}

} // namespace wayscribe::test
