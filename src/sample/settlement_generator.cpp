#include "sample/settlement_generator.h"

#include "model/terrain.h"
#include "model/world.h"
#include "sample/sample_layout.h"
#include "sample/sample_names.h"
#include "sample/sample_random.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace wayscribe::sample {

namespace {

// The numbers of one class in random order.
std::vector<int> shuffledNumbers(int first, int last, SampleRandom &random)
{
    std::vector<int> numbers(static_cast<std::size_t>(last - first + 1));
    std::iota(numbers.begin(), numbers.end(), first);
    random.shuffle(numbers);
    return numbers;
}

bool canSettle(const World &world, const SampleLayout &layout, int x, int y, int spacing)
{
    if (!isSectorIndex(x) || !isSectorIndex(y) || !layout.isExplored(x, y))
        return false;
    const int terrain = world.sector(x, y).terrain;
    if (terrain == kUnknown || terrain == kWater || terrain == kMountain || isSettlementTerrain(terrain))
        return false;
    return std::none_of(layout.settlements.begin(), layout.settlements.end(), [&](const PlacedSettlement &s) {
        return std::max(std::abs(s.x - x), std::abs(s.y - y)) < spacing;
    });
}

int spacingFor(int number)
{
    if (number <= kLastCity)
        return 6;
    return number <= kLastTown ? 4 : 3;
}

void settle(World &world, SampleLayout &layout, int number, int x, int y, std::string name,
            std::string cityState)
{
    Sector &sector = world.sector(x, y);
    sector.terrain = settlementTerrain(number);
    sector.settlementNumber = static_cast<std::uint8_t>(number);
    sector.settlementName = name;
    Settlement &settlement = world.settlement(number);
    settlement.inUse = 1;
    settlement.x = static_cast<std::uint8_t>(x);
    settlement.y = static_cast<std::uint8_t>(y);
    settlement.cityState = std::move(cityState);
    layout.settlements.push_back({number, x, y, layout.nearestRegion(x, y), std::move(name)});
}

// A spot near the region's centre, searching further out as tries fail.
bool placeCapital(World &world, SampleLayout &layout, int number, const Region &region, SampleRandom &random)
{
    for (int tries = 0; tries < 2000; ++tries) {
        const int reach = 1 + tries / 25;
        const int x = region.x + random.between(-reach, reach);
        const int y = region.y + random.between(-reach, reach);
        if (canSettle(world, layout, x, y, spacingFor(number))) {
            settle(world, layout, number, x, y, region.cityState, region.cityState);
            return true;
        }
    }
    return false;
}

// A settlement somewhere in a region the player knows; gives up (leaving the
// number free) when the region has no room, as unexplored land would.
bool placeInRegion(World &world, SampleLayout &layout, int number, std::string name, SampleRandom &random)
{
    const int first = random.between(0, static_cast<int>(layout.regions.size()) - 1);
    for (std::size_t k = 0; k < layout.regions.size(); ++k) {
        const int r = static_cast<int>((first + k) % layout.regions.size());
        const Region &region = layout.regions[r];
        for (int tries = 0; tries < 300; ++tries) {
            const int x = region.x + random.between(-region.radius, region.radius);
            const int y = region.y + random.between(-region.radius, region.radius);
            if (!canSettle(world, layout, x, y, spacingFor(number)) || layout.nearestRegion(x, y) != r)
                continue;
            // Players seldom write down the city-state of a small place.
            const int recorded = number <= kLastTown ? 95 : 70;
            std::string cityState = random.percent(recorded) ? region.cityState : std::string();
            settle(world, layout, number, x, y, std::move(name), std::move(cityState));
            return true;
        }
    }
    return false;
}

// Anywhere on the map, closer together as room runs out: every number must
// find a place.
void placeAnywhere(World &world, SampleLayout &layout, int number, std::string name, SampleRandom &random)
{
    for (int spacing = spacingFor(number); spacing >= 1; --spacing)
        for (int tries = 0; tries < 2000; ++tries) {
            const int x = random.between(1, kMapSize);
            const int y = random.between(1, kMapSize);
            if (canSettle(world, layout, x, y, spacing)) {
                const std::string cityState = layout.regions[layout.nearestRegion(x, y)].cityState;
                settle(world, layout, number, x, y, std::move(name), cityState);
                return;
            }
        }
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x)
            if (!isSettlementTerrain(world.sector(x, y).terrain)) {
                settle(world, layout, number, x, y, std::move(name), layout.regions[0].cityState);
                return;
            }
}

} // namespace

void placeSettlements(World &world, SampleLayout &layout, std::uint64_t seed)
{
    SampleRandom random = SampleRandom::stream(seed, 20);
    const bool full = layout.fullTables;
    std::vector<int> cities = shuffledNumbers(1, kLastCity, random);
    std::vector<int> towns = shuffledNumbers(kLastCity + 1, kLastTown, random);
    std::vector<int> villages = shuffledNumbers(kLastTown + 1, kMaxSettlements, random);
    if (!full) {
        cities.resize(static_cast<std::size_t>(random.between(12, 16)));
        towns.resize(static_cast<std::size_t>(random.between(28, 36)));
        villages.resize(static_cast<std::size_t>(random.between(60, 85)));
    }

    UniqueNames names;
    for (const Region &region : layout.regions)
        names.reserve(region.cityState);

    std::vector<int> others;
    std::size_t next = 0;
    for (const Region &region : layout.regions) {
        if (next < cities.size() && placeCapital(world, layout, cities[next], region, random))
            ++next;
    }
    others.insert(others.end(), cities.begin() + static_cast<std::ptrdiff_t>(next), cities.end());
    others.insert(others.end(), towns.begin(), towns.end());
    others.insert(others.end(), villages.begin(), villages.end());
    for (int number : others) {
        std::string name = names.next(random, placeName);
        if (full)
            placeAnywhere(world, layout, number, std::move(name), random);
        else
            placeInRegion(world, layout, number, std::move(name), random);
    }
}

} // namespace wayscribe::sample
