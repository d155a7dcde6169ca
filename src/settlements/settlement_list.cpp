#include "settlements/settlement_list.h"

#include "model/settlement_lookup.h"
#include "model/text.h"
#include "model/world.h"

namespace wayscribe {

int settlementShopCount(const World &world, int n)
{
    const SettlementLookup found = lookUpSettlement(world, n);
    if (!found.sector || found.sector->settlementNumber > kMaxSettlements)
        return 0;
    const int s = found.sector->settlementNumber;
    int count = 0;
    for (int shop = 0; shop <= kMaxShop; ++shop)
        if (!trimBlanks(world.shopName(s, shop)).empty())
            ++count;
    return count;
}

ReportTable settlementListTable(const World &world)
{
    auto cell = [&world](std::uint32_t n, int column, std::string &out) {
        const SettlementLookup found = lookUpSettlement(world, n);
        switch (column) {
        case 1:
            if (found.sector)
                out.append(found.sector->settlementName);
            break;
        case 2:
            out.append(formatPlain(n));
            break;
        case 3:
            out.append(formatPlain(settlementShopCount(world, static_cast<int>(n))));
            break;
        case 4:
            out.append(formatPlain(found.record ? found.record->x : 0));
            break;
        default:
            out.append(formatPlain(found.record ? found.record->y : 0));
            break;
        }
    };
    return ReportTable({{"Name", 2700, ColumnAlignment::Left, SortKind::Text},
                        {"Number", 800, ColumnAlignment::Right, SortKind::Number},
                        {"Shops", 800, ColumnAlignment::Right, SortKind::Number},
                        {"X", 600, ColumnAlignment::Right, SortKind::Number},
                        {"Y", 600, ColumnAlignment::Right, SortKind::Number}},
                       cell);
}

void List_Update_All(ReportTable &table, const World &world)
{
    table.clear();
    for (int n = 1; n <= kMaxSettlements; ++n)
        if (world.settlement(n).inUse == 1)
            table.addRow(static_cast<std::uint32_t>(n));
}

} // namespace wayscribe
