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

    struct Case {
        long long number;
        const Settlement *record;
        const Sector *sector;
        bool onMap, inUse;
    };
    const Case cases[] = {
        {5, &world->settlement(5), &world->sector(7, 9), true, true},
        {6, &world->settlement(6), &world->sector(0, 4), false, false},
        {7, &world->settlement(7), nullptr, false, true},
        {8, &world->settlement(8), &world->sector(0, 0), false, false},
        {0, nullptr, nullptr, false, false},
        {161, nullptr, nullptr, false, false},
        {-1, nullptr, nullptr, false, false},
        {1LL << 40, nullptr, nullptr, false, false},
    };
    for (const Case &c : cases) {
        const SettlementLookup found = lookUpSettlement(*world, c.number);
        EXPECT_EQ(found.record, c.record) << c.number;
        EXPECT_EQ(found.sector, c.sector) << c.number;
        EXPECT_EQ(found.onMap, c.onMap) << c.number;
        EXPECT_EQ(found.inUse, c.inUse) << c.number;
    }
}
