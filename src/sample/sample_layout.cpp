#include "sample/sample_layout.h"

#include "model/terrain.h"

namespace wayscribe::sample {

int SampleLayout::nearestRegion(int x, int y) const
{
    int best = 0;
    for (std::size_t r = 1; r < regions.size(); ++r)
        if (squaredDistance(x, y, regions[r].x, regions[r].y) <
            squaredDistance(x, y, regions[best].x, regions[best].y))
            best = static_cast<int>(r);
    return best;
}

std::uint8_t settlementTerrain(int number)
{
    if (number <= kLastCity)
        return kCity;
    return number <= kLastTown ? kTown : kVillage;
}

} // namespace wayscribe::sample
