#include "model/program_state.h"
#include "model/world.h"
#include "support/test_support.h"
#include "view/map_statistics.h"
#include "view/view_navigation.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;

TEST(MapStatistics, TextWithGeneralNumbersAndEvenRounding)
{
    auto w = std::make_unique<World>();
    EXPECT_EQ(mapStatisticsText(*w),
              "The map is 0% complete.\r\n\r\nThere are 0 filled sectors out of 40000, 0 of "
              "which are water.\r\n\r\nThere are 0 settlements and 0 notes.");
    int filled = 0;
    for (int y = 1; y <= 200 && filled < 12345; ++y)
        for (int x = 1; x <= 200 && filled < 12345; ++x, ++filled)
            w->sector(x, y).terrain = filled < 100 ? 2 : 6;
    w->sector(200, 200).note.assign(1, ' '); // a note of one blank counts
    w->sector(200, 199).settlementName = "Hamley";
    EXPECT_EQ(mapStatisticsText(*w),
              "The map is 31% complete.\r\n\r\nThere are 12345 filled sectors out of 40000, "
              "100 of which are water.\r\n\r\nThere are 1 settlements and 1 notes.");
    // 200 filled is exactly half a percent: rounds to the even 0; 600 to 2.
    for (const auto &[count, percent] :
         {std::pair{200, "0%"}, std::pair{600, "2%"}, std::pair{40000, "100%"}}) {
        auto m = std::make_unique<World>();
        for (int i = 0; i < count; ++i)
            m->sector(i % 200 + 1, i / 200 + 1).terrain = 2;
        EXPECT_NE(mapStatisticsText(*m).find(std::string(" ") + percent + " complete"), std::string::npos)
            << count;
    }
}

TEST(ViewNavigation, CentreClampsToTheWorld)
{
    ProgramState s;
    test::ScriptedPlatform p;
    s.view.viewCols = 40;
    s.view.viewRows = 30;
    centreView(s.view, p, 3, 78);
    EXPECT_EQ(s.view.viewLeft, 0);
    EXPECT_EQ(s.view.viewTop, 63);
    centreView(s.view, p, 500, 500);
    EXPECT_EQ(s.view.viewLeft, 160);
    EXPECT_EQ(s.view.viewTop, 170);
    EXPECT_EQ(p.redraws, 2);
    s.view.viewCols = 250; // a view wider than the world starts at its edge
    s.view.viewLeft = 9;
    clampView(s.view);
    EXPECT_EQ(s.view.viewLeft, 0);
}
