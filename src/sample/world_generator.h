#pragma once

#include <cstdint>

namespace wayscribe {

class World;

struct GeneratorSettings {
    std::uint64_t seed = 1;
    // Every table filled to capacity: every sector known with a note and a
    // settlement-name text, all 160 settlements, all 111 shops of each with
    // 20 items, all 200 dungeons with 10 levels. The largest map file there
    // can be, for measuring.
    bool fullTables = false;
};

// Clears the world and fills it the way a long-played game looks: seas and
// continents, a large part still Unknown, settlements joined by roads, shops
// with goods and journeys, notes and dungeons. The same settings give the
// same world on every machine.
void generateWorld(World &world, std::uint8_t &gameNumber, const GeneratorSettings &settings);

} // namespace wayscribe
