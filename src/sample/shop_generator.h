#pragma once

#include <cstdint>

namespace wayscribe {
class World;
}

namespace wayscribe::sample {

struct SampleLayout;

// Stocks the shops of the settlements the player has been inside: the
// officials' quests in shop 0, goods shops with prices near the usual ones,
// and caravans and ships whose items are journeys ("Caravan to Oakvale (12)")
// to settlements of the same or a neighbouring region. Marks those
// settlements visited. In full-tables mode every settlement is visited and
// every shop of it holds 20 items.
void stockShops(World &world, SampleLayout &layout, std::uint64_t seed);

} // namespace wayscribe::sample
