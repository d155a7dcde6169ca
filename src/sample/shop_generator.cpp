#include "sample/shop_generator.h"

#include "model/terrain.h"
#include "model/text.h"
#include "model/world.h"
#include "sample/sample_layout.h"
#include "sample/sample_names.h"
#include "sample/sample_random.h"
#include "sample/shop_catalogue.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <vector>

namespace wayscribe::sample {

namespace {

// Reports give shop names 24 characters wide.
constexpr std::size_t kShopNameWidth = 24;

struct PlannedShop {
    const ShopKind *kind;
    int number = 0;
};

std::string makeShopName(const ShopKind &kind, SampleRandom &random)
{
    std::string name(random.pick(kind.names));
    const std::size_t keeper = name.find("{k}");
    if (keeper != std::string::npos)
        name.replace(keeper, 3, keeperName(random));
    return changeCase(trimRightBlanks(leftChars(name, kShopNameWidth)), true);
}

int priceNear(int usual, SampleRandom &random)
{
    return std::max(1, (usual * random.between(80, 125) + 50) / 100);
}

void setRow(ShopTexts &shop, int slot, std::string name, int number, int price)
{
    shop.item(slot, ItemField::Name) = std::move(name);
    shop.item(slot, ItemField::Number) = formatPlain(number);
    shop.item(slot, ItemField::Price) = formatPlain(price);
}

bool nearWater(const World &world, int x, int y)
{
    for (int dy = -3; dy <= 3; ++dy)
        for (int dx = -3; dx <= 3; ++dx)
            if (isSectorIndex(x + dx) && isSectorIndex(y + dy) &&
                world.sector(x + dx, y + dy).terrain == kWater)
                return true;
    return false;
}

int steps(const PlacedSettlement &a, const PlacedSettlement &b)
{
    return std::max(std::abs(a.x - b.x), std::abs(a.y - b.y));
}

const ShopKind &pickGoods(SampleRandom &random)
{
    int total = 0;
    for (const ShopKind &kind : shopKinds())
        total += kind.weight;
    int roll = random.between(1, total);
    for (const ShopKind &kind : shopKinds()) {
        roll -= kind.weight;
        if (roll <= 0)
            return kind;
    }
    return shopKinds().front();
}

const ShopKind &kindOf(Trade trade)
{
    for (const ShopKind &kind : shopKinds())
        if (kind.trade == trade)
            return kind;
    return shopKinds().front();
}

// `count` goods of the kind's catalogue in catalogue order. When more are
// wanted than the catalogue holds, the list starts again with finer wares.
void fillGoods(ShopTexts &shop, const ShopKind &kind, int count, SampleRandom &random)
{
    const int size = static_cast<int>(kind.items.size());
    int slot = 1;
    if (count >= size) {
        for (int k = 0; k < count; ++k) {
            const CatalogueItem &item = kind.items[static_cast<std::size_t>(k % size)];
            const bool finer = k >= size;
            setRow(shop, slot++, finer ? "Fine " + std::string(item.name) : std::string(item.name),
                   item.number, priceNear(finer ? item.price * 3 : item.price, random));
        }
        return;
    }
    for (int i : random.choose(size, count)) {
        const CatalogueItem &item = kind.items[static_cast<std::size_t>(i)];
        setRow(shop, slot++, std::string(item.name), item.number, priceNear(item.price, random));
    }
}

class JourneyPlanner {
public:
    JourneyPlanner(const World &world, const SampleLayout &layout) : world_(world), layout_(layout)
    {
        for (const PlacedSettlement &s : layout.settlements)
            coastal_.push_back(nearWater(world, s.x, s.y));
        for (std::size_t r = 0; r < layout.regions.size(); ++r) {
            int best = -1;
            for (std::size_t o = 0; o < layout.regions.size(); ++o) {
                if (o == r)
                    continue;
                const int d = squaredDistance(layout.regions[r].x, layout.regions[r].y, layout.regions[o].x,
                                              layout.regions[o].y);
                if (best < 0 || d < squaredDistance(layout.regions[r].x, layout.regions[r].y,
                                                    layout.regions[best].x, layout.regions[best].y))
                    best = static_cast<int>(o);
            }
            neighbourRegion_.push_back(best);
        }
    }

    bool coastal(std::size_t settlement) const { return coastal_[settlement]; }

    // Where caravans or ships from a settlement go, nearest first; `skip`
    // leaves out the nearest few so that full-tables shops differ.
    std::vector<const PlacedSettlement *> destinations(std::size_t from, Trade trade, int count,
                                                       int skip) const
    {
        const PlacedSettlement &a = layout_.settlements[from];
        std::vector<const PlacedSettlement *> found;
        for (std::size_t k = 0; k < layout_.settlements.size(); ++k) {
            const PlacedSettlement &b = layout_.settlements[k];
            if (b.number == a.number)
                continue;
            if (!layout_.fullTables) {
                if (trade == Trade::Caravans &&
                    ((b.region != a.region && b.region != neighbourRegion_[a.region]) || steps(a, b) > 45))
                    continue;
                if (trade == Trade::Ships && (!coastal_[k] || steps(a, b) > 110))
                    continue;
            }
            found.push_back(&b);
        }
        std::sort(found.begin(), found.end(), [&](const PlacedSettlement *p, const PlacedSettlement *q) {
            const int dp = squaredDistance(a.x, a.y, p->x, p->y);
            const int dq = squaredDistance(a.x, a.y, q->x, q->y);
            return dp != dq ? dp < dq : p->number < q->number;
        });
        const std::size_t first = std::min(found.size(), static_cast<std::size_t>(skip));
        found.erase(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(first));
        if (found.size() > static_cast<std::size_t>(count))
            found.resize(static_cast<std::size_t>(count));
        return found;
    }

    // A settlement number no settlement of the map uses yet: journeys are
    // sold to places the player has never seen. 0 when every number is used.
    int unknownNumber(SampleRandom &random) const
    {
        const int start = random.between(1, kMaxSettlements);
        for (int k = 0; k < kMaxSettlements; ++k) {
            const int n = (start - 1 + k) % kMaxSettlements + 1;
            if (world_.settlement(n).inUse == 0)
                return n;
        }
        return 0;
    }

private:
    const World &world_;
    const SampleLayout &layout_;
    std::vector<bool> coastal_;
    std::vector<int> neighbourRegion_;
};

std::string journeyName(Trade trade, const std::string &place, int number)
{
    return (trade == Trade::Ships ? "Passage to " : "Caravan to ") + place + " (" + formatPlain(number) + ")";
}

int journeyPrice(Trade trade, int distance, SampleRandom &random)
{
    return trade == Trade::Ships ? distance + random.between(10, 25) : distance * 2 + random.between(4, 12);
}

// Object numbers of journeys: 600 + destination for caravans, 800 + for ships.
int journeyNumber(Trade trade, int destination)
{
    return (trade == Trade::Ships ? 800 : 600) + destination;
}

// Returns the number of journeys written.
int fillJourneys(ShopTexts &shop, const JourneyPlanner &planner, const SampleLayout &layout, std::size_t from,
                 Trade trade, int count, int skip, SampleRandom &random)
{
    const PlacedSettlement &a = layout.settlements[from];
    int slot = 1;
    for (const PlacedSettlement *b : planner.destinations(from, trade, count, skip))
        setRow(shop, slot++, journeyName(trade, b->name, b->number), journeyNumber(trade, b->number),
               journeyPrice(trade, steps(a, *b), random));
    if (!layout.fullTables && slot <= kItemsPerShop && random.percent(8)) {
        const int unknown = planner.unknownNumber(random);
        if (unknown > 0)
            setRow(shop, slot++, journeyName(trade, placeName(random), unknown),
                   journeyNumber(trade, unknown), random.between(30, 90));
    }
    return slot - 1;
}

// Different quests while the list lasts; a full-tables shop repeats some.
void fillQuests(ShopTexts &shop, int count, SampleRandom &random)
{
    const auto quests = questNames();
    const int size = static_cast<int>(quests.size());
    int slot = 1;
    for (int i : random.choose(size, count))
        setRow(shop, slot++, std::string(quests[static_cast<std::size_t>(i)]), 0,
               random.between(5, 200) * 10);
    while (slot <= count)
        setRow(shop, slot++, std::string(random.pick(quests)), 0, random.between(5, 200) * 10);
}

// The shops of one settlement in a long-played map: a handful to a score,
// numbered from 1 with the odd gap and now and then one of the high numbers.
std::vector<PlannedShop> planShops(int number, bool coastal, SampleRandom &random)
{
    std::vector<PlannedShop> shops;
    const bool city = number <= kLastCity, town = !city && number <= kLastTown;
    const int goods = city ? random.between(8, 18) : town ? random.between(4, 9) : random.between(1, 4);
    for (int k = 0; k < goods; ++k)
        shops.push_back({&pickGoods(random)});
    if (random.percent(city ? 100 : town ? 70 : 30))
        shops.push_back({&kindOf(Trade::Caravans)});
    if (coastal && random.percent(city ? 100 : town ? 60 : 25))
        shops.push_back({&kindOf(Trade::Ships)});
    random.shuffle(shops);
    std::set<int> highNumbers;
    int next = 1;
    for (PlannedShop &shop : shops) {
        if (random.percent(5)) {
            const int high = random.between(100, kMaxShop);
            if (highNumbers.insert(high).second) {
                shop.number = high;
                continue;
            }
        }
        shop.number = next;
        // Gaps only among the low numbers, so that counting up never meets
        // the high ones.
        next += next < 60 && random.percent(20) ? random.between(2, 6) : 1;
    }
    return shops;
}

std::vector<PlannedShop> planEveryShop(SampleRandom &random)
{
    std::vector<PlannedShop> shops;
    for (int s = 1; s <= kMaxShop; ++s) {
        const ShopKind *kind = s % 10 == 5   ? &kindOf(Trade::Caravans)
                               : s % 10 == 0 ? &kindOf(Trade::Ships)
                                             : &pickGoods(random);
        shops.push_back({kind, s});
    }
    return shops;
}

void stockSettlement(World &world, const SampleLayout &layout, const JourneyPlanner &planner,
                     std::size_t index, SampleRandom &random)
{
    const PlacedSettlement &place = layout.settlements[index];
    const bool full = layout.fullTables;
    const int quests = full                        ? kItemsPerShop
                       : place.number <= kLastCity ? random.between(1, 5)
                       : place.number <= kLastTown ? random.between(0, 3)
                                                   : random.between(0, 2);
    if (quests > 0) {
        ShopTexts officials;
        officials.name = officialsName(place.number);
        fillQuests(officials, quests, random);
        world.setShop(place.number, 0, officials);
    }
    const std::vector<PlannedShop> shops =
        full ? planEveryShop(random) : planShops(place.number, planner.coastal(index), random);
    for (const PlannedShop &planned : shops) {
        ShopTexts shop;
        shop.name = makeShopName(*planned.kind, random);
        if (planned.kind->trade == Trade::Goods) {
            const int size = static_cast<int>(planned.kind->items.size());
            const int most = std::min(size, place.number <= kLastCity ? kItemsPerShop : 9);
            fillGoods(shop, *planned.kind, full ? kItemsPerShop : random.between(3, most), random);
        } else {
            const int count = full ? kItemsPerShop : random.between(2, place.number <= kLastCity ? 8 : 5);
            // A ship office with no other port in reach is not worth a shop.
            if (fillJourneys(shop, planner, layout, index, planned.kind->trade, count,
                             full ? (planned.number / 10) % 8 : 0, random) == 0)
                continue;
        }
        world.setShop(place.number, planned.number, shop);
    }
}

} // namespace

void stockShops(World &world, SampleLayout &layout, std::uint64_t seed)
{
    SampleRandom random = SampleRandom::stream(seed, 40);
    const JourneyPlanner planner(world, layout);
    for (std::size_t i = 0; i < layout.settlements.size(); ++i) {
        PlacedSettlement &place = layout.settlements[i];
        const int chance = place.number <= kLastCity ? 100 : place.number <= kLastTown ? 85 : 60;
        place.visited = layout.fullTables || random.percent(chance);
        if (place.visited)
            stockSettlement(world, layout, planner, i, random);
    }
}

} // namespace wayscribe::sample
