#include "view/map_tools.h"

#include "model/platform.h"
#include "model/terrain.h"
#include "model/world.h"
#include "view/map_statistics.h"

namespace wayscribe {

void unknownsToWaterCommand(World &world, ProgramState &, Platform &platform)
{
    if (platform.message("Really convert all Unknowns to Water? Irreversible!", "Sure?",
                         MessageButtons::YesNo, MessageIcon::Question) != Answer::Yes)
        return;
    platform.setStatus("Please wait, Converting Unknowns to Water...");
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x)
            if (world.sector(x, y).terrain == kUnknown)
                world.sector(x, y).terrain = kWater;
    platform.redrawMap();
    platform.setStatus("");
}

void mapStatisticsCommand(const World &world, Platform &platform)
{
    platform.message(mapStatisticsText(world), "Map Statistics", MessageButtons::Ok, MessageIcon::None);
}

} // namespace wayscribe
