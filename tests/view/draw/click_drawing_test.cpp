#include "model/program_state.h"
#include "model/world.h"
#include "synthetic_graphics.h"
#include "view/draw/click_drawing.h"
#include "view/draw/map_drawing.h"
#include "view/draw/minimap_drawing.h"
#include "view/map_brush.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

const QRgb kGrey = qRgb(128, 128, 128);

class ClickDrawing : public ::testing::Test {
protected:
    ClickDrawing()
    {
        loadSyntheticSheet(sheet, dir);
        state.view.viewCols = 6;
        state.view.viewRows = 5;
    }

    void setTerrain(int x, int y, int code) { world->sector(x, y).terrain = static_cast<std::uint8_t>(code); }
    QImage fullRedraw() const
    {
        QImage full(picture.size(), kMapPictureFormat);
        drawMap(full, *world, state, sheet);
        return full;
    }
    // The brush's click on sector (x, y), drawn as the window draws it.
    void brush(int x, int y, int code)
    {
        state.selection.brushTerrain = static_cast<std::int16_t>(code);
        const BrushResult r = brushClick(*world, state, platform, x, y);
        drawSectorRepaint(picture, minimap, *world, state, sheet, x, y, r.repaint);
    }
    static QImage tile(const QImage &image, int x, int y)
    {
        return image.copy((x - 1) * 16, (y - 1) * 16, 16, 16);
    }

    TempDir dir;
    TileSheet sheet;
    std::unique_ptr<World> world = std::make_unique<World>();
    ProgramState state;
    ScriptedPlatform platform;
    Minimap minimap;
    QImage picture = QImage(6 * 16, 5 * 16, kMapPictureFormat);
};

TEST_F(ClickDrawing, PaintedRoadWithANoteLooksAsAFullRedrawDrawsIt)
{
    setTerrain(4, 4, kOpen);
    world->sector(4, 4).note = "camp";
    setTerrain(5, 4, kRoad);
    setTerrain(4, 3, kVillage);
    setTerrain(3, 5, kRoad);
    drawMap(picture, *world, state, sheet);
    Refresh_MiniMap(minimap, *world, state);

    brush(4, 4, kRoad);
    const QImage full = fullRedraw();
    EXPECT_EQ(tile(picture, 4, 4), tile(full, 4, 4));
    // The roads beside it gain their line toward the new road at once.
    EXPECT_EQ(tile(picture, 5, 4), tile(full, 5, 4));
    EXPECT_EQ(tile(picture, 3, 5), tile(full, 3, 5));
    EXPECT_NE(tile(picture, 4, 4).pixel(7, 7), tileColour(kRoad)) << "the road's own lines";

    Minimap reference;
    Refresh_MiniMap(reference, *world, state);
    EXPECT_EQ(minimap.image.pixel(1, 1), reference.image.pixel(1, 1));
    EXPECT_EQ(minimap.image.pixel(1, 1), qRgb(255, 255, 255));
}

TEST_F(ClickDrawing, ARoadInTheViewsCornerJoinsRoadsOutsideThePictureAsAFullRedrawDoes)
{
    state.view.viewLeft = 5;
    state.view.viewTop = 5;
    for (const auto &[x, y] : {std::pair{5, 5}, {6, 5}, {7, 5}, {5, 6}, {5, 7}})
        setTerrain(x, y, kRoad);
    drawMap(picture, *world, state, sheet);
    brush(6, 6, kRoad);
    finishMapClick(picture, minimap, *world, state);
    EXPECT_EQ(picture, fullRedraw());
}

TEST_F(ClickDrawing, OnlyTheBrushedTileIsRedrawnNeighboursKeepTheirRoadLines)
{
    setTerrain(2, 2, kRoad);
    setTerrain(3, 2, kRoad);
    drawMap(picture, *world, state, sheet);
    const QImage before = picture.copy();

    brush(2, 2, kForest);
    EXPECT_EQ(tile(picture, 3, 2), tile(before, 3, 2)) << "the line toward the old road stays";
    EXPECT_NE(tile(picture, 3, 2), tile(fullRedraw(), 3, 2));
    EXPECT_EQ(tile(picture, 2, 2), tile(fullRedraw(), 2, 2));
    EXPECT_EQ(tile(picture, 2, 2).pixel(7, 7), tileColour(kForest));
}

TEST_F(ClickDrawing, WithNoNumberLeftTheTileIsUnknownWithoutItsNoteMarker)
{
    for (int n = 1; n <= kMaxSettlements; ++n)
        world->settlement(n).inUse = 1;
    world->sector(1, 1).note = "camp";
    picture.fill(kGrey);
    minimap.image.fill(kGrey);
    brush(1, 1, kTown);
    EXPECT_EQ(tile(picture, 1, 1), solid(16, 16, tileColour(kUnknown)));
    EXPECT_EQ(minimap.image.pixel(0, 0), qRgb(0, 0, 0));
}

TEST_F(ClickDrawing, EveryClickEndsWithTheBorderAndAWholeMinimap)
{
    picture.fill(kGrey);
    setTerrain(3, 3, kWater);
    setTerrain(4, 4, kDesert);
    brush(3, 3, kWater);
    EXPECT_EQ(minimap.image.pixel(1, 1), qRgb(0, 0, 200)) << "the brushed sector's own colour";

    finishMapClick(picture, minimap, *world, state);
    EXPECT_EQ(picture.pixel(6 * 16 - 2, 0), kBlack);
    EXPECT_EQ(picture.pixel(0, 5 * 16 - 2), kBlack);
    EXPECT_EQ(picture.pixel(1, 1), kGrey);
    Minimap reference;
    Refresh_MiniMap(reference, *world, state);
    EXPECT_EQ(minimap.image, reference.image);
    EXPECT_EQ(minimap.image.pixel(1, 1), qRgb(255, 255, 0)) << "the block's lower-right sector again";
}

} // namespace
