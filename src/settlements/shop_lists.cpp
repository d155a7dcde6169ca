#include "settlements/shop_lists.h"

#include "model/text.h"
#include "model/world.h"

#include <algorithm>
#include <array>

namespace wayscribe {

namespace {

std::string_view trimmedItem(const World &world, int s, int shop, int slot, ItemField field)
{
    return trimBlanks(world.item(s, shop, slot, field));
}

void appendBlanks(std::string &out, long count)
{
    if (count > 0)
        out.append(static_cast<std::size_t>(count), ' ');
}

} // namespace

std::vector<ShopRow> shopRows(const World &world, int s)
{
    std::vector<ShopRow> rows;
    for (int j = 0; j <= kMaxShop; ++j) {
        const std::string_view name = trimBlanks(world.shopName(s, j));
        if (!name.empty())
            rows.push_back({j, std::string(name)});
    }
    return rows;
}

int compactShopItems(World &world, int s, int shop)
{
    // Read before writing: a compacted shop is left alone, so that tidying
    // an already tidy shop records no change.
    std::vector<std::array<std::string, 3>> kept;
    bool gaps = false;
    for (int i = 1; i <= kItemsPerShop; ++i) {
        if (trimmedItem(world, s, shop, i, ItemField::Name).empty()) {
            for (ItemField f : {ItemField::Name, ItemField::Number, ItemField::Price})
                gaps = gaps || !world.item(s, shop, i, f).empty();
            continue;
        }
        gaps = gaps || static_cast<int>(kept.size()) + 1 != i;
        kept.push_back({std::string(world.item(s, shop, i, ItemField::Name)),
                        std::string(world.item(s, shop, i, ItemField::Number)),
                        std::string(world.item(s, shop, i, ItemField::Price))});
    }
    if (gaps)
        for (int i = 1; i <= kItemsPerShop; ++i) {
            const bool filled = i <= static_cast<int>(kept.size());
            for (ItemField f : {ItemField::Name, ItemField::Number, ItemField::Price})
                world.setItem(s, shop, i, f, filled ? kept[i - 1][static_cast<int>(f)] : std::string());
        }
    return static_cast<int>(kept.size());
}

std::vector<ShopItemRow> itemRows(const World &world, int s, int shop)
{
    std::vector<ShopItemRow> rows;
    for (int i = 1; i <= kItemsPerShop; ++i) {
        const std::string_view name = trimmedItem(world, s, shop, i, ItemField::Name);
        if (name.empty())
            continue;
        rows.push_back(
            {std::string(name) + " (" + std::string(trimmedItem(world, s, shop, i, ItemField::Number)) + ")",
             std::string(world.item(s, shop, i, ItemField::Price))});
    }
    return rows;
}

int proposedShopNumber(const World &world, int s)
{
    for (int j = 20; j <= 99; ++j)
        if (world.shopName(s, j).empty())
            return j;
    return 20;
}

std::string shopListText(const World &world, int s)
{
    std::string text;
    for (int j = 0; j <= kMaxShop; ++j) {
        const std::string_view shop = trimBlanks(world.shopName(s, j));
        if (shop.empty())
            continue;
        text += formatPlain(j);
        text += ' ';
        text += shop;
        bool anyItem = false;
        for (int i = 1; i <= kItemsPerShop; ++i) {
            const std::string_view item = trimmedItem(world, s, j, i, ItemField::Name);
            if (item.empty())
                continue;
            anyItem = true;
            // The first slot continues the shop's line, so it makes up the
            // shop name's length; every other item starts a fresh line.
            appendBlanks(text, i == 1 ? 27 - static_cast<long>(shop.size()) : 30);
            text += item;
            text += " (";
            text += trimmedItem(world, s, j, i, ItemField::Number);
            text += ')';
            appendBlanks(text, 23 - static_cast<long>(item.size()));
            text += trimmedItem(world, s, j, i, ItemField::Price);
            text += "\r\n";
        }
        if (!anyItem)
            text += "\r\n";
    }
    return text;
}

} // namespace wayscribe
