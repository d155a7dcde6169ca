#include "view/map_brush.h"

#include "model/platform.h"
#include "model/program_state.h"
#include "model/terrain.h"
#include "model/world.h"

namespace wayscribe {

namespace {

// The settlement editor opens on its first shop page.
constexpr std::int16_t kEditorFirstShop = 20;

SectorEditor openSettlementEditor(Selections &selection, int number, int x, int y)
{
    selection.selShop = kEditorFirstShop;
    selection.selSettlement = static_cast<std::uint8_t>(number);
    selection.selNumber = static_cast<std::int16_t>(number);
    selection.selX = static_cast<std::uint8_t>(x);
    selection.selY = static_cast<std::uint8_t>(y);
    return SectorEditor::Settlement;
}

// A settlement terrain whose number is no settlement number (a broken file)
// has no record to free.
void freeSettlement(World &world, int number)
{
    if (!isSettlementIndex(number))
        return;
    Settlement &s = world.settlement(number);
    s.inUse = 0;
    s.x = 0;
    s.y = 0;
}

int lowestFreeSettlement(const World &world)
{
    for (int n = 1; n <= kMaxSettlements; ++n)
        if (world.settlement(n).inUse == 0)
            return n;
    return 0;
}

// The sector already carries its settlement terrain. The tile painted with
// that terrain stays, unless there is no number left for it.
BrushResult newSettlement(World &world, ProgramState &state, Platform &platform, int x, int y, int tile)
{
    Sector &sector = world.sector(x, y);
    const int n = lowestFreeSettlement(world);
    if (n == 0) {
        platform.message("Already 160 Settlements in map, unable to add more.", kProgramTitle,
                         MessageButtons::Ok, MessageIcon::None);
        sector.terrain = kUnknown;
        sector.settlementName.clear();
        return {{kUnknown}, SectorEditor::None};
    }
    sector.settlementNumber = static_cast<std::uint8_t>(n);
    sector.settlementName = "Un-named";
    Settlement &s = world.settlement(n);
    s.inUse = 1;
    s.x = static_cast<std::uint8_t>(x);
    s.y = static_cast<std::uint8_t>(y);
    return {{tile}, openSettlementEditor(state.selection, n, x, y)};
}

} // namespace

BrushResult brushClick(World &world, ProgramState &state, Platform &platform, int x, int y)
{
    if (state.document.fileBusy || state.document.mapLocked == 1 || !isSectorIndex(x) || !isSectorIndex(y))
        return {};
    // The map counts as changed even when the person then declines.
    state.document.mapChanged = 1;
    const int b = state.selection.brushTerrain;
    const bool onSettlement = isSettlementTerrain(world.sector(x, y).terrain);
    if (onSettlement && platform.message("Are you sure you wish to overwrite this settlement ?", "Sure?",
                                         MessageButtons::YesNo, MessageIcon::Critical) != Answer::Yes)
        return {};
    Sector &sector = world.sector(x, y);
    const int old = sector.settlementNumber;
    if (onSettlement) {
        freeSettlement(world, old);
        if (!isSettlementTerrain(b)) {
            sector.settlementName.clear();
            if (isSettlementIndex(old))
                world.settlement(old).cityState.clear();
            sector.settlementNumber = 0;
        }
    }
    sector.terrain = static_cast<std::uint8_t>(b);
    if (isSettlementTerrain(b))
        return newSettlement(world, state, platform, x, y, b);
    return {{b, b == kRoad, true}, SectorEditor::None};
}

SectorEditor sectorEditorClick(const World &world, ProgramState &state, int x, int y)
{
    if (state.document.fileBusy || !isSectorIndex(x) || !isSectorIndex(y))
        return SectorEditor::None;
    const Sector &sector = world.sector(x, y);
    if (isSettlementTerrain(sector.terrain))
        return openSettlementEditor(state.selection, sector.settlementNumber, x, y);
    state.selection.selX = static_cast<std::uint8_t>(x);
    state.selection.selY = static_cast<std::uint8_t>(y);
    return SectorEditor::Note;
}

} // namespace wayscribe
