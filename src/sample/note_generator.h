#pragma once

#include <cstdint>

namespace wayscribe {
class World;
}

namespace wayscribe::sample {

struct SampleLayout;

// Writes the player's notes on sectors that have none yet: hide prices in
// settlements the party has been inside, remarks about the wilderness,
// "SPECIAL:" places and a few notes of several lines. Full-tables mode gives
// every sector a note and a settlement-name text.
void writeNotes(World &world, const SampleLayout &layout, std::uint64_t seed);

} // namespace wayscribe::sample
