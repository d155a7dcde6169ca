#include "fuzz/fuzz_maps.h"

#include "model/world.h"

#include <cstdint>
#include <memory>
#include <string>

namespace wayscribe::fuzz {

namespace {

void settle(World &world, int n, const std::string &name, int x, int y)
{
    world.settlement(n) = {1, static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), "Eastmarch"};
    Sector &sector = world.sector(x, y);
    sector.terrain = 3;
    sector.settlementNumber = static_cast<std::uint8_t>(n);
    sector.settlementName = name;
}

void sell(World &world, int n, int item, const std::string &name, const std::string &price)
{
    world.setShopName(n, 1, "Harbour");
    world.setItem(n, 1, item, ItemField::Name, name);
    world.setItem(n, 1, item, ItemField::Number, std::to_string(100 + item));
    world.setItem(n, 1, item, ItemField::Price, price);
}

} // namespace

World &emptiedMap()
{
    static const std::unique_ptr<World> map = std::make_unique<World>();
    map->clear();
    return *map;
}

void buildSmallMap(World &world)
{
    for (int x = 1; x <= 12; ++x)
        world.sector(x, 1).terrain = static_cast<std::uint8_t>(2 + x % 5);
    world.sector(4, 1).note = "Ford\r\nonly in summer";
    world.sector(7, 2).note = "Tower";

    settle(world, 1, "Alpha", 2, 1);
    settle(world, 2, "Beta", 6, 1);
    settle(world, 3, "Gamma", 9, 2);
    settle(world, 4, "Delta", 3, 2);
    world.sector(11, 1).settlementName = "Unknown"; // a name a merge may replace

    sell(world, 1, 1, "Passage to Beta (2)", "12");
    sell(world, 1, 2, "Passage to Gamma (3)", "90");
    sell(world, 1, 3, "Lamp (oil)", "3");
    sell(world, 2, 1, "Passage to Gamma (3)", "15");
    sell(world, 2, 2, "Passage to Alpha (1)", "0");
    sell(world, 3, 1, "Passage to Delta (4)", "7");
    sell(world, 3, 2, "Passage to Nowhere (200)", "5");
    sell(world, 4, 1, "Passage to Alpha (1)", "4");

    Dungeon &dungeon = world.dungeon(1);
    dungeon.name = "Old Mine";
    dungeon.levels = 2;
    dungeon.level[1] = {"#..#\r\n#..#", "room 1: bats"};
    dungeon.level[2] = {"####", ""};
}

} // namespace wayscribe::fuzz
