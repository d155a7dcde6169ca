// Saving never loses a map: not through a link, not over a file the person
// protected, not into a folder that takes no file, and not by leaving
// temporary copies to pile up.
#include "model/program_state.h"
#include "model/world.h"
#include "storage/map_commands.h"
#include "storage/map_file.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <set>
#include <unistd.h>

using namespace wayscribe;
using namespace wayscribe::test;
namespace fs = std::filesystem;

namespace {

std::string savedBytes(const TempDir &dir, std::uint8_t gameNumber)
{
    World w;
    FileError error;
    EXPECT_TRUE(writeMapFile(dir.file("bytes.om1"), w, gameNumber, error)) << error.describe();
    const std::string bytes = readFile(dir.file("bytes.om1"));
    fs::remove(dir.file("bytes.om1"));
    return bytes;
}

std::set<std::string> filesIn(const TempDir &dir)
{
    std::set<std::string> names;
    for (const auto &entry : fs::directory_iterator(dir.path()))
        names.insert(entry.path().filename().string());
    return names;
}

} // namespace

TEST(SafeSaving, ALinkStaysALinkAndTheFileItPointsToIsWritten)
{
    TempDir dir;
    const std::string oldBytes = savedBytes(dir, 1), newBytes = savedBytes(dir, 2);
    fs::create_directory(dir.path() / "maps");
    writeFile(dir.file("maps/real.om1"), oldBytes);
    fs::create_symlink("maps/real.om1", dir.path() / "link.om1");
    fs::create_symlink(dir.file("link.om1"), dir.path() / "chain.om1");
    fs::create_symlink("maps/new.om1", dir.path() / "dangling.om1");

    auto world = std::make_unique<World>();
    FileError error;
    ASSERT_TRUE(writeMapFile(dir.file("chain.om1"), *world, 2, error)) << error.describe();
    EXPECT_TRUE(fs::is_symlink(dir.path() / "chain.om1"));
    EXPECT_TRUE(fs::is_symlink(dir.path() / "link.om1"));
    EXPECT_EQ(readFile(dir.file("maps/real.om1")), newBytes);

    ASSERT_TRUE(writeMapFile(dir.file("dangling.om1"), *world, 2, error)) << error.describe();
    EXPECT_TRUE(fs::is_symlink(dir.path() / "dangling.om1"));
    EXPECT_EQ(readFile(dir.file("maps/new.om1")), newBytes);
    EXPECT_EQ(filesIn(dir), (std::set<std::string>{"chain.om1", "dangling.om1", "link.om1", "maps"}));
}

// The permission bits decide, so that this holds for the administrator too.
TEST(SafeSaving, AReadOnlyMapIsReplacedOnlyWhenThePersonAgrees)
{
    TempDir dir;
    const std::string oldBytes = savedBytes(dir, 1), newBytes = savedBytes(dir, 2);
    const std::string map = dir.file("kept.om1");
    writeFile(map, oldBytes);
    fs::permissions(map, fs::perms::owner_read | fs::perms::group_read);
    fs::create_symlink("kept.om1", dir.path() / "link.om1");

    auto world = std::make_unique<World>();
    FileError error;
    EXPECT_FALSE(writeMapFile(map, *world, 2, error))
        << "as the command-line tool saves: never without asking";
    EXPECT_EQ(error.describe(), map + ": it is read-only");
    EXPECT_FALSE(writeMapFile(dir.file("link.om1"), *world, 2, error)) << "also behind a link";

    ProgramState state;
    state.optionsFilePath = dir.file("wayscribe.ini");
    state.document.gameNumber = 2;
    state.document.mapFileName = map;
    state.document.mapChanged = 1;
    ScriptedPlatform platform;
    platform.answers = {Answer::No};
    EXPECT_FALSE(Save_Map(*world, state, platform, false));
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].text, map + " is read-only. Replace it anyway?");
    EXPECT_EQ(platform.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(readFile(map), oldBytes);
    EXPECT_EQ(state.document.mapChanged, 1);
    EXPECT_EQ(state.document.mapFileName, map);

    platform.answers = {Answer::Yes};
    EXPECT_TRUE(Save_Map(*world, state, platform, false));
    EXPECT_EQ(readFile(map), newBytes);
    EXPECT_EQ(state.document.mapChanged, 0);
    EXPECT_EQ(fs::status(map).permissions() & fs::perms::all, fs::perms::owner_read | fs::perms::group_read)
        << "the new map is as protected as the old one";
}

TEST(SafeSaving, AFolderThatTakesNoNewFileIsNamed)
{
    TempDir dir;
    writeFile(dir.file("plain"), "a file, not a folder");
    auto world = std::make_unique<World>();
    FileError error;
    EXPECT_FALSE(writeMapFile(dir.file("plain/map.om1"), *world, 0, error));
    EXPECT_EQ(error.describe(), dir.file("plain/map.om1") + ": the folder " + dir.file("plain") +
                                    " cannot take a new file: Not a directory");

    // The administrator may write into any folder: there is nothing to see.
    if (::geteuid() == 0)
        return;
    fs::create_directory(dir.path() / "locked");
    writeFile(dir.file("locked/map.om1"), "old");
    fs::permissions(dir.path() / "locked", fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_FALSE(writeMapFile(dir.file("locked/map.om1"), *world, 0, error));
    fs::permissions(dir.path() / "locked", fs::perms::owner_all);
    EXPECT_EQ(error.reason,
              "the folder " + dir.file("locked") + " cannot take a new file: Permission denied");
    EXPECT_EQ(readFile(dir.file("locked/map.om1")), "old");
}

TEST(SafeSaving, TemporaryFilesAKilledSaveLeftGoWithTheNextSave)
{
    TempDir dir;
    const std::set<std::string> others = {
        "w.om1",
        ".w.om1.saving-ABCDE",   // one character short
        ".w.om1.saving-ABCDEFG", // one too many
        ".w.om1.saving-ABC_EF",  // not one mkstemp makes
        "w.om1.saving-ABCDEF",   // no leading dot
        ".x.om1.saving-ABCDEF",  // another map's
        ".w.om1.saving-folder",  // not a file
    };
    for (const std::string &name : others)
        if (name != ".w.om1.saving-folder")
            writeFile(dir.file(name), "x");
    fs::create_directory(dir.path() / ".w.om1.saving-folder");
    writeFile(dir.file(".w.om1.saving-Ab3xY9"), std::string(1000, 'x'));
    writeFile(dir.file(".w.om1.saving-zzzzzz"), "");

    auto world = std::make_unique<World>();
    FileError error;
    ASSERT_TRUE(writeMapFile(dir.file("w.om1"), *world, 0, error)) << error.describe();
    EXPECT_EQ(filesIn(dir), others);
}
