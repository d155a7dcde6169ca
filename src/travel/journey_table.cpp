#include "travel/journey_table.h"

#include "model/platform.h"
#include "model/settlement_lookup.h"
#include "model/text.h"

#include <cmath>

namespace wayscribe {

namespace {

// The cost table was once 110 sources wide, and its check stays: it warns
// once all of the first 110 sources already have a price to the same
// destination.
constexpr int kCheckedSources = 110;

const char *const kFullCostWarning =
    "Warning! Error! Increase 99 value for 'Cost to' variable! Please report this bug ASAP!";

std::string zeroPriceMessage(int settlement, int shop)
{
    return "There seems to be a problem with the price of a journey \r\nitem in settlement #" +
           formatPlain(settlement) + ", shop #" + formatPlain(shop) +
           ".\r\nThe cost has been counted as 1 in these calculations, \r\n"
           "but you should correct this as soon as possible for \r\naccurate journey plans.";
}

// The settlement number between the first "(" and the first ")". A ")"
// before the "(" leaves nothing between them. Numbers that are no settlement
// lead nowhere (0), as the parentheses of an ordinary item do.
int journeyDestination(std::string_view name, std::size_t open, std::size_t close)
{
    const std::string_view between =
        close > open ? name.substr(open + 1, close - open - 1) : std::string_view{};
    const long long value = indexValue(between);
    return isSettlementIndex(value) ? static_cast<int>(value) : 0;
}

} // namespace

long long SettlementPositions::distance(long long a, long long b) const
{
    auto at = [this](long long n) { return isSettlementIndex(n) ? xy[n] : std::array<int, 2>{}; };
    const auto pa = at(a), pb = at(b);
    const double dx = pa[0] - pb[0], dy = pa[1] - pb[1];
    return static_cast<long long>(std::floor(std::sqrt(dx * dx + dy * dy)));
}

SettlementPositions settlementPositions(const World &world)
{
    SettlementPositions p;
    for (int n = 1; n <= kMaxSettlements; ++n)
        p.xy[n] = {world.settlement(n).x, world.settlement(n).y};
    return p;
}

std::string_view settlementNameOf(const World &world, long long number)
{
    const SettlementLookup found = lookUpSettlement(world, number);
    return found.sector ? std::string_view(found.sector->settlementName) : std::string_view();
}

std::string settlementBoxText(const World &world, long long number)
{
    return std::string(settlementNameOf(world, number)) + " (" + formatPlain(number) + ")";
}

void buildJourneyTable(const World &world, Platform &platform, JourneyTable &table)
{
    table.count.fill(0);
    for (auto &row : table.destination)
        row.fill(0);
    for (auto &row : table.orderText)
        for (std::string &text : row)
            text.clear();
    for (auto &row : table.cost)
        row.fill(0);
    table.positions = settlementPositions(world);

    // How many of the checked sources already have a price to each destination.
    std::array<int, kMaxSettlements + 1> pricedSources{};

    for (int s = 1; s <= kMaxSettlements; ++s) {
        if (world.settlement(s).inUse != 1)
            continue;
        for (int shop = 1; shop <= kMaxShop; ++shop)
            for (int item = 1; item <= kItemsPerShop; ++item) {
                const std::string_view name = world.item(s, shop, item, ItemField::Name);
                const std::size_t open = name.find('(');
                if (open == std::string_view::npos)
                    continue;
                const std::size_t close = name.find(')');
                if (close == std::string_view::npos || table.count[s] == kJourneysPerSettlement)
                    continue;
                const int k = ++table.count[s];
                const int d = journeyDestination(name, open, close);
                const std::string_view price = world.item(s, shop, item, ItemField::Price);
                table.destination[s][k] = static_cast<std::int16_t>(d);
                if (d != 0)
                    table.orderText[s][k] = "B 99 " + formatPlain(shop) + " " +
                                            std::string(world.item(s, shop, item, ItemField::Number)) +
                                            " @ " + std::string(price) + "gp to get to " +
                                            settlementBoxText(world, d);
                if (pricedSources[d] == kCheckedSources)
                    platform.message(kFullCostWarning, kProgramTitle, MessageButtons::Ok,
                                     MessageIcon::Exclamation);
                long long cost = indexValue(price);
                if (cost == 0) {
                    cost = 1;
                    platform.message(zeroPriceMessage(s, shop), kProgramTitle, MessageButtons::Ok,
                                     MessageIcon::Exclamation);
                }
                if (table.cost[d][s] == 0 && s <= kCheckedSources)
                    ++pricedSources[d];
                table.cost[d][s] = cost;
            }
    }
}

} // namespace wayscribe
