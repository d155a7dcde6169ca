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

TEST_F(MapBrush, PlainPaintingRedrawsTheTileWithRoadLinesOnlyForRoad)
{
    setTerrain(3, 3, kWater);
    BrushResult r = paint(3, 3, kRoad);
    EXPECT_EQ(world->sector(3, 3).terrain, kRoad);
    EXPECT_EQ(r.repaint, (SectorRepaint{kRoad, true, true}));
    EXPECT_EQ(r.editor, SectorEditor::None);
    EXPECT_EQ(state.document.mapChanged, 1);
    EXPECT_TRUE(platform.messages.empty());

    EXPECT_EQ(paint(3, 3, kForest).repaint, (SectorRepaint{kForest, false, true}));
}

TEST_F(MapBrush, VillageOnAFreeMapFoundsSettlementOneAndOpensItsEditor)
{
    setTerrain(7, 9, kOpen);
    const BrushResult r = paint(7, 9, kVillage);
    const Sector &s = world->sector(7, 9);
    EXPECT_EQ(s.terrain, kVillage);
    EXPECT_EQ(s.settlementNumber, 1);
    EXPECT_EQ(s.settlementName, "Un-named");
    expectRecord(1, 1, 7, 9);
    EXPECT_EQ(r.repaint, (SectorRepaint{kVillage, false, false}));
    EXPECT_EQ(r.editor, SectorEditor::Settlement);
    expectSettlementEditorOn(1, 7, 9);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(MapBrush, RemovingASettlementAsksAndFreesItsNumberForTheNext)
{
    settle(1, 1, 1);
    settle(2, 5, 5);
    settle(3, 9, 9);

    platform.answers = {Answer::No};
    BrushResult r = paint(5, 5, kForest);
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].text, "Are you sure you wish to overwrite this settlement ?");
    EXPECT_EQ(platform.messages[0].title, "Sure?");
    EXPECT_EQ(platform.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::Critical);
    EXPECT_EQ(r.repaint, SectorRepaint{});
    EXPECT_EQ(world->sector(5, 5).terrain, kTown);
    expectRecord(2, 1, 5, 5);
    EXPECT_EQ(state.document.mapChanged, 1) << "declining leaves the map marked as changed";

    platform.answers = {Answer::Yes};
    r = paint(5, 5, kForest);
    const Sector &s = world->sector(5, 5);
    EXPECT_EQ(s.terrain, kForest);
    EXPECT_EQ(s.settlementNumber, 0);
    EXPECT_EQ(s.settlementName, "");
    expectRecord(2, 0, 0, 0);
    EXPECT_EQ(world->settlement(2).cityState, "");
    EXPECT_EQ(r.repaint, (SectorRepaint{kForest, false, true}));
    EXPECT_EQ(r.editor, SectorEditor::None);

    r = paint(20, 20, kCity);
    EXPECT_EQ(world->sector(20, 20).settlementNumber, 2) << "the freed number is reused";
    expectSettlementEditorOn(2, 20, 20);
}

TEST_F(MapBrush, ReplacingASettlementFreesTheOldNumberAndTakesTheLowestFree)
{
    settle(1, 1, 1);
    settle(2, 5, 5, kVillage);
    BrushResult r = paint(5, 5, kTown);
    EXPECT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(world->sector(5, 5).terrain, kTown);
    EXPECT_EQ(world->sector(5, 5).settlementNumber, 2) << "the same number, free again";
    EXPECT_EQ(world->sector(5, 5).settlementName, "Un-named");
    EXPECT_EQ(world->settlement(2).cityState, "Free City") << "a replaced settlement keeps its city state";
    EXPECT_EQ(r.repaint, (SectorRepaint{kTown, false, false}));

    world->settlement(1).inUse = 0;
    r = paint(5, 5, kCity);
    EXPECT_EQ(world->sector(5, 5).settlementNumber, 1);
    EXPECT_EQ(world->settlement(2).inUse, 0);
    expectSettlementEditorOn(1, 5, 5);
}

TEST_F(MapBrush, TheHundredAndSixtyFirstSettlementLeavesTheSectorUnknown)
{
    for (int n = 1; n < kMaxSettlements; ++n)
        settle(n, n, 1);
    setTerrain(1, 5, kOpen);
    EXPECT_EQ(paint(1, 5, kVillage).editor, SectorEditor::Settlement);
    EXPECT_EQ(world->sector(1, 5).settlementNumber, 160);

    setTerrain(2, 5, kOpen);
    world->sector(2, 5).settlementName = "stale";
    const BrushResult r = paint(2, 5, kVillage);
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].text, "Already 160 Settlements in map, unable to add more.");
    EXPECT_EQ(platform.messages[0].title, "Wayscribe");
    EXPECT_EQ(platform.messages[0].buttons, MessageButtons::Ok);
    EXPECT_EQ(world->sector(2, 5).terrain, kUnknown);
    EXPECT_EQ(world->sector(2, 5).settlementName, "");
    EXPECT_EQ(r.repaint, (SectorRepaint{kUnknown, false, false}));
    EXPECT_EQ(r.editor, SectorEditor::None);
}

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
