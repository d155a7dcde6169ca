#include "model/world.h"
#include "storage/map_file.h"
#include "storage/map_file_versions.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>
#include <sys/stat.h>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

std::string validFile(const TempDir &dir)
{
    World w;
    w.sector(1, 1).terrain = 6;
    w.sector(2, 1).terrain = 7;
    w.dungeon(1).name = "Crypt";
    FileError error;
    writeMapFile(dir.file("valid.om1"), w, 3, error);
    return readFile(dir.file("valid.om1"));
}

// The first n lines of a file, each with its CR LF.
std::string firstLines(const std::string &bytes, long n)
{
    std::size_t at = 0;
    for (long i = 0; i < n; ++i)
        at = bytes.find("\r\n", at) + 2;
    return bytes.substr(0, at);
}

std::string replaceLine(std::string bytes, long n, const std::string &text)
{
    const std::size_t start = firstLines(bytes, n - 1).size();
    const std::size_t end = bytes.find("\r\n", start);
    bytes.replace(start, end - start, text);
    return bytes;
}

MapReadResult readInto(const std::string &path, World &w, std::uint8_t &game)
{
    return readMapFile(path, w, game);
}

} // namespace

TEST(MapFileErrors, BrokenFilesStopAtTheBadLineAndKeepWhatWasRead)
{
    TempDir dir;
    const std::string good = validFile(dir);
    struct Case {
        std::string name;
        std::string bytes;
        long line;
        std::string reason;
    };
    const std::vector<Case> cases = {
        {"empty", "", 1, "the file is empty"},
        {"header only", firstLines(good, 1), 2, "the file ends early"},
        {"cut inside the sectors", firstLines(good, 6), 7, "the file ends early"},
        {"cut before the dungeons", firstLines(good, 1084001), 1084002, "the file ends early"},
        {"cut at the last line", firstLines(good, 1248401), 1248402, "the file ends early"},
        {"terrain too large", replaceLine(good, 7, "256"), 7, "does not fit"},
        {"negative terrain", replaceLine(good, 7, "-1"), 7, "does not fit"},
        {"huge game number", replaceLine(good, 2, "99999999999999999999"), 2, "does not fit"},
        {"game number beyond any range", replaceLine(good, 2, "1e309"), 2,
         "the number \"1e309\" does not fit its field"},
        {"terrain of 400 digits", replaceLine(good, 7, std::string(400, '9')), 7, "does not fit its field"},
        {"one-character text", replaceLine(good, 8, "\""), 8, "shorter than two characters"},
        {"empty text line", replaceLine(good, 4, ""), 4, "shorter than two characters"},
        {"junk", std::string("\x7f\x45\x4c\x46\x00\x01\xff\xfe", 8) + std::string(5000, '\xee'), 2,
         "the file ends early"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        const std::string path = dir.file("broken.om1");
        writeFile(path, c.bytes);
        auto w = std::make_unique<World>();
        w->sector(200, 200).terrain = 11;
        w->dungeon(1).name = "Mine";
        std::uint8_t game = 0;
        const MapReadResult r = readInto(path, *w, game);
        EXPECT_FALSE(r.ok);
        EXPECT_EQ(r.error.line, c.line);
        EXPECT_NE(r.error.reason.find(c.reason), std::string::npos) << r.error.reason;
        EXPECT_NE(r.error.describe().find(path), std::string::npos);
        if (c.line < 160002) {
            EXPECT_EQ(w->sector(200, 200).terrain, 11) << "records after the failure keep their contents";
        }
        if (c.line > 7) {
            EXPECT_EQ(w->sector(1, 1).terrain, 6) << "records before the failure were read";
        }
        EXPECT_EQ(w->dungeon(1).name, c.line > 1084002 ? "Crypt" : "Mine");
    }
}

TEST(MapFileErrors, LenientNumbersAndLineEnds)
{
    TempDir dir;
    std::string text = validFile(dir);
    text = replaceLine(text, 2, " 4.5 "); // rounds half to even
    text = replaceLine(text, 3, "");      // an empty number line is 0
    text = replaceLine(text, 7, "12abc"); // the leading number counts
    std::string lf;                       // bare LF line ends are accepted
    for (char c : text)
        if (c != '\r')
            lf.push_back(c);
    const std::string path = dir.file("lf.om1");
    writeFile(path, lf);
    auto w = std::make_unique<World>();
    std::uint8_t game = 0;
    const MapReadResult r = readInto(path, *w, game);
    ASSERT_TRUE(r.ok) << r.error.describe();
    EXPECT_EQ(game, 4);
    EXPECT_EQ(w->sector(1, 1).terrain, 0);
    EXPECT_EQ(w->sector(2, 1).terrain, 12);
}

TEST(MapFileErrors, UnreadableOrUnwritablePlaces)
{
    TempDir dir;
    World w;
    std::uint8_t game = 0;
    MapReadResult r = readMapFile(dir.file("missing.om1"), w, game);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.error.line, 0);
    r = readMapFile(dir.path().string(), w, game);
    EXPECT_FALSE(r.ok);
    EXPECT_NE(r.error.reason.find("folder"), std::string::npos);

    FileError error;
    EXPECT_FALSE(writeMapFile(dir.file("no/such/folder/a.om1"), w, 0, error));
    EXPECT_FALSE(writeMapFile(dir.path().string(), w, 0, error));
    EXPECT_NE(error.reason.find("folder"), std::string::npos);
}

TEST(MapFileErrors, SavingReplacesOnlyOrdinaryFilesAndLeavesNoLitter)
{
    TempDir dir;
    const std::string target = dir.file("keep.om1");
    writeFile(target, "old contents");
    World w;
    FileError error;
    // A target that is not an ordinary file is refused and left alone.
    const std::string pipe = dir.file("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(writeMapFile(pipe, w, 0, error));
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
    std::filesystem::remove(pipe);
    ASSERT_TRUE(writeMapFile(target, w, 0, error));
    std::size_t files = 0;
    for ([[maybe_unused]] const auto &entry : std::filesystem::directory_iterator(dir.path()))
        ++files;
    EXPECT_EQ(files, 1u) << "the temporary file is renamed into place";
}
