#pragma once

#include "model/world.h"

#include <cstdint>
#include <string>
#include <vector>

namespace wayscribe::sample {

// One part of the world the player has come to know: a city-state around
// its capital.
struct Region {
    int x = 0, y = 0; // centre
    int radius = 0;
    std::string cityState;
};

struct PlacedSettlement {
    int number = 0;
    int x = 0, y = 0;
    int region = 0; // index into SampleLayout::regions
    std::string name;
    bool visited = false; // the player has been inside and seen its shops
};

// What the steps of the generator hand on to each other besides the world.
struct SampleLayout {
    bool fullTables = false;
    std::vector<Region> regions;
    std::vector<PlacedSettlement> settlements; // in the order they were placed
    std::vector<std::uint8_t> explored;        // (kMapSize+1)^2, y * (kMapSize+1) + x

    SampleLayout() : explored(static_cast<std::size_t>(kMapSize + 1) * (kMapSize + 1), 0) {}

    bool isExplored(int x, int y) const { return explored[index(x, y)] != 0; }
    void setExplored(int x, int y) { explored[index(x, y)] = 1; }
    // The region whose centre lies nearest (ties to the lower index).
    int nearestRegion(int x, int y) const;

    static std::size_t index(int x, int y) { return static_cast<std::size_t>(y) * (kMapSize + 1) + x; }
};

// Settlement numbers carry the class: 1..20 cities, 21..60 towns, 61..160 villages.
inline constexpr int kLastCity = 20;
inline constexpr int kLastTown = 60;
std::uint8_t settlementTerrain(int number);

inline int squaredDistance(int x1, int y1, int x2, int y2)
{
    return (x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2);
}

} // namespace wayscribe::sample
