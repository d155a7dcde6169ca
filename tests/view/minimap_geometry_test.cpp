#include "model/program_state.h"
#include "view/minimap_geometry.h"

#include <gtest/gtest.h>

using namespace wayscribe;

TEST(MinimapGeometry, ClickCentresTheViewOnThePointWithinTheWorld)
{
    struct Case {
        double px, py;
        int left, top;
    };
    const Case cases[] = {
        {0, 0, 0, 0},
        {99, 99, 160, 170},
        {50, 40, 99 - 20, 79 - 15},
        // 2x - 1 is rounded, halves to even: 2 * 30.25 - 1 = 59.5 -> 60, 2 * 30.75 - 1 = 60.5 -> 60.
        {30.25, 30.75, 40, 45},
        {1e9, -1e9, 160, 0},
    };
    ProgramState state;
    state.view.viewCols = 40;
    state.view.viewRows = 30;
    for (const Case &c : cases) {
        moveViewToMinimapPoint(state.view, c.px, c.py);
        EXPECT_EQ(state.view.viewLeft, c.left) << c.px;
        EXPECT_EQ(state.view.viewTop, c.top) << c.py;
    }

    // A view wider than the world is pulled back below 0 and then held at 0.
    state.view.viewCols = 210;
    moveViewToMinimapPoint(state.view, 99, 0);
    EXPECT_EQ(state.view.viewLeft, 0);
}
