#include "sample/road_builder.h"

#include "model/terrain.h"
#include "model/world.h"
#include "sample/sample_layout.h"
#include "sample/sample_random.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <utility>
#include <vector>

namespace wayscribe::sample {

namespace {

constexpr int kLongestRoad = 24;

int steps(int x1, int y1, int x2, int y2)
{
    return std::max(std::abs(x1 - x2), std::abs(y1 - y2));
}

// How much a road builder dislikes crossing a terrain.
int effort(int terrain)
{
    switch (terrain) {
    case kMountain:
        return 40;
    case kHill:
    case kMarsh:
    case kSwamp:
    case kHeavyForest:
    case kJungle:
        return 12;
    default:
        return 0;
    }
}

// The sectors between two settlements, each step one closer to the goal and
// on the easiest ground at hand. Empty when the way is blocked.
std::vector<std::pair<int, int>> walk(const World &world, const SampleLayout &layout,
                                      const PlacedSettlement &from, const PlacedSettlement &to,
                                      SampleRandom &random)
{
    std::vector<std::pair<int, int>> path;
    int x = from.x, y = from.y;
    while (true) {
        int bestX = 0, bestY = 0, bestScore = -1;
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx) {
                const int nx = x + dx, ny = y + dy;
                if (!isSectorIndex(nx) || !isSectorIndex(ny) ||
                    steps(nx, ny, to.x, to.y) >= steps(x, y, to.x, to.y))
                    continue;
                if (nx == to.x && ny == to.y)
                    return path;
                const int terrain = world.sector(nx, ny).terrain;
                if (!layout.isExplored(nx, ny) || terrain == kWater || terrain == kUnknown ||
                    isSettlementTerrain(terrain))
                    continue;
                const int score =
                    squaredDistance(nx, ny, to.x, to.y) + effort(terrain) + random.between(0, 6);
                if (bestScore < 0 || score < bestScore) {
                    bestScore = score;
                    bestX = nx;
                    bestY = ny;
                }
            }
        if (bestScore < 0)
            return {};
        path.emplace_back(bestX, bestY);
        x = bestX;
        y = bestY;
    }
}

} // namespace

void buildRoads(World &world, const SampleLayout &layout, std::uint64_t seed)
{
    SampleRandom random = SampleRandom::stream(seed, 30);
    std::set<std::pair<int, int>> joined;
    for (const PlacedSettlement &a : layout.settlements) {
        std::vector<const PlacedSettlement *> near;
        for (const PlacedSettlement &b : layout.settlements)
            if (b.number != a.number && b.region == a.region && steps(a.x, a.y, b.x, b.y) <= kLongestRoad)
                near.push_back(&b);
        std::sort(near.begin(), near.end(), [&](const PlacedSettlement *p, const PlacedSettlement *q) {
            const int dp = squaredDistance(a.x, a.y, p->x, p->y);
            const int dq = squaredDistance(a.x, a.y, q->x, q->y);
            return dp != dq ? dp < dq : p->number < q->number;
        });
        const std::size_t links = std::min<std::size_t>(near.size(), a.number <= kLastTown ? 2 : 1);
        for (std::size_t k = 0; k < links; ++k) {
            const PlacedSettlement &b = *near[k];
            if (!joined.insert({std::min(a.number, b.number), std::max(a.number, b.number)}).second)
                continue;
            for (const auto &[x, y] : walk(world, layout, a, b, random))
                world.sector(x, y).terrain = kRoad;
        }
    }
}

} // namespace wayscribe::sample
