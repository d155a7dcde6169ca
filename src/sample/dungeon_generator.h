#pragma once

#include <cstdint>

namespace wayscribe {
class World;
}

namespace wayscribe::sample {

struct SampleLayout;

// Records the dungeons the player has found, the way the turn import leaves
// them: the ones only heard of take the low slots and have a level count but
// no maps; the ones the party went down into take the high slots and carry
// the map and room list of every level seen. Most have a "DUNGEON:" note at
// their entrance. Full-tables mode fills all 200 dungeons with 10 levels.
void generateDungeons(World &world, const SampleLayout &layout, std::uint64_t seed);

} // namespace wayscribe::sample
