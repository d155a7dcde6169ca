#include "model/terrain.h"
#include "model/text.h"
#include "model/world.h"
#include "sample/world_generator.h"
#include "storage/map_file.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

struct Generated {
    std::unique_ptr<World> world = std::make_unique<World>();
    std::uint8_t gameNumber = 0;
};

Generated generate(std::uint64_t seed, bool full = false)
{
    Generated g;
    GeneratorSettings settings;
    settings.seed = seed;
    settings.fullTables = full;
    generateWorld(*g.world, g.gameNumber, settings);
    return g;
}

std::string savedBytes(const World &world, std::uint8_t gameNumber, const TempDir &dir,
                       const std::string &name)
{
    FileError error;
    EXPECT_TRUE(writeMapFile(dir.file(name), world, gameNumber, error)) << error.describe();
    return readFile(dir.file(name));
}

// The settlement number a journey item names, or 0 for an ordinary item.
long long journeyDestination(std::string_view name)
{
    const std::size_t open = name.find('(');
    if (open == std::string_view::npos || name.find(')', open) == std::string_view::npos)
        return 0;
    return indexValue(name.substr(open + 1));
}

void expectSettlementInvariants(const World &world)
{
    for (int n = 1; n <= kMaxSettlements; ++n) {
        const Settlement &s = world.settlement(n);
        if (s.inUse == 0) {
            EXPECT_EQ(s.x, 0);
            continue;
        }
        ASSERT_TRUE(isSectorIndex(s.x) && isSectorIndex(s.y)) << n;
        const Sector &sector = world.sector(s.x, s.y);
        EXPECT_EQ(sector.settlementNumber, n);
        EXPECT_FALSE(trimBlanks(sector.settlementName).empty()) << n;
        const int terrain = n <= 20 ? kCity : n <= 60 ? kTown : kVillage;
        EXPECT_EQ(sector.terrain, terrain) << "settlement " << n;
    }
}

} // namespace

TEST(WorldGenerator, SameSeedGivesTheSameFileAndAnotherSeedAnother)
{
    TempDir dir;
    const Generated a = generate(42);
    const Generated b = generate(42);
    const Generated c = generate(43);
    const std::string bytes = savedBytes(*a.world, a.gameNumber, dir, "a.om1");
    EXPECT_EQ(bytes, savedBytes(*b.world, b.gameNumber, dir, "b.om1"));
    EXPECT_NE(bytes, savedBytes(*c.world, c.gameNumber, dir, "c.om1"));
    // Generating again into a world that held something else leaves no trace of it.
    Generated reused = generate(43, true);
    GeneratorSettings settings;
    settings.seed = 42;
    generateWorld(*reused.world, reused.gameNumber, settings);
    EXPECT_EQ(bytes, savedBytes(*reused.world, reused.gameNumber, dir, "reused.om1"));
}

TEST(WorldGenerator, LongPlayedWorldKeepsTheModelsRules)
{
    for (std::uint64_t seed : {1u, 2u, 3u}) {
        SCOPED_TRACE(seed);
        const Generated g = generate(seed);
        const World &world = *g.world;
        EXPECT_GE(g.gameNumber, 1);
        expectSettlementInvariants(world);

        int unknown = 0;
        std::set<int> terrains;
        for (int y = 1; y <= kMapSize; ++y)
            for (int x = 1; x <= kMapSize; ++x) {
                const Sector &sector = world.sector(x, y);
                ASSERT_TRUE(isNamedTerrain(sector.terrain));
                terrains.insert(sector.terrain);
                unknown += sector.terrain == kUnknown;
                // Every settlement sector belongs to a settlement in use, and only those carry a name.
                const bool settled = sector.settlementNumber > 0;
                EXPECT_EQ(settled, isSettlementTerrain(sector.terrain)) << x << "," << y;
                EXPECT_EQ(settled, !sector.settlementName.empty()) << x << "," << y;
                if (settled) {
                    const Settlement &s = world.settlement(sector.settlementNumber);
                    EXPECT_TRUE(s.inUse == 1 && s.x == x && s.y == y) << x << "," << y;
                }
                // Notes are stored trimmed, so a saved and reloaded note is the same.
                EXPECT_EQ(trimBlanks(sector.note), sector.note);
            }
        EXPECT_GT(unknown, kMapSize * kMapSize / 3);
        EXPECT_LT(unknown, kMapSize * kMapSize * 4 / 5);
        for (int t : {kWater, kOpen, kForest, kMountain, kHill, kRoad, kVillage, kTown, kCity})
            EXPECT_TRUE(terrains.count(t)) << terrainName(t);
    }
}

TEST(WorldGenerator, ShopsSellJourneysToOtherSettlements)
{
    const Generated g = generate(5);
    const World &world = *g.world;
    int journeys = 0, journeysToKnownPlaces = 0, shops = 0;
    for (int n = 1; n <= kMaxSettlements; ++n)
        for (int s = 0; s <= kMaxShop; ++s) {
            const ShopTexts shop = world.shop(n, s);
            if (shop.name.empty()) {
                EXPECT_TRUE(shop.item(1, ItemField::Name).empty());
                continue;
            }
            ++shops;
            EXPECT_EQ(world.settlement(n).inUse, 1);
            for (int i = 1; i <= kItemsPerShop; ++i) {
                const std::string &name = shop.item(i, ItemField::Name);
                const long long to = journeyDestination(name);
                if (to == 0)
                    continue;
                ++journeys;
                EXPECT_GE(s, 1) << "the route finder never reads journeys in shop 0";
                ASSERT_TRUE(isSettlementIndex(static_cast<int>(to))) << name;
                EXPECT_NE(to, n) << name;
                if (world.settlement(static_cast<int>(to)).inUse == 1) {
                    ++journeysToKnownPlaces;
                    const Settlement &dest = world.settlement(static_cast<int>(to));
                    EXPECT_TRUE(contains(name, world.sector(dest.x, dest.y).settlementName)) << name;
                }
            }
        }
    EXPECT_GT(shops, 300);
    EXPECT_GT(journeys, 100);
    EXPECT_GT(journeysToKnownPlaces, journeys * 4 / 5);
}

TEST(WorldGenerator, FullTablesFillEveryTable)
{
    const Generated g = generate(11, true);
    const World &world = *g.world;
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            const Sector &sector = world.sector(x, y);
            ASSERT_NE(sector.terrain, kUnknown);
            ASSERT_FALSE(sector.note.empty());
            ASSERT_FALSE(sector.settlementName.empty());
        }
    expectSettlementInvariants(world);
    for (int n = 1; n <= kMaxSettlements; ++n) {
        ASSERT_EQ(world.settlement(n).inUse, 1);
        EXPECT_FALSE(world.settlement(n).cityState.empty());
        for (int s = 0; s <= kMaxShop; ++s) {
            const ShopTexts shop = world.shop(n, s);
            ASSERT_FALSE(shop.name.empty()) << n << "/" << s;
            for (int i = 1; i <= kItemsPerShop; ++i)
                for (ItemField f : {ItemField::Name, ItemField::Number, ItemField::Price})
                    ASSERT_FALSE(shop.item(i, f).empty()) << n << "/" << s << "/" << i;
        }
    }
    for (int d = 1; d <= kMaxDungeons; ++d) {
        const Dungeon &dungeon = world.dungeon(d);
        ASSERT_FALSE(dungeon.name.empty());
        ASSERT_EQ(dungeon.levels, kLevelsPerDungeon);
        for (int l = 1; l <= kLevelsPerDungeon; ++l)
            ASSERT_FALSE(dungeon.level[l].map.empty() || dungeon.level[l].roomData.empty()) << d << "/" << l;
    }
}
