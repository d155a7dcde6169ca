#include "model/world.h"
#include "settlements/settlement_list.h"
#include "settlements/sort_list.h"
#include "support/table_rows.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace wayscribe;
using namespace wayscribe::test;

TEST(SettlementList, EverySettlementInUseWithItsShopsAndPosition)
{
    auto world = std::make_unique<World>();
    ReportTable table = settlementListTable(*world);
    List_Update_All(table, *world);
    EXPECT_EQ(table.rowCount(), 0u);

    placeSettlement(*world, 160, 199, 198, "  Brill ");
    placeSettlement(*world, 20, 3, 4, "");
    placeSettlement(*world, 5, 50, 60, "Gone");
    world->settlement(5).inUse = 0;
    world->setShopName(160, 0, "Harbour master");
    world->setShopName(160, 110, "Smith");
    world->setShopName(160, 7, "   ");
    List_Update_All(table, *world);
    EXPECT_EQ(tableRows(table), (std::vector<std::string>{"|20|0|3|4", "  Brill |160|2|199|198"}));

    // Numbers sort as numbers, the name as text.
    sortByHeaderClick(table, 2);
    sortByHeaderClick(table, 2);
    EXPECT_EQ(table.cellText(0, 2), "160");
    sortByHeaderClick(table, 1);
    EXPECT_EQ(table.cellText(0, 1), "");
}
