#pragma once

#include <cstdint>

namespace wayscribe {
class World;
}

namespace wayscribe::sample {

struct SampleLayout;

// Places the settlements the player has found on known land: each region's
// capital near its centre, the rest scattered over the region, numbered by
// class (cities 1..20, towns 21..60, villages 61..160) with believable names
// and their city-states. In full-tables mode all 160 numbers are used.
void placeSettlements(World &world, SampleLayout &layout, std::uint64_t seed);

} // namespace wayscribe::sample
