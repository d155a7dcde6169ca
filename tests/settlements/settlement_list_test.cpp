#include "model/world.h"
#include "settlements/settlement_list.h"
#include "settlements/sort_list.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace wayscribe;

namespace {

void place(World &world, int n, int x, int y, const std::string &name)
{
    world.settlement(n) = {1, static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), ""};
    world.sector(x, y).settlementNumber = static_cast<std::uint8_t>(n);
    world.sector(x, y).settlementName = name;
}

std::vector<std::string> rows(const ReportTable &table)
{
    std::vector<std::string> out;
    for (std::size_t r = 0; r < table.rowCount(); ++r) {
        std::string row;
        for (int c = 1; c <= table.columnCount(); ++c) {
            if (c > 1)
                row += '|';
            row += table.cellText(r, c);
        }
        out.push_back(row);
    }
    return out;
}

} // namespace

TEST(SettlementList, EverySettlementInUseWithItsShopsAndPosition)
{
    auto world = std::make_unique<World>();
    ReportTable table = settlementListTable(*world);
    List_Update_All(table, *world);
    EXPECT_EQ(table.rowCount(), 0u);

    place(*world, 160, 199, 198, "  Brill ");
    place(*world, 20, 3, 4, "");
    place(*world, 5, 50, 60, "Gone");
    world->settlement(5).inUse = 0;
    world->setShopName(160, 0, "Harbour master");
    world->setShopName(160, 110, "Smith");
    world->setShopName(160, 7, "   ");
    List_Update_All(table, *world);
    EXPECT_EQ(rows(table), (std::vector<std::string>{"|20|0|3|4", "  Brill |160|2|199|198"}));

    // Numbers sort as numbers, the name as text.
    sortByHeaderClick(table, 2);
    sortByHeaderClick(table, 2);
    EXPECT_EQ(table.cellText(0, 2), "160");
    sortByHeaderClick(table, 1);
    EXPECT_EQ(table.cellText(0, 1), "");
}
