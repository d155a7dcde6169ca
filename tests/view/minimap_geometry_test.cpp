#include "model/program_state.h"
#include "view/minimap_geometry.h"

#include <gtest/gtest.h>

using namespace wayscribe;

TEST(MinimapGeometry, ClickCentresTheViewOnThePointWithinTheWorld)
{
    ProgramState state;
    state.view.viewCols = 40;
    state.view.viewRows = 30;

    moveViewToMinimapPoint(state.view, 0, 0);
    EXPECT_EQ(state.view.viewLeft, 0);
    EXPECT_EQ(state.view.viewTop, 0);

    moveViewToMinimapPoint(state.view, 99, 99);
    EXPECT_EQ(state.view.viewLeft, 160);
    EXPECT_EQ(state.view.viewTop, 170);

    moveViewToMinimapPoint(state.view, 50, 40);
    EXPECT_EQ(state.view.viewLeft, 99 - 20);
    EXPECT_EQ(state.view.viewTop, 79 - 15);

    // 2x - 1 is rounded, halves to even: 2 * 30.25 - 1 = 59.5 -> 60, 2 * 30.75 - 1 = 60.5 -> 60.
    moveViewToMinimapPoint(state.view, 30.25, 30.75);
    EXPECT_EQ(state.view.viewLeft, 40);
    EXPECT_EQ(state.view.viewTop, 45);

    moveViewToMinimapPoint(state.view, 1e9, -1e9);
    EXPECT_EQ(state.view.viewLeft, 160);
    EXPECT_EQ(state.view.viewTop, 0);

    // A view wider than the world is pulled back below 0 and then held at 0.
    state.view.viewCols = 210;
    moveViewToMinimapPoint(state.view, 99, 0);
    EXPECT_EQ(state.view.viewLeft, 0);
}
