#include "import/shop_lines.h"

#include "import/report_reader.h"
#include "import/report_state.h"
#include "model/platform.h"
#include "model/text.h"
#include "model/world.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace wayscribe {

namespace {

constexpr long kPriceMin = std::numeric_limits<std::int32_t>::min();
constexpr long kPriceMax = std::numeric_limits<std::int32_t>::max();

bool isShopHeader(std::string_view field)
{
    if (field.empty() || field[0] < '0' || field[0] > '9')
        return false;
    // Only a blank right after a leading "5" keeps it from opening a shop;
    // a lone "5" has nothing after it, so it opens one.
    return field[0] != '5' || field.size() < 2 || field[1] != ' ';
}

// Only the officials' shop 0 takes rows; other shops have a number.
bool takesRows(const ReportState &r, std::string_view field)
{
    return r.shopNumber != 0 || contains(field, "City Officials") || contains(field, "Town Council") ||
           contains(field, "Village Elders");
}

bool isEndOfShops(const ReportState &r, std::string_view field)
{
    return r.bannerSeen ? startsWith(field, "</PRE><H2 ALIGN=center>PARTY STATISTICS</H2><PRE>")
                        : startsWith(field, "<center><table><tr><td align=");
}

void openShop(ReportImport &im, std::string_view field)
{
    ReportState &r = im.report;
    const std::string_view head = leftChars(field, 3);
    const long blankAt = positionOf(head, " ");
    r.shopNumber = blankAt == 0
                       ? 0
                       : im.in.wholeNumber(leftChars(head, blankAt), std::numeric_limits<std::int16_t>::min(),
                                           std::numeric_limits<std::int16_t>::max(), "shop number");
    r.shopName = std::string(trimBlanks(oneLine(changeCase(trimRightBlanks(midChars(field, 4, 24)), true))));
    r.itemCount = 0;
}

// A shop is packed into one buffer, so each change rewrites it whole: a row
// and the shop's name go in together.
void storeRow(ReportImport &im, long settlement, const ItemRow &row)
{
    const ReportState &r = im.report;
    if (!isItemIndex(r.itemCount))
        return;
    const int n = static_cast<int>(settlement);
    const int shop = static_cast<int>(r.shopNumber);
    ShopTexts texts = im.world.shop(n, shop);
    // A quoted row may span lines; the item's fields hold one line each.
    texts.item(r.itemCount, ItemField::Name) = oneLine(row.name);
    texts.item(r.itemCount, ItemField::Number) = oneLine(row.number);
    texts.item(r.itemCount, ItemField::Price) = formatPlain(row.price);
    texts.name = r.shopName;
    im.world.setShop(n, shop, texts);
}

void clearRows(World &world, int n, int shop)
{
    ShopTexts texts = world.shop(n, shop);
    for (auto &fields : texts.items)
        for (std::string &f : fields)
            f.clear();
    world.setShop(n, shop, texts);
}

void readShopField(ReportImport &im, long settlement, std::string_view field)
{
    ReportState &r = im.report;
    const bool shopLine = isShopHeader(field);
    if (shopLine)
        openShop(im, field);
    if (!takesRows(r, field))
        return;
    // Rows only go where the tables have room: settlements 1..160, shops 0..110.
    const bool stored = isSettlementIndex(settlement) && isShopIndex(r.shopNumber);
    if (r.itemCount == 0 && stored)
        clearRows(im.world, static_cast<int>(settlement), static_cast<int>(r.shopNumber));
    if (!contains(field, "Quest") && field.size() <= 26)
        return;
    // The row is counted before its kind is known, so a quest row without a
    // name to cut keeps its place, empty. Rows past the twentieth have no
    // place in the shop.
    if (r.itemCount <= kItemsPerShop)
        ++r.itemCount;
    const std::optional<ItemRow> row = parseItemRow(im.in, shopLine ? midChars(field, 29) : field, shopLine);
    if (row && stored)
        storeRow(im, settlement, *row);
}

} // namespace

std::optional<ItemRow> parseItemRow(const ReportReader &in, std::string_view row, bool fromShopLine)
{
    ItemRow item;
    if (startsWith(row, "(")) {
        item.number = std::string(midChars(row, 2, 3));
        item.name = std::string(trimRightBlanks(midChars(row, 7, 20)));
        item.price = in.wholeNumber(midChars(row, 27), kPriceMin, kPriceMax, "price");
        return item;
    }
    long questAmount = 0;
    const long openAt = positionOf(row, "(");
    const long closeAt = positionOf(row, ")");
    if (openAt != 0 && closeAt != 0) {
        const std::string_view name = leftChars(row, openAt - 1);
        item.name = std::string(fromShopLine ? trimLeftBlanks(name) : name);
        item.number = std::string(midChars(row, openAt + 1, closeAt - openAt - 1));
    } else {
        const long colonAt = positionOf(row, ":");
        const long forAt = positionOf(row, " for ");
        if (colonAt == 0 || forAt == 0 || forAt <= colonAt)
            return std::nullopt;
        item.name = std::string(midChars(row, colonAt + 1, forAt - colonAt - 1));
        item.number = formatPlain(0); // quest offers have no item number
        questAmount = in.wholeNumber(midChars(row, forAt + 5), kPriceMin, kPriceMax, "quest reward");
    }
    // A quest's reward stands in for whatever the price column holds.
    if (questAmount > 0)
        item.price = questAmount;
    else if (row.size() >= 27)
        item.price = in.wholeNumber(midChars(row, 26), kPriceMin, kPriceMax, "price");
    return item;
}

void readShopLines(ReportImport &im, long settlement)
{
    std::string field;
    for (im.in.requireField(field, "the shop list"); !isEndOfShops(im.report, field);
         im.in.requireField(field, "the shop list")) {
        if (!field.empty())
            readShopField(im, settlement, field);
        im.platform.processEvents();
    }
}

} // namespace wayscribe
