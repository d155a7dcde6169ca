#include "model/program_state.h"
#include "view/minimap_geometry.h"

#include <gtest/gtest.h>

using namespace wayscribe;

TEST(MinimapGeometry, ClickCentresTheViewOnThePointWithinTheWorld)
{
    ProgramState state;
    state.viewCols = 40;
    state.viewRows = 30;

    moveViewToMinimapPoint(state, 0, 0);
    EXPECT_EQ(state.viewLeft, 0);
    EXPECT_EQ(state.viewTop, 0);

    moveViewToMinimapPoint(state, 99, 99);
    EXPECT_EQ(state.viewLeft, 160);
    EXPECT_EQ(state.viewTop, 170);

    moveViewToMinimapPoint(state, 50, 40);
    EXPECT_EQ(state.viewLeft, 99 - 20);
    EXPECT_EQ(state.viewTop, 79 - 15);

    // 2x - 1 is rounded, halves to even: 2 * 30.25 - 1 = 59.5 -> 60, 2 * 30.75 - 1 = 60.5 -> 60.
    moveViewToMinimapPoint(state, 30.25, 30.75);
    EXPECT_EQ(state.viewLeft, 40);
    EXPECT_EQ(state.viewTop, 45);

    moveViewToMinimapPoint(state, 1e9, -1e9);
    EXPECT_EQ(state.viewLeft, 160);
    EXPECT_EQ(state.viewTop, 0);

    // A view wider than the world is pulled back below 0 and then held at 0.
    state.viewCols = 210;
    moveViewToMinimapPoint(state, 99, 0);
    EXPECT_EQ(state.viewLeft, 0);
}

TEST(MinimapGeometry, ViewRectangleAndEditedPixelAreHalvedAndTruncated)
{
    ProgramState state;
    state.viewLeft = 7;
    state.viewTop = 9;
    state.viewCols = 41;
    state.viewRows = 31;
    const MinimapViewRect r = minimapViewRect(state);
    EXPECT_EQ(r.left, 3);
    EXPECT_EQ(r.top, 4);
    EXPECT_EQ(r.width, 20);
    EXPECT_EQ(r.height, 15);

    EXPECT_EQ(minimapPixelOf(1, 2).p, 0);
    EXPECT_EQ(minimapPixelOf(1, 2).q, 0);
    EXPECT_EQ(minimapPixelOf(3, 200).p, 1);
    EXPECT_EQ(minimapPixelOf(3, 200).q, 99);
}
