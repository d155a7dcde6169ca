#include "sample/world_generator.h"

#include "model/world.h"
#include "sample/dungeon_generator.h"
#include "sample/note_generator.h"
#include "sample/road_builder.h"
#include "sample/sample_layout.h"
#include "sample/sample_random.h"
#include "sample/settlement_generator.h"
#include "sample/shop_generator.h"
#include "sample/terrain_generator.h"

namespace wayscribe {

void generateWorld(World &world, std::uint8_t &gameNumber, const GeneratorSettings &settings)
{
    world.clear();
    sample::SampleRandom random = sample::SampleRandom::stream(settings.seed, 1);
    gameNumber = static_cast<std::uint8_t>(random.between(1, 250));

    sample::SampleLayout layout;
    layout.fullTables = settings.fullTables;
    sample::generateTerrain(world, layout, settings.seed);
    sample::placeSettlements(world, layout, settings.seed);
    sample::buildRoads(world, layout, settings.seed);
    sample::stockShops(world, layout, settings.seed);
    // Dungeon entrances before the other notes, so that no remark takes
    // their place.
    sample::generateDungeons(world, layout, settings.seed);
    sample::writeNotes(world, layout, settings.seed);
}

} // namespace wayscribe
