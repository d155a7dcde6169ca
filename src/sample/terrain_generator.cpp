#include "sample/terrain_generator.h"

#include "model/terrain.h"
#include "model/world.h"
#include "sample/sample_layout.h"
#include "sample/sample_names.h"
#include "sample/sample_random.h"
#include "sample/value_noise.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace wayscribe::sample {

namespace {

constexpr int kSectors = kMapSize * kMapSize;

int cell(int x, int y)
{
    return (y - 1) * kMapSize + (x - 1);
}

// Everything below is in thousandths and whole numbers: no floating point,
// so that every compiler makes the same world from a seed.
constexpr int kPerMille = 1000;

// Shares of the map, in thousandths of all sectors ranked by height.
constexpr int kSeaLevel = 340;
constexpr int kUplands = 780;
constexpr int kHighUplands = 720;
constexpr int kHillTops = 950;
constexpr int kSummits = 985;

// Each sector's rank among all sectors by a noise value, in thousandths, so
// that the share of each terrain does not depend on how the noise happened
// to spread.
std::vector<int> rankedNoise(const ValueNoise &noise, int cellSize, int layers)
{
    std::vector<int> value(kSectors);
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x)
            value[cell(x, y)] = noise.fractal(x, y, cellSize, layers);
    std::vector<int> order(kSectors);
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(),
              [&](int a, int b) { return value[a] != value[b] ? value[a] < value[b] : a < b; });
    std::vector<int> rank(kSectors);
    for (int i = 0; i < kSectors; ++i)
        rank[order[i]] = i * kPerMille / kSectors;
    return rank;
}

// Steps from each land sector to the nearest water, counted up to `limit`.
std::vector<int> waterDistance(const std::vector<int> &height, int limit)
{
    std::vector<int> dist(kSectors, limit);
    for (int i = 0; i < kSectors; ++i)
        if (height[i] < kSeaLevel)
            dist[i] = 0;
    for (int pass = 1; pass < limit; ++pass)
        for (int y = 1; y <= kMapSize; ++y)
            for (int x = 1; x <= kMapSize; ++x) {
                if (dist[cell(x, y)] != limit)
                    continue;
                for (int dy = -1; dy <= 1; ++dy)
                    for (int dx = -1; dx <= 1; ++dx)
                        if (isSectorIndex(x + dx) && isSectorIndex(y + dy) &&
                            dist[cell(x + dx, y + dy)] == pass - 1)
                            dist[cell(x, y)] = pass;
            }
    return dist;
}

// Thousandths, all of them.
struct Climate {
    int height;   // rank among all sectors
    int moisture; // rank among all sectors
    int warmth;   // grows southward
    int detail;   // small-scale variety of open country
    int ridge;    // 1000 on the middle contour of a finer noise, falling evenly to 0 away from it
    int toWater;  // in sectors, not thousandths
};

std::uint8_t landTerrain(int y, const Climate &c)
{
    // Mountains run along the crest lines of the uplands, hills flank them.
    const bool upland = c.height >= kUplands;
    if ((upland && c.ridge >= 720) || c.height >= kSummits)
        return kMountain;
    if ((upland && c.ridge >= 450) || c.height >= kHillTops || (c.height >= kHighUplands && c.ridge >= 800))
        return kHill;
    if (c.toWater <= 2 && c.moisture >= 620)
        return (y > 110 || c.moisture >= 850) ? kSwamp : kMarsh;
    if (c.moisture >= 640) {
        if (c.warmth > 780)
            return kJungle;
        return c.moisture >= 880 ? kHeavyForest : kForest;
    }
    if (c.moisture < 140)
        return c.warmth > 550 ? kDesert : kBarren;
    if (upland)
        return kRough;
    if (c.detail < 500)
        return kOpen;
    return c.detail < 640 ? kField : kRough;
}

void chooseRegions(SampleLayout &layout, const std::vector<int> &height, SampleRandom &random)
{
    const int count = layout.fullTables ? 8 : random.between(6, 8);
    UniqueNames names;
    int spacing = 50;
    for (int tries = 0; static_cast<int>(layout.regions.size()) < count; ++tries) {
        if (tries > 0 && tries % 500 == 0)
            spacing -= 10;
        const int x = random.between(22, kMapSize - 21);
        const int y = random.between(22, kMapSize - 21);
        const int h = height[cell(x, y)];
        if (h < kSeaLevel + 50 || h >= kHighUplands)
            continue;
        const bool crowded = std::any_of(layout.regions.begin(), layout.regions.end(), [&](const Region &r) {
            return squaredDistance(x, y, r.x, r.y) < spacing * spacing;
        });
        if (crowded)
            continue;
        Region region;
        region.x = x;
        region.y = y;
        region.radius = random.between(20, 32);
        region.cityState = names.next(random, placeName);
        layout.regions.push_back(std::move(region));
    }
}

// A party's way from one region to another: mostly straight on, with
// sidesteps, seeing a sector or two to either side.
void markTrack(SampleLayout &layout, const Region &from, const Region &to, SampleRandom &random)
{
    int x = from.x, y = from.y;
    for (int guard = 0; (x != to.x || y != to.y) && guard < 4 * kMapSize; ++guard) {
        const int sx = (to.x > x) - (to.x < x);
        const int sy = (to.y > y) - (to.y < y);
        const int roll = random.between(1, 100);
        if (roll <= 15) {
            // A sidestep across the way.
            x += sy != 0 ? random.between(-1, 1) : 0;
            y += sx != 0 ? random.between(-1, 1) : 0;
        } else if (roll <= 40 || std::abs(to.x - x) == std::abs(to.y - y)) {
            x += sx;
            y += sy;
        } else if (std::abs(to.x - x) > std::abs(to.y - y)) {
            x += sx;
        } else {
            y += sy;
        }
        x = std::clamp(x, 1, kMapSize);
        y = std::clamp(y, 1, kMapSize);
        const int sight = random.percent(70) ? 1 : 2;
        for (int dy = -sight; dy <= sight; ++dy)
            for (int dx = -sight; dx <= sight; ++dx)
                if (isSectorIndex(x + dx) && isSectorIndex(y + dy))
                    layout.setExplored(x + dx, y + dy);
    }
}

void markExplored(SampleLayout &layout, std::uint64_t seed)
{
    if (layout.fullTables) {
        for (int y = 1; y <= kMapSize; ++y)
            for (int x = 1; x <= kMapSize; ++x)
                layout.setExplored(x, y);
        return;
    }
    // Ragged blobs around the region centres...
    const ValueNoise edge(seed);
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            // Inside when d^2/R^2 + 1.4 (n - 1/2) < 1, for a noise n of 0..1,
            // multiplied out to whole numbers.
            const std::int64_t wobble = 14 * (edge.fractal(x, y, 14, 3) - ValueNoise::kRange / 2);
            for (const Region &r : layout.regions) {
                const std::int64_t reach = std::int64_t{r.radius} * r.radius;
                if (10 * ValueNoise::kRange * std::int64_t{squaredDistance(x, y, r.x, r.y)} + wobble * reach <
                    10 * ValueNoise::kRange * reach) {
                    layout.setExplored(x, y);
                    break;
                }
            }
        }
    // ...joined by the winding tracks the party took from one region to the
    // next.
    SampleRandom random(seed);
    for (std::size_t r = 1; r < layout.regions.size(); ++r) {
        std::size_t from = 0;
        for (std::size_t c = 1; c < r; ++c)
            if (squaredDistance(layout.regions[r].x, layout.regions[r].y, layout.regions[c].x,
                                layout.regions[c].y) <
                squaredDistance(layout.regions[r].x, layout.regions[r].y, layout.regions[from].x,
                                layout.regions[from].y))
                from = c;
        markTrack(layout, layout.regions[from], layout.regions[r], random);
    }
}

} // namespace

void generateTerrain(World &world, SampleLayout &layout, std::uint64_t seed)
{
    SampleRandom random = SampleRandom::stream(seed, 10);
    const std::vector<int> height = rankedNoise(ValueNoise(random.next()), 42, 5);
    const std::vector<int> moisture = rankedNoise(ValueNoise(random.next()), 30, 4);
    const ValueNoise warmthNoise(random.next());
    const ValueNoise detailNoise(random.next());
    const std::vector<int> ridgeRank = rankedNoise(ValueNoise(random.next()), 12, 3);
    const std::vector<int> toWater = waterDistance(height, 4);

    chooseRegions(layout, height, random);
    markExplored(layout, random.next());

    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            Sector &sector = world.sector(x, y);
            const int i = cell(x, y);
            if (!layout.isExplored(x, y)) {
                sector.terrain = kUnknown;
                continue;
            }
            if (height[i] < kSeaLevel) {
                sector.terrain = kWater;
                continue;
            }
            Climate c;
            c.height = height[i];
            c.moisture = moisture[i];
            c.warmth = y * kPerMille / kMapSize +
                       (warmthNoise.fractal(x, y, 25, 3) - ValueNoise::kRange / 2) * 300 / ValueNoise::kRange;
            c.detail = detailNoise.fractal(x, y, 6, 2) * kPerMille / ValueNoise::kRange;
            c.ridge = kPerMille - std::abs(2 * ridgeRank[i] - kPerMille);
            c.toWater = toWater[i];
            sector.terrain = landTerrain(y, c);
        }
}

} // namespace wayscribe::sample
