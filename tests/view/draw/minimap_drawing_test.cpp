#include "model/program_state.h"
#include "model/terrain.h"
#include "model/world.h"
#include "view/draw/minimap_drawing.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;

namespace {

const QRgb kBlack = qRgb(0, 0, 0);
const QRgb kWhite = qRgb(255, 255, 255);
const QRgb kWaterColour = qRgb(0, 0, 200);

class MinimapDrawing : public ::testing::Test {
protected:
    void setTerrain(int x, int y, int code) { world->sector(x, y).terrain = static_cast<std::uint8_t>(code); }
    void view(int left, int top, int cols, int rows)
    {
        state.view.viewLeft = static_cast<std::int16_t>(left);
        state.view.viewTop = static_cast<std::int16_t>(top);
        state.view.viewCols = static_cast<std::int16_t>(cols);
        state.view.viewRows = static_cast<std::int16_t>(rows);
    }

    std::unique_ptr<World> world = std::make_unique<World>();
    ProgramState state;
    Minimap minimap;
};

TEST_F(MinimapDrawing, NewMapIsBlackWithTheViewRectangleInTheCorner)
{
    view(0, 0, 5, 4); // a rectangle of 2 x 2 halves
    Refresh_MiniMap(minimap, *world, state);
    int white = 0;
    for (int q = 0; q < 100; ++q)
        for (int p = 0; p < 100; ++p) {
            const QRgb c = minimap.image.pixel(p, q);
            EXPECT_TRUE(c == kBlack || c == kWhite);
            white += c == kWhite;
        }
    // The border of the 3 x 3 pixels (0..2, 0..2), drawn by lines that leave
    // out their end points, the last of them one pixel longer.
    EXPECT_EQ(white, 8);
    for (QPoint p : {QPoint(0, 0), QPoint(2, 0), QPoint(0, 2), QPoint(2, 2), QPoint(1, 2), QPoint(2, 1)})
        EXPECT_EQ(minimap.image.pixel(p), kWhite) << p.x() << "," << p.y();
    EXPECT_EQ(minimap.image.pixel(1, 1), kBlack);

    // At the far corner (L = 79, T = 84, W = 20, H = 15) the right side runs to the last row.
    view(200 - 41, 200 - 31, 41, 31);
    Refresh_MiniMap(minimap, *world, state);
    EXPECT_EQ(minimap.image.pixel(79, 84), kWhite);
    EXPECT_EQ(minimap.image.pixel(99, 99), kWhite);
    EXPECT_EQ(minimap.image.pixel(98, 99), kWhite);
}

TEST_F(MinimapDrawing, EachPixelShowsTheLowerRightSectorOfItsBlock)
{
    view(100, 100, 10, 10);
    setTerrain(1, 1, kWater); // upper-left of block (0, 0): not shown
    setTerrain(4, 2, kWater); // lower-right of block (1, 0)
    setTerrain(6, 6, kOpen);  // block (2, 2)
    setTerrain(8, 6, kField); // block (3, 2)
    setTerrain(10, 6, kTown); // block (4, 2)
    setTerrain(12, 6, kHill); // block (5, 2)
    setTerrain(14, 6, 19);    // no colour of its own: keeps the Hill's grey
    setTerrain(16, 6, 0);
    Refresh_MiniMap(minimap, *world, state);
    EXPECT_EQ(minimap.image.pixel(0, 0), kBlack);
    EXPECT_EQ(minimap.image.pixel(1, 0), kWaterColour);
    EXPECT_EQ(minimap.image.pixel(2, 2), qRgb(104, 39, 10));
    EXPECT_EQ(minimap.image.pixel(3, 2), qRgb(104, 39, 10));
    EXPECT_EQ(minimap.image.pixel(4, 2), qRgb(255, 30, 0));
    EXPECT_EQ(minimap.image.pixel(5, 2), qRgb(200, 200, 200));
    EXPECT_EQ(minimap.image.pixel(6, 2), qRgb(200, 200, 200));
    EXPECT_EQ(minimap.image.pixel(7, 2), qRgb(200, 200, 200));
    EXPECT_EQ(minimap.image.pixel(8, 2), kBlack);
    EXPECT_EQ(minimap.image.pixel(50, 50), kWhite) << "view rectangle";
}

TEST_F(MinimapDrawing, SingleEditShowsTheEditedSectorUntilTheNextFullRedraw)
{
    view(100, 100, 10, 10);
    Refresh_MiniMap(minimap, *world, state);
    setTerrain(1, 1, kWater);
    recolourMinimapSector(minimap, *world, 1, 1);
    EXPECT_EQ(minimap.image.pixel(0, 0), kWaterColour);
    setTerrain(200, 199, kDesert);
    recolourMinimapSector(minimap, *world, 200, 199);
    EXPECT_EQ(minimap.image.pixel(99, 99), qRgb(255, 255, 0));
    recolourMinimapSector(minimap, *world, 0, 201); // outside the world: nothing
    Refresh_MiniMap(minimap, *world, state);
    EXPECT_EQ(minimap.image.pixel(0, 0), kBlack);
}

} // namespace
