#include "model/settlement_lookup.h"
#include "model/world.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;

TEST(SettlementLookup, NumbersFreeRecordsAndRecordsOffTheMap)
{
    auto world = std::make_unique<World>();
    world->settlement(5) = {1, 7, 9, "Lowmarch"};
    world->sector(7, 9).settlementName = "Oakvale";
    world->settlement(6) = {0, 0, 4, ""}; // column 0 of the table: no sector of the map
    world->sector(0, 4).settlementName = "Edge";
    world->settlement(7) = {1, 201, 3, ""}; // only a broken file points past the table

    const SettlementLookup placed = lookUpSettlement(*world, 5);
    ASSERT_NE(placed.sector, nullptr);
    EXPECT_EQ(placed.sector->settlementName, "Oakvale");
    EXPECT_EQ(placed.record->cityState, "Lowmarch");
    EXPECT_TRUE(placed.onMap);
    EXPECT_TRUE(placed.inUse);

    const SettlementLookup edge = lookUpSettlement(*world, 6);
    ASSERT_NE(edge.sector, nullptr);
    EXPECT_EQ(edge.sector->settlementName, "Edge");
    EXPECT_FALSE(edge.onMap);
    EXPECT_FALSE(edge.inUse);

    const SettlementLookup beyond = lookUpSettlement(*world, 7);
    EXPECT_NE(beyond.record, nullptr);
    EXPECT_EQ(beyond.sector, nullptr);
    EXPECT_FALSE(beyond.onMap);
    EXPECT_TRUE(beyond.inUse);

    const SettlementLookup free = lookUpSettlement(*world, 8);
    EXPECT_EQ(free.sector, &world->sector(0, 0));
    EXPECT_FALSE(free.onMap);

    for (long long number : {0LL, 161LL, -1LL, 1LL << 40}) {
        const SettlementLookup none = lookUpSettlement(*world, number);
        EXPECT_EQ(none.record, nullptr) << number;
        EXPECT_EQ(none.sector, nullptr) << number;
        EXPECT_FALSE(none.inUse || none.onMap) << number;
    }
}
