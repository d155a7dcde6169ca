#include "settlements/objects_database.h"

#include "model/platform.h"
#include "model/settlement_lookup.h"
#include "model/text.h"
#include "model/world.h"

#include <cstdint>
#include <limits>
#include <vector>

namespace wayscribe {

namespace {

constexpr long long kMaxObject = 9999;
// The lowest price an object starts with: above any price the game asks.
constexpr std::int32_t kNoLowestYet = 999999;

struct ObjectRow {
    int n, s, shop, item;
};

ObjectRow unpack(std::uint32_t ref)
{
    return {static_cast<int>(ref >> 24), static_cast<int>(ref >> 16 & 0xFF),
            static_cast<int>(ref >> 8 & 0xFF), static_cast<int>(ref & 0xFF)};
}

void appendNumbered(std::string &out, std::string_view name, int number)
{
    out.append(trimBlanks(name)).append(" (").append(formatPlain(number)).append(")");
}

// A number that does not fit the 32-bit integers the tables hold.
struct NumberTooLarge {};

std::int32_t toInt32(double value)
{
    const double rounded = roundHalfEven(value);
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
          rounded <= std::numeric_limits<std::int32_t>::max()))
        throw NumberTooLarge{};
    return static_cast<std::int32_t>(rounded);
}

bool excludedByClass(int n, const ObjectsFilters &filters)
{
    if (n <= 20)
        return filters.noCities;
    if (n <= 60)
        return filters.noTowns;
    return filters.noVillages;
}

// One item that takes part, with the value of its price and object number.
struct Offer {
    std::uint32_t row;
    int n, shop;
    double price;
    std::int32_t object;
};

// Visits the items that take part in settlement, shop and slot order: of the
// settlements with a name the filters keep, shops 1..110 with a name (shop 0
// is not searched), items with a name.
template <typename Visit> void forEachOffer(const World &world, const ObjectsFilters &filters, Visit &&visit)
{
    for (int n = 1; n <= kMaxSettlements; ++n) {
        const SettlementLookup found = lookUpSettlement(world, n);
        if (!found.sector || trimBlanks(found.sector->settlementName).empty() || excludedByClass(n, filters))
            continue;
        const int s = found.sector->settlementNumber;
        if (s > kMaxSettlements)
            continue; // no table holds shops of that number
        for (int shop = 1; shop <= kMaxShop; ++shop) {
            if (trimBlanks(world.shopName(s, shop)).empty())
                continue;
            for (int item = 1; item <= kItemsPerShop; ++item) {
                if (trimBlanks(world.item(s, shop, item, ItemField::Name)).empty())
                    continue;
                const double price = textValue(world.item(s, shop, item, ItemField::Price));
                const std::int32_t object = toInt32(textValue(world.item(s, shop, item, ItemField::Number)));
                visit(Offer{packObjectRow(n, s, shop, item), n, shop, price, object});
            }
        }
    }
}

// The working tables, by object number 0..9999.
struct PriceTables {
    std::vector<std::int32_t> lowest = std::vector<std::int32_t>(kMaxObject + 1, kNoLowestYet);
    std::vector<std::int32_t> highest = std::vector<std::int32_t>(kMaxObject + 1, 0);
    std::vector<bool> listed = std::vector<bool>(kMaxObject + 1, false);

    PriceTables() { lowest[0] = 0; }

    bool isListed(std::int32_t object) const { return object >= 0 && listed[object]; }
    void markListed(std::int32_t object)
    {
        if (object >= 0)
            listed[object] = true;
    }
};

// The out-of-range message, shown at the first such item of a pass.
class OutOfRangeReport {
public:
    explicit OutOfRangeReport(Platform &platform) : platform_(platform) {}
    void item(const Offer &offer)
    {
        if (shown_)
            return;
        shown_ = true;
        platform_.message("Error in settlement #" + formatPlain(offer.n) + ", shop #" +
                              formatPlain(offer.shop) +
                              ".\r\nObject # out of range - above 9999 - ignoring object. Please correct.",
                          kProgramTitle, MessageButtons::Ok, MessageIcon::None);
    }

private:
    Platform &platform_;
    bool shown_ = false;
};

void firstPass(ReportTable &table, const World &world, const ObjectsFilters &filters, PriceTables &tables,
               Platform &platform)
{
    OutOfRangeReport outOfRange(platform);
    const bool zeroCost = filters.zeroCost || zeroCostAlwaysOn(filters.mode);
    forEachOffer(world, filters, [&](const Offer &offer) {
        if (zeroCost && !(offer.price > 0))
            return;
        if (offer.object > kMaxObject) {
            outOfRange.item(offer);
            return;
        }
        if (filters.mode == ObjectsMode::All && !(filters.oneOfEach && tables.isListed(offer.object))) {
            if (offer.price > 0)
                tables.markListed(offer.object);
            table.addRow(offer.row);
        }
        if (offer.price > 0 && offer.object >= 0) {
            std::int32_t &highest = tables.highest[offer.object];
            std::int32_t &lowest = tables.lowest[offer.object];
            if (offer.price > highest)
                highest = toInt32(offer.price);
            if (offer.price < lowest)
                lowest = toInt32(offer.price);
        }
    });
}

// The items whose price equals the extreme price of their object number.
void extremePass(ReportTable &table, const World &world, const ObjectsFilters &filters, PriceTables &tables,
                 const std::vector<std::int32_t> &extreme, Platform &platform)
{
    OutOfRangeReport outOfRange(platform);
    forEachOffer(world, filters, [&](const Offer &offer) {
        if (offer.object > kMaxObject) {
            outOfRange.item(offer);
            return;
        }
        if (!(offer.price > 0) || (filters.oneOfEach && tables.isListed(offer.object)) || offer.object < 0)
            return;
        if (extreme[offer.object] == offer.price) {
            tables.markListed(offer.object);
            table.addRow(offer.row);
        }
    });
}

} // namespace

std::uint32_t packObjectRow(int n, int s, int shop, int item)
{
    return static_cast<std::uint32_t>(n) << 24 | static_cast<std::uint32_t>(s) << 16 |
           static_cast<std::uint32_t>(shop) << 8 | static_cast<std::uint32_t>(item);
}

ReportTable objectsTable(const World &world)
{
    auto cell = [&world](std::uint32_t ref, int column, std::string &out) {
        const ObjectRow row = unpack(ref);
        switch (column) {
        case 1: {
            const SettlementLookup found = lookUpSettlement(world, row.n);
            appendNumbered(out, found.sector ? std::string_view(found.sector->settlementName) : "", row.n);
            break;
        }
        case 2:
            appendNumbered(out, world.shopName(row.s, row.shop), row.shop);
            break;
        case 3:
            out.append(trimBlanks(world.item(row.s, row.shop, row.item, ItemField::Name)));
            break;
        case 4:
            out.append(trimBlanks(world.item(row.s, row.shop, row.item, ItemField::Number)));
            break;
        default:
            out.append(trimBlanks(world.item(row.s, row.shop, row.item, ItemField::Price)));
            break;
        }
    };
    return ReportTable({{"Settlement", 1870, ColumnAlignment::Left, SortKind::Text},
                        {"Shop", 2070, ColumnAlignment::Left, SortKind::Text},
                        {"Object", 1900, ColumnAlignment::Left, SortKind::Text},
                        {"#", 580, ColumnAlignment::Right, SortKind::Number},
                        {"Price", 600, ColumnAlignment::Right, SortKind::Number}},
                       cell);
}

ObjectsFillResult List_Update_All(ReportTable &table, const World &world, const ObjectsFilters &filters,
                                  Platform &platform)
{
    PriceTables tables;
    table.clear();
    try {
        firstPass(table, world, filters, tables, platform);
        if (filters.mode == ObjectsMode::Cheapest)
            extremePass(table, world, filters, tables, tables.lowest, platform);
        else if (filters.mode == ObjectsMode::Dearest)
            extremePass(table, world, filters, tables, tables.highest, platform);
    } catch (const NumberTooLarge &) {
        platform.message("Sorry, but there was an unknown error when filling the object list.\r\n"
                         "Please send this map to Orven, along with any other information necessary\r\n"
                         "So that the problem may be fixed in future versions.",
                         kProgramTitle, MessageButtons::Ok, MessageIcon::None);
        return {false};
    }
    return {true};
}

std::string_view objectRowSettlementNumber(std::string_view settlementText)
{
    const std::size_t bracket = settlementText.find('(');
    return bracket == std::string_view::npos ? std::string_view() : settlementText.substr(bracket + 1);
}

} // namespace wayscribe
