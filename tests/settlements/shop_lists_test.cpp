#include "settlements/shop_lists.h"

#include "model/world.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

std::string blanks(int n)
{
    return std::string(static_cast<std::size_t>(n), ' ');
}

} // namespace

TEST(ShopListText, LaysOutShopsAndItemsInColumns)
{
    auto w = std::make_unique<World>();
    w->setShopName(12, 20, "Smithy");
    stockItem(*w, 12, 20, 1, "Long Sword", "143", "120");
    stockItem(*w, 12, 20, 2, " Dagger ", " 101", "15 ");
    w->setShopName(12, 21, "  Stables ");
    EXPECT_EQ(shopListText(*w, 12), "20 Smithy" + blanks(21) + "Long Sword (143)" + blanks(13) + "120\r\n" +
                                        blanks(30) + "Dagger (101)" + blanks(17) + "15\r\n" +
                                        "21 Stables\r\n");

    // One- and three-digit shops shift the first item; a name of 27 or more
    // runs into it; a shop without slot 1 starts its items after 30 blanks;
    // an item name of 23 or more runs into its price.
    auto v = std::make_unique<World>();
    v->setShopName(1, 110, "Hall");
    stockItem(*v, 1, 110, 1, "Rope", "7", "2");
    v->setShopName(1, 5, std::string(30, 'N'));
    stockItem(*v, 1, 5, 1, std::string(25, 'M'), "", "9");
    v->setShopName(1, 0, "Gaps");
    stockItem(*v, 1, 0, 3, "Axe", "3", "4");
    v->setShopName(1, 7, "   "); // a blank name is no shop
    stockItem(*v, 1, 7, 1, "Hidden", "1", "1");
    EXPECT_EQ(shopListText(*v, 1), "0 Gaps" + blanks(30) + "Axe (3)" + blanks(20) + "4\r\n" + "5 " +
                                       std::string(30, 'N') + std::string(25, 'M') + " ()9\r\n" + "110 Hall" +
                                       blanks(23) + "Rope (7)" + blanks(19) + "2\r\n");
    EXPECT_EQ(shopListText(*v, 2), "");
}

TEST(ShopLists, RowsCompactionAndTheProposedShopNumber)
{
    auto w = std::make_unique<World>();
    w->setShopName(3, 110, "Last");
    w->setShopName(3, 0, " First ");
    w->setShopName(3, 50, "  ");
    const std::vector<ShopRow> rows = shopRows(*w, 3);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].number, 0);
    EXPECT_EQ(rows[0].name, "First");
    EXPECT_EQ(rows[1].number, 110);

    stockItem(*w, 3, 20, 2, "Bow ", "12", " 30");
    stockItem(*w, 3, 20, 4, "  ", "lost", "lost");
    stockItem(*w, 3, 20, 7, "Arrow", "", "1");
    EXPECT_EQ(compactShopItems(*w, 3, 20), 2);
    EXPECT_EQ(w->item(3, 20, 1, ItemField::Name), "Bow "); // moved as stored
    EXPECT_EQ(w->item(3, 20, 1, ItemField::Price), " 30");
    EXPECT_EQ(w->item(3, 20, 2, ItemField::Name), "Arrow");
    for (int i = 3; i <= kItemsPerShop; ++i)
        for (ItemField f : {ItemField::Name, ItemField::Number, ItemField::Price})
            EXPECT_EQ(w->item(3, 20, i, f), "") << i;
    const std::vector<ShopItemRow> items = itemRows(*w, 3, 20);
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(items[0].item, "Bow (12)");
    EXPECT_EQ(items[0].price, " 30");
    EXPECT_EQ(items[1].item, "Arrow ()");

    // Lowest exactly empty name from 20 to 99, else 20; a blank name counts
    // as taken.
    EXPECT_EQ(proposedShopNumber(*w, 3), 20);
    w->setShopName(3, 20, "A");
    w->setShopName(3, 21, " ");
    EXPECT_EQ(proposedShopNumber(*w, 3), 22);
    for (int j = 20; j <= 99; ++j)
        w->setShopName(3, j, "Taken");
    EXPECT_EQ(proposedShopNumber(*w, 3), 20);
}
