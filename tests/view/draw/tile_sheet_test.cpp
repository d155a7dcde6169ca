#include "synthetic_graphics.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

QRgb entryPixel(const TileSheet &sheet, int entry, QPoint offset = {})
{
    return sheet.sheet().pixel(TileSheet::entryPosition(entry) + offset);
}

} // namespace

TEST(TileSheet, PlacesEveryTileAndMarkerAtItsSheetPosition)
{
    TempDir dir;
    TileSheet sheet;
    loadSyntheticSheet(sheet, dir);

    EXPECT_EQ(TileSheet::entryPosition(18), QPoint(288, 0));
    EXPECT_EQ(TileSheet::entryPosition(TileSheet::kSpecialIcon), QPoint(64, 17));
    for (int code = kFirstTerrain; code <= kLastTerrain; ++code) {
        EXPECT_EQ(entryPixel(sheet, code), tileColour(code)) << code;
        EXPECT_EQ(entryPixel(sheet, code, {15, 15}), tileColour(code)) << code;
        EXPECT_EQ(sheet.paletteTile(code).pixel(0, 0), smallTileColour(code)) << code;
    }
    EXPECT_EQ(entryPixel(sheet, TileSheet::kNoteImage, {5, 5}), kNoteColour);
    EXPECT_EQ(entryPixel(sheet, TileSheet::kNoteMask, {5, 5}), kBlack);
    EXPECT_EQ(entryPixel(sheet, TileSheet::kNoteMask, {0, 0}), qRgb(255, 255, 255));
    EXPECT_EQ(entryPixel(sheet, TileSheet::kDungeonIcon), kDungeonColour);
    EXPECT_EQ(entryPixel(sheet, TileSheet::kSpecialIcon, {15, 15}), kSpecialColour);
    for (int foot = 1; foot <= 4; ++foot)
        EXPECT_EQ(sheet.footprint(foot).pixel(0, 0), footColour(foot));
}

TEST(TileSheet, MissingOrBrokenFileIsNamedAndTheOldTilesStay)
{
    TempDir dir;
    const std::string graphics = dir.file("graphics");
    writeTileSet(graphics, "kjc_set1");
    writeTileSet(graphics, "tolma_set", 1);
    writeTileSet(graphics, "kjc_set2", 2);
    const std::string missing = tilePath(graphics, "tolma_set", kHeavyForest, TileSize::Small);
    std::filesystem::remove(missing);
    const std::string broken = tilePath(graphics, "kjc_set2", kCity, TileSize::Large);
    writeFile(broken, "BM not really a bitmap");

    TileSheet sheet;
    ASSERT_EQ(sheet.loadTileSet(graphics, "kjc_set1"), "");
    const std::string missingError = sheet.loadTileSet(graphics, "tolma_set");
    EXPECT_NE(missingError.find(missing), std::string::npos) << missingError;
    EXPECT_NE(missing.find("/tolma_set/s_hforest.bmp"), std::string::npos);
    const std::string brokenError = sheet.loadTileSet(graphics, "kjc_set2");
    EXPECT_NE(brokenError.find(broken), std::string::npos) << brokenError;

    // Tiles before the failing one were read, yet none of them replaced the old ones.
    EXPECT_EQ(entryPixel(sheet, kWater), tileColour(kWater));
    EXPECT_EQ(entryPixel(sheet, kUnknown), tileColour(kUnknown));

    const std::string noMarkers = sheet.loadMarkers(dir.file("nowhere"));
    EXPECT_NE(noMarkers.find(dir.file("nowhere") + "/note.gif"), std::string::npos) << noMarkers;
}

TEST(TileSheet, SetIsAvailableWhenItsBarrenTileExists)
{
    TempDir dir;
    const std::string graphics = dir.file("graphics");
    EXPECT_FALSE(tileSetAvailable(graphics, "questor_set"));
    savePicture(solid(16, 16, kBlack), graphics + "/questor_set/l_barren.bmp", "BMP");
    EXPECT_TRUE(tileSetAvailable(graphics, "questor_set"));
    std::filesystem::create_directories(graphics + "/tolma_set/l_barren.bmp");
    EXPECT_FALSE(tileSetAvailable(graphics, "tolma_set")) << "a folder is no picture";
}
