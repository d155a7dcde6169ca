#pragma once

#include <cstdint>

namespace wayscribe {
class World;
}

namespace wayscribe::sample {

struct SampleLayout;

// Joins each settlement to its nearest neighbours in the same region by
// road, walking across known land; a road that would have to cross water or
// unknown land is not built.
void buildRoads(World &world, const SampleLayout &layout, std::uint64_t seed);

} // namespace wayscribe::sample
