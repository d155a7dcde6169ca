#include "model/new_map.h"

#include "model/platform.h"
#include "model/program_state.h"
#include "model/world.h"

namespace wayscribe {

void NewMap(World &world, ProgramState &state, Platform &platform)
{
    state.document.mapFileName.clear();
    state.selection.selDungeon = 0;
    platform.setStatus("Please wait, clearing map...");
    platform.setWaitCursor(true);
    state.document.gameNumber = 0;
    world.clear();
    state.selection.selNumber = 0;
    state.selection.selShop = 0;
    state.selection.selX = 0;
    state.selection.selY = 0;
    state.selection.selSettlement = 0;
    platform.setStatus("");
    platform.setWaitCursor(false);
    platform.redrawMap();
}

} // namespace wayscribe
