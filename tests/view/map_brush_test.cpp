#include "model/program_state.h"
#include "model/terrain.h"
#include "model/world.h"
#include "support/test_support.h"
#include "view/map_brush.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

class MapBrush : public ::testing::Test {
protected:
    void setTerrain(int x, int y, int code) { world->sector(x, y).terrain = static_cast<std::uint8_t>(code); }
    // A settlement of number n standing on (x, y).
    void settle(int n, int x, int y, int code = kTown)
    {
        setTerrain(x, y, code);
        world->sector(x, y).settlementNumber = static_cast<std::uint8_t>(n);
        world->sector(x, y).settlementName = "Ulm";
        world->settlement(n) = {1, static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), "Free City"};
    }
    BrushResult paint(int x, int y, int brush)
    {
        state.selection.brushTerrain = static_cast<std::int16_t>(brush);
        return brushClick(*world, state, platform, x, y);
    }
    void expectRecord(int n, int inUse, int x, int y) const
    {
        const Settlement &s = world->settlement(n);
        EXPECT_EQ(s.inUse, inUse) << n;
        EXPECT_EQ(s.x, x) << n;
        EXPECT_EQ(s.y, y) << n;
    }
    void expectSettlementEditorOn(int n, int x, int y) const
    {
        EXPECT_EQ(state.selection.selShop, 20);
        EXPECT_EQ(state.selection.selSettlement, n);
        EXPECT_EQ(state.selection.selNumber, n);
        EXPECT_EQ(state.selection.selX, x);
        EXPECT_EQ(state.selection.selY, y);
    }

    std::unique_ptr<World> world = std::make_unique<World>();
    ProgramState state;
    ScriptedPlatform platform;
};

// The four brush cases, the question and the 160 limit are driven through
// the map picture in tests/app/ui/map_editing_test.cpp.

TEST_F(MapBrush, LockAndBusyFileStopTheBrushButTheLockNotTheEditors)
{
    settle(4, 8, 8, kCity);
    setTerrain(3, 3, kWater);
    state.document.mapLocked = 1;
    EXPECT_EQ(paint(3, 3, kRoad).repaint.tile, 0);
    EXPECT_EQ(paint(8, 8, kRoad).repaint.tile, 0);
    EXPECT_EQ(world->sector(3, 3).terrain, kWater);
    EXPECT_EQ(state.document.mapChanged, 0);
    EXPECT_TRUE(platform.messages.empty());

    EXPECT_EQ(sectorEditorClick(*world, state, 8, 8), SectorEditor::Settlement);
    expectSettlementEditorOn(4, 8, 8);
    EXPECT_EQ(sectorEditorClick(*world, state, 3, 3), SectorEditor::Note);
    EXPECT_EQ(state.selection.selX, 3);
    EXPECT_EQ(state.selection.selY, 3);
    EXPECT_EQ(state.selection.selSettlement, 4) << "the note editor leaves the settlement selection";

    state.document.mapLocked = 0;
    state.document.fileBusy = 1;
    EXPECT_EQ(paint(3, 3, kRoad).repaint.tile, 0);
    EXPECT_EQ(sectorEditorClick(*world, state, 3, 3), SectorEditor::None);
    EXPECT_EQ(state.document.mapChanged, 0);
}

TEST_F(MapBrush, ASettlementTerrainWithoutANumberIsOverwrittenWithoutHarm)
{
    setTerrain(6, 6, kTown); // as a broken file can leave it: number 0
    const BrushResult r = paint(6, 6, kOpen);
    EXPECT_EQ(r.repaint.tile, kOpen);
    EXPECT_EQ(world->sector(6, 6).terrain, kOpen);
}

} // namespace
