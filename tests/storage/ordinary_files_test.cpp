// Every reader of outside files takes only ordinary files of a sensible
// size: a pipe would leave it waiting for ever, a device or a huge file
// would fill the memory.
#include "support/questor_writer.h"

#include "model/program_state.h"
#include "model/world.h"
#include "storage/map_commands.h"
#include "storage/map_file.h"
#include "storage/map_merge.h"
#include "storage/options_file.h"
#include "storage/questor_import.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <sys/stat.h>
#include <sys/wait.h>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

bool contains(const std::string &text, const std::string &part)
{
    return text.find(part) != std::string::npos;
}

std::string makeFifo(const TempDir &dir, const std::string &name)
{
    const std::string path = dir.file(name);
    EXPECT_EQ(::mkfifo(path.c_str(), 0600), 0);
    return path;
}

// A file of that size that takes no room on the disk.
std::string sparseFile(const TempDir &dir, const std::string &name, std::uintmax_t size)
{
    const std::string path = dir.file(name);
    writeFile(path, "");
    std::filesystem::resize_file(path, size);
    return path;
}

QuestorError questorError(const std::string &mp1)
{
    auto world = std::make_unique<World>();
    ProgramState state;
    ScriptedPlatform platform;
    return readQuestorMap(mp1, *world, state, platform).error;
}

} // namespace

TEST(OrdinaryFiles, APipeIsRefusedByEveryReaderAtOnceAndNamed)
{
    TempDir dir;
    const std::string pipeMap = makeFifo(dir, "pipe.om1");
    const std::string refusal = "it is not an ordinary file";

    // Open and the start-up's reopening of the last map both load here.
    auto world = std::make_unique<World>();
    world->sector(4, 4).terrain = 9;
    ProgramState state;
    state.optionsFilePath = dir.file("wayscribe.ini");
    state.document.mapFileName = dir.file("mine.om1");
    ScriptedPlatform platform;
    EXPECT_EQ(Load_Map(*world, state, platform, pipeMap), LoadResult::Unread);
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].detail, pipeMap + ": cannot be opened: " + refusal);
    EXPECT_EQ(state.document.mapFileName, dir.file("mine.om1"));
    EXPECT_EQ(world->sector(4, 4).terrain, 9);

    std::uint8_t game = 0;
    const MapReadResult merged = mergeMapFile(pipeMap, *world, game);
    EXPECT_FALSE(merged.ok);
    EXPECT_EQ(merged.error.describe(), pipeMap + ": cannot be opened: " + refusal);

    ProgramState options;
    const std::optional<FileError> optionsError = readOptionsFile(makeFifo(dir, "pipe.ini"), options);
    ASSERT_TRUE(optionsError.has_value());
    EXPECT_EQ(optionsError->describe(), dir.file("pipe.ini") + ": " + refusal);
    EXPECT_EQ(options.options.graphicsSetName, "kjc_set1") << "the defaults stand";

    // Either file of a QuestOR map, and a device that never ends.
    const std::string pipeMp1 = makeFifo(dir, "pipe.mp1");
    EXPECT_TRUE(
        contains(questorError(pipeMp1).describe(), pipeMp1 + ": the file cannot be opened (" + refusal));
    QuestorMapWriter mp1;
    mp1.finishTerrain(1);
    writeFile(dir.file("names.mp1"), mp1.bytes());
    const std::string pipeMp2 = makeFifo(dir, "names.mp2");
    EXPECT_TRUE(
        contains(questorError(dir.file("names.mp1")).describe(), pipeMp2 + ": the file cannot be opened ("));
    EXPECT_TRUE(contains(questorError("/dev/zero").describe(), refusal));

    // A turn report, through the command-line import.
    const std::string pipeReport = makeFifo(dir, "turn.htm");
    const std::string command = std::string("'") + WAYSCRIBE_CLI + "' import --out '" + dir.file("out.om1") +
                                "' '" + pipeReport + "' 2>'" + dir.file("err") + "'";
    const int status = std::system(command.c_str());
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_TRUE(contains(readFile(dir.file("err")), pipeReport)) << readFile(dir.file("err"));
    EXPECT_TRUE(contains(readFile(dir.file("err")), refusal)) << readFile(dir.file("err"));
}

TEST(OrdinaryFiles, FilesBeyondTheirKindsLimitAreNotRead)
{
    TempDir dir;
    ProgramState state;
    const std::string ini = sparseFile(dir, "big.ini", (std::uintmax_t(1) << 20) + 1);
    const std::optional<FileError> optionsError = readOptionsFile(ini, state);
    ASSERT_TRUE(optionsError.has_value());
    EXPECT_EQ(optionsError->describe(), ini + ": it is larger than 1 MB, too large for an options file");

    const std::string mp1 = sparseFile(dir, "big.mp1", (std::uintmax_t(256) << 20) + 1);
    EXPECT_TRUE(
        contains(questorError(mp1).describe(), "larger than 256 MB, too large for a QuestOR map file"));

    const std::string map = sparseFile(dir, "big.om1", (std::uintmax_t(256) << 20) + 1);
    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    EXPECT_EQ(readMapFile(map, *world, game).error.describe(),
              map + ": cannot be opened: it is larger than 256 MB, too large for a map file");
}

TEST(OrdinaryFiles, ANumberBeyondAnyRangeInAQuestorFieldDoesNotFit)
{
    TempDir dir;
    QuestorMapWriter mp1;
    mp1.finishTerrain(1);
    writeFile(dir.file("q.mp1"), mp1.bytes());
    for (const std::string &x : {std::string("1e309"), std::string(400, '7')}) {
        SCOPED_TRACE(x.substr(0, 10));
        writeFile(dir.file("q.mp2"), x + ",5,\"note\"\r\n255\r\n");
        const QuestorError error = questorError(dir.file("q.mp1"));
        EXPECT_EQ(error.place, "line 1");
        EXPECT_EQ(error.reason, "the number \"" + x.substr(0, 40) + "\" does not fit its field");
    }
}
