#pragma once

#include <cstdint>

namespace wayscribe {
class World;
}

namespace wayscribe::sample {

struct SampleLayout;

// Paints every sector with coherent terrain (seas, coasts with marsh and
// swamp, forests, jungle in the south, mountain ranges ringed by hills,
// deserts and barren land, open country), chooses the regions the player
// knows and leaves everything outside them Unknown. In full-tables mode every
// sector is known.
void generateTerrain(World &world, SampleLayout &layout, std::uint64_t seed);

} // namespace wayscribe::sample
