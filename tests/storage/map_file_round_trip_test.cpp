// Whatever bytes the model's texts hold, a saved map reads back whole: saving
// what was read gives the same file again.
#include "model/text.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "storage/map_file_versions.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <iterator>
#include <memory>
#include <random>
#include <string>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

constexpr long kV17Lines = 1248402;

// Texts of arbitrary bytes, with the ones the format cares about (line
// breaks, quotes, blanks, the note escape and its parts) coming up often.
class TextSource {
public:
    explicit TextSource(unsigned seed) : random_(seed) {}

    std::string text()
    {
        static const char *const kPieces[] = {"\r", "\n", "\r\n", "\"", " ", "@/@", "@/", "/@", "@"};
        std::string t;
        const int length = pick(0, 24);
        for (int k = 0; k < length; ++k) {
            if (pick(0, 2) == 0)
                t += kPieces[pick(0, static_cast<int>(std::size(kPieces)) - 1)];
            else
                t += static_cast<char>(pick(0, 255));
        }
        return t;
    }
    int pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

private:
    std::mt19937 random_;
};

void fillWithArbitraryTexts(World &w, TextSource &src)
{
    for (int k = 0; k < 400; ++k) {
        Sector &sec = w.sector(src.pick(1, kMapSize), src.pick(1, kMapSize));
        sec.note = src.text();
        sec.settlementName = src.text();
        sec.settlementNumber = static_cast<std::uint8_t>(src.pick(0, 255));
    }
    for (int k = 0; k < 30; ++k) {
        const int n = src.pick(1, kMaxSettlements);
        w.settlement(n).cityState = src.text();
        w.settlement(n).inUse = 1;
        for (int j = 0; j < 4; ++j) {
            const int s = src.pick(0, kMaxShop);
            w.setShopName(n, s, src.text());
            for (int i = 1; i <= kItemsPerShop; ++i)
                for (ItemField f : {ItemField::Name, ItemField::Number, ItemField::Price})
                    w.setItem(n, s, i, f, src.text());
        }
    }
    for (int k = 0; k < 40; ++k) {
        Dungeon &dg = w.dungeon(src.pick(1, kMaxDungeons));
        dg.name = src.text();
        dg.levels = static_cast<std::int16_t>(src.pick(-32768, 32767));
        for (int l = 1; l <= kLevelsPerDungeon; ++l) {
            dg.level[l].map = src.text();
            dg.level[l].roomData = src.text();
        }
    }
}

TEST(MapFileRoundTrip, ArbitraryBytesInEveryTextSaveLoadAndSaveToTheSameFile)
{
    TempDir dir;
    for (unsigned seed = 1; seed <= 3; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TextSource src(seed);
        auto original = std::make_unique<World>();
        fillWithArbitraryTexts(*original, src);
        FileError error;
        ASSERT_TRUE(writeMapFile(dir.file("first.om1"), *original, 9, error)) << error.describe();
        const std::string first = readFile(dir.file("first.om1"));
        ASSERT_EQ(static_cast<long>(mapFileLines(first).size()), kV17Lines) << "no text spans lines";

        auto loaded = std::make_unique<World>();
        std::uint8_t gameNumber = 0;
        const MapReadResult read = readMapFile(dir.file("first.om1"), *loaded, gameNumber);
        ASSERT_TRUE(read.ok) << read.error.describe();
        ASSERT_TRUE(writeMapFile(dir.file("second.om1"), *loaded, gameNumber, error)) << error.describe();
        ASSERT_TRUE(readFile(dir.file("second.om1")) == first) << "the second save differs from the first";
    }
}

// What reads back of texts holding line breaks and quotes.
TEST(MapFileRoundTrip, LineBreaksReadBackAsBlanksInOneLineFieldsAndAsCrLfInNotes)
{
    TempDir dir;
    auto w = std::make_unique<World>();
    w->sector(3, 4).settlementName = "\"Old\"\r\nTown\n";
    w->sector(3, 4).note = "a\rb\nc\r\nd";
    w->settlement(2).cityState = "\nFree\r";
    w->setItem(2, 5, 1, ItemField::Name, "Long\r\nSword");
    w->dungeon(7).name = "Deep\nHalls";
    w->dungeon(7).level[1].roomData = "1\n2";
    FileError error;
    ASSERT_TRUE(writeMapFile(dir.file("a.om1"), *w, 1, error)) << error.describe();

    auto back = std::make_unique<World>();
    std::uint8_t gameNumber = 0;
    const MapReadResult read = readMapFile(dir.file("a.om1"), *back, gameNumber);
    ASSERT_TRUE(read.ok) << read.error.describe();
    EXPECT_EQ(back->sector(3, 4).settlementName, "\"Old\"  Town")
        << "quotes inside a text read back as they are";
    EXPECT_EQ(back->sector(3, 4).note, "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(back->settlement(2).cityState, " Free ") << "city-states are stored untrimmed";
    EXPECT_EQ(back->item(2, 5, 1, ItemField::Name), "Long  Sword");
    EXPECT_EQ(back->dungeon(7).name, "Deep Halls");
    EXPECT_EQ(back->dungeon(7).level[1].roomData, "1\r\n2");
    EXPECT_EQ(w->sector(3, 4).note, "a\rb\nc\r\nd") << "saving leaves the model as it was";
}

} // namespace
