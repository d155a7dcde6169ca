#include "model/new_map.h"

#include "model/platform.h"
#include "model/program_state.h"
#include "model/world.h"

namespace wayscribe {

void NewMap(World &world, ProgramState &state, Platform &platform)
{
    state.mapFileName.clear();
    state.selDungeon = 0;
    state.dungeonFormOpen = 0;
    platform.setStatus("Please wait, clearing map...");
    platform.setWaitCursor(true);
    state.gameNumber = 0;
    world.clear();
    state.selNumber = 0;
    state.selShop = 0;
    state.selX = 0;
    state.selY = 0;
    state.selSettlement = 0;
    platform.setStatus("");
    platform.setWaitCursor(false);
    platform.redrawMap();
}

} // namespace wayscribe
