// Merging any bytes into a loaded map: the merge may fill in what the map
// does not know, never change what it knows (the game number, city-states
// and dungeon level counts excepted, as the merge takes those from the file).
#include "fuzz/fuzz_input.h"
#include "fuzz/fuzz_maps.h"

#include "model/terrain.h"
#include "model/world.h"
#include "storage/map_merge.h"

#include <memory>

namespace {

using namespace wayscribe;

const World &loadedMap()
{
    static const std::unique_ptr<World> map = [] {
        auto world = std::make_unique<World>();
        fuzz::buildSmallMap(*world);
        return world;
    }();
    return *map;
}

// The small map knows nothing below its first rows.
constexpr int kKnownRows = 2;
constexpr int kSettlements = 4;

void expectKnownKept(const World &merged)
{
    const World &before = loadedMap();
    for (int y = 1; y <= kKnownRows; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            const Sector &was = before.sector(x, y);
            const Sector &now = merged.sector(x, y);
            fuzz::expect(was.terrain == kUnknown || now.terrain == was.terrain, "a known terrain changed");
            fuzz::expect(was.note.empty() || now.note == was.note, "a note changed");
            fuzz::expect(was.settlementNumber == 0 || now.settlementNumber == was.settlementNumber,
                         "a settlement number changed");
            fuzz::expect(was.settlementName.empty() || was.settlementName == "Unknown" ||
                             now.settlementName == was.settlementName,
                         "a settlement name changed");
        }
    for (int n = 1; n <= kSettlements; ++n) {
        fuzz::expect(merged.settlement(n).inUse == before.settlement(n).inUse, "a settlement's use changed");
        const ShopTexts was = before.shop(n, 1);
        const ShopTexts now = merged.shop(n, 1);
        fuzz::expect(now.name == was.name, "a shop name changed");
        for (int i = 1; i <= kItemsPerShop; ++i)
            for (const ItemField f : {ItemField::Name, ItemField::Number, ItemField::Price})
                fuzz::expect(was.item(i, f).empty() || now.item(i, f) == was.item(i, f), "an item changed");
    }
    fuzz::expect(merged.dungeon(1).name == before.dungeon(1).name, "a dungeon name changed");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view bytes = fuzz::inputBytes(data, size);
    const std::string path = fuzz::writeInputFile("other.om1", bytes);
    World &world = fuzz::emptiedMap();
    fuzz::buildSmallMap(world);
    std::uint8_t gameNumber = 7;
    const MapReadResult result = mergeMapFile(path, world, gameNumber);
    if (!result.ok)
        fuzz::expectNamedLine(result.error, path, bytes);
    expectKnownKept(world);
    return 0;
}
