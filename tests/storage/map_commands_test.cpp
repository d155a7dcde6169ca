#include "model/program_state.h"
#include "model/world.h"
#include "storage/map_commands.h"
#include "storage/map_file.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {
struct Fixture {
    TempDir dir;
    std::unique_ptr<World> world = std::make_unique<World>();
    ProgramState state;
    ScriptedPlatform platform;
    Fixture() { state.optionsFilePath = dir.file("wayscribe.ini"); }
    std::string saved(const std::string &name)
    {
        World w;
        w.sector(3, 3).terrain = 9;
        FileError e;
        writeMapFile(dir.file(name), w, 5, e);
        return dir.file(name);
    }
};
} // namespace

TEST(LoadMap, RemembersTheMapInTheOptionsAndLocksWhenAsked)
{
    Fixture f;
    const std::string path = f.saved("w.om1");
    f.state.document.mapChanged = 1;
    f.state.options.loadLock = true;
    f.platform.files.push_back(path);
    ASSERT_EQ(Load_Map(*f.world, f.state, f.platform, ""), LoadResult::Complete);
    ASSERT_EQ(f.platform.dialogs.size(), 1u);
    EXPECT_EQ(f.platform.dialogs[0].title, "Load Map File...");
    EXPECT_EQ(f.platform.dialogs[0].filter, "Orven Mapper Files (*.om1)|*.om1");
    EXPECT_EQ(f.world->sector(3, 3).terrain, 9);
    EXPECT_EQ(f.state.document.gameNumber, 5);
    EXPECT_EQ(f.state.document.mapChanged, 0);
    EXPECT_EQ(f.state.document.fileBusy, 0);
    EXPECT_EQ(f.state.document.mapFileName, path);
    EXPECT_EQ(f.state.options.lastFile, f.dir.path().string() + "/");
    EXPECT_EQ(f.state.document.mapLocked, 1);
    EXPECT_EQ(f.platform.lockChanges, 1);
    EXPECT_EQ(f.platform.redraws, 1);
    EXPECT_EQ(f.platform.statuses.front(), "Please wait, loading map...");
    EXPECT_EQ(f.platform.statuses.back(), "");
    EXPECT_NE(readFile(f.dir.file("wayscribe.ini")).find("WMOL = " + path), std::string::npos);
}

TEST(LoadMap, CancelChangesNothingAndABrokenFileIsReported)
{
    Fixture f;
    f.state.document.mapChanged = 1;
    EXPECT_EQ(Load_Map(*f.world, f.state, f.platform, ""), LoadResult::Cancelled);
    EXPECT_EQ(f.state.document.mapChanged, 1);
    EXPECT_TRUE(f.platform.statuses.empty());

    writeFile(f.dir.file("bad.om1"), "\"v017\"\r\n7\r\n300\r\n");
    f.state.document.mapChanged = 0;
    EXPECT_EQ(Load_Map(*f.world, f.state, f.platform, f.dir.file("bad.om1")), LoadResult::Partial);
    ASSERT_EQ(f.platform.messages.size(), 1u);
    EXPECT_NE(f.platform.messages[0].detail.find("bad.om1, line 3"), std::string::npos);
    EXPECT_EQ(f.state.document.gameNumber, 7) << "what was read stays";
    EXPECT_EQ(f.state.document.fileBusy, 0);
    EXPECT_FALSE(f.platform.waitCursor);
    EXPECT_EQ(f.state.document.mapChanged, 1) << "a half-loaded map is not discarded silently";
    EXPECT_EQ(f.state.document.mapFileName, "") << "the next Save asks rather than overwrite the broken file";
}

TEST(LoadMap, AFileThatIsNoMapIsNamedSoAndNeverBecomesTheSaveTarget)
{
    Fixture f;
    const std::string map = f.saved("w.om1");
    ASSERT_EQ(Load_Map(*f.world, f.state, f.platform, map), LoadResult::Complete);
    writeFile(f.dir.file("notes.txt"), "Shopping list\r\n12\r\nmilk\r\n");
    EXPECT_EQ(Load_Map(*f.world, f.state, f.platform, f.dir.file("notes.txt")), LoadResult::Partial);
    ASSERT_EQ(f.platform.messages.size(), 1u);
    EXPECT_EQ(f.platform.messages[0].text.rfind("The file does not look like a Wayscribe map. ", 0), 0u);
    EXPECT_NE(f.platform.messages[0].detail.find("notes.txt, line 4"), std::string::npos);
    EXPECT_EQ(f.state.document.gameNumber, 12) << "still read as a map from before headers";
    EXPECT_EQ(f.state.document.mapFileName, "");
    EXPECT_EQ(f.state.document.mapChanged, 1);
    EXPECT_EQ(f.state.options.wmol, f.dir.file("notes.txt")) << "the options were written before reading";

    // Save now asks for a name; the file that failed keeps its contents.
    f.platform.files.push_back(f.dir.file("mixed.om1"));
    EXPECT_TRUE(Save_Map(*f.world, f.state, f.platform, f.state.document.mapFileName.empty()));
    EXPECT_EQ(readFile(f.dir.file("notes.txt")), "Shopping list\r\n12\r\nmilk\r\n");
}

TEST(LoadMap, AFileThatCannotBeReadLeavesTheMapItsNameAndItsChangesAsTheyWere)
{
    Fixture f;
    const std::string map = f.saved("w.om1");
    ASSERT_EQ(Load_Map(*f.world, f.state, f.platform, map), LoadResult::Complete);
    f.state.document.mapChanged = 1;
    f.platform.answers = {Answer::Yes};
    f.platform.files.push_back(f.dir.file("missing.om1"));
    EXPECT_EQ(loadMapCommand(*f.world, f.state, f.platform, true), LoadResult::Unread);
    EXPECT_EQ(f.state.document.mapFileName, map);
    EXPECT_EQ(f.state.document.mapChanged, 1) << "the changes the person agreed to drop are still there";
    EXPECT_NE(f.platform.messages.back().text.find("could not be read. The map is as it was."),
              std::string::npos);

    f.platform.answers = {Answer::Yes};
    EXPECT_EQ(loadMapCommand(*f.world, f.state, f.platform, false), LoadResult::Cancelled);
    EXPECT_EQ(f.state.document.mapChanged, 1);
}

TEST(SaveMap, AsksForANameOnlyWhenItHasToAndBeforeOverwriting)
{
    Fixture f;
    f.world->sector(1, 1).terrain = 4;
    f.state.document.mapChanged = 1;
    // Save As, cancelled.
    EXPECT_FALSE(Save_Map(*f.world, f.state, f.platform, true));
    EXPECT_EQ(f.platform.dialogs.back().title, "Save Map File As...");
    EXPECT_EQ(f.state.document.mapChanged, 1);
    // Existing file, overwrite declined.
    const std::string existing = f.saved("old.om1");
    f.platform.files.push_back(existing);
    f.platform.answers.push_back(Answer::No);
    EXPECT_FALSE(Save_Map(*f.world, f.state, f.platform, true));
    EXPECT_EQ(f.platform.messages.back().text, "Are you sure you wish to over-write this file?");
    EXPECT_EQ(f.platform.messages.back().title, "Sure?");
    EXPECT_EQ(f.state.document.mapChanged, 1);
    // Accepted.
    f.platform.files.push_back(existing);
    f.platform.answers.push_back(Answer::Yes);
    EXPECT_TRUE(Save_Map(*f.world, f.state, f.platform, true));
    EXPECT_EQ(f.state.document.mapChanged, 0);
    EXPECT_EQ(f.state.document.mapFileName, existing);
    EXPECT_EQ(f.state.options.wmol, existing);
    // Plain save writes to the map's file without any dialog.
    const std::size_t dialogs = f.platform.dialogs.size();
    f.world->sector(1, 1).terrain = 5;
    EXPECT_TRUE(Save_Map(*f.world, f.state, f.platform, false));
    EXPECT_EQ(f.platform.dialogs.size(), dialogs);
    World back;
    std::uint8_t game;
    ASSERT_TRUE(readMapFile(existing, back, game).ok);
    EXPECT_EQ(back.sector(1, 1).terrain, 5);
}

TEST(SaveMap, AFailedSaveKeepsTheMapMarkedAsChanged)
{
    Fixture f;
    f.state.document.mapFileName = f.dir.file("gone/world.om1");
    f.state.document.mapChanged = 1;
    EXPECT_FALSE(Save_Map(*f.world, f.state, f.platform, false));
    EXPECT_EQ(f.state.document.mapChanged, 1);
    EXPECT_EQ(f.state.document.fileBusy, 0);
    ASSERT_EQ(f.platform.messages.size(), 1u);
    EXPECT_NE(f.platform.messages[0].detail.find("gone/world.om1"), std::string::npos);
}

TEST(MergeCommand, IgnoresOtherFilesAndReportsBrokenOnes)
{
    Fixture f;
    f.platform.files.push_back(f.dir.file("notes.txt"));
    mergeMapCommand(*f.world, f.state, f.platform);
    EXPECT_EQ(f.state.document.mapChanged, 0) << "a file without .om1 is ignored";
    EXPECT_EQ(f.platform.redraws, 0);

    writeFile(f.dir.file("broken.om1"), "\"v017\"\r\n");
    f.platform.files.push_back(f.dir.file("broken.om1"));
    mergeMapCommand(*f.world, f.state, f.platform);
    ASSERT_EQ(f.platform.messages.size(), 1u);
    EXPECT_EQ(f.platform.messages[0].text, "There was an unknown error merging the map.");
    EXPECT_EQ(f.platform.dialogs.back().title, "Merge Map File...");
    EXPECT_EQ(f.state.document.mapChanged, 1);
    EXPECT_EQ(f.state.document.fileBusy, 0);
    EXPECT_EQ(f.platform.redraws, 1);
}
