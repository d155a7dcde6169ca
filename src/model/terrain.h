#pragma once

#include <cstdint>
#include <string_view>

namespace wayscribe {

// Terrain codes of a sector as the game and the map file know them.
enum TerrainCode : std::uint8_t {
    kUnknown = 1,
    kWater = 2,
    kOpen = 3,
    kField = 4,
    kRough = 5,
    kForest = 6,
    kHeavyForest = 7,
    kJungle = 8,
    kBarren = 9,
    kDesert = 10,
    kMountain = 11,
    kHill = 12,
    kMarsh = 13,
    kSwamp = 14,
    kRoad = 15,
    kVillage = 16,
    kTown = 17,
    kCity = 18,
};

inline constexpr int kFirstTerrain = 1;
inline constexpr int kLastTerrain = 18;

// Display name of a terrain code; codes without a name of ours (0, and the
// 19..25 that QuestOR maps can carry) give an empty text.
std::string_view terrainName(int code);

inline bool isNamedTerrain(int code)
{
    return code >= kFirstTerrain && code <= kLastTerrain;
}
inline bool isSettlementTerrain(int code)
{
    return code >= kVillage && code < 19;
}

} // namespace wayscribe
