#include "model/text.h"
#include "model/world.h"
#include "settlements/objects_database.h"
#include "support/table_rows.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

const std::string kOutOfRange = "Error in settlement #3, shop #2.\r\n"
                                "Object # out of range - above 9999 - ignoring object. Please correct.";

struct Shops {
    std::unique_ptr<World> world = std::make_unique<World>();
    ScriptedPlatform platform;
    ReportTable table = objectsTable(*world);
    ObjectsFilters filters;

    void settlement(int n, const std::string &name) { placeSettlement(*world, n, n, n + 10, name); }
    // Item slot `item` of shop `shop` of settlement n; the shop gets a name.
    void sell(int n, int shop, int item, const std::string &name, const std::string &number,
              const std::string &price)
    {
        world->setShopName(n, shop, "Shop" + std::to_string(shop));
        stockItem(*world, n, shop, item, name, number, price);
    }

    ObjectsFillResult fill(ObjectsMode mode)
    {
        filters.mode = mode;
        return List_Update_All(table, *world, filters, platform);
    }
    std::vector<std::string> rows() const { return tableRows(table); }
    std::vector<std::string> messages() const
    {
        std::vector<std::string> texts;
        for (const auto &m : platform.messages) {
            EXPECT_EQ(m.title, "Wayscribe");
            EXPECT_EQ(m.buttons, MessageButtons::Ok);
            texts.push_back(m.text);
        }
        return texts;
    }
};

using Rows = std::vector<std::string>;

} // namespace

TEST(ObjectsDatabase, CheapestAndDearestListEveryShopAtTheExtremePriceUnlessOnce)
{
    Shops s;
    s.settlement(3, "  Ashford ");
    s.settlement(70, "Brill");
    s.sell(3, 2, 1, " Rope ", " 5 ", " 10 ");
    s.sell(3, 4, 1, "Rope", "5", "12");
    s.sell(70, 1, 1, "Rope", "5", "10");
    s.sell(70, 1, 2, "Lamp", "6", "4");

    // The starting settings: cheapest, each object once, the first shop in
    // settlement, shop and slot order.
    EXPECT_TRUE(s.fill(ObjectsMode::Cheapest).completed);
    EXPECT_EQ(s.rows(), (Rows{"Ashford (3)|Shop2 (2)|Rope|5|10", "Brill (70)|Shop1 (1)|Lamp|6|4"}));

    s.filters.oneOfEach = false;
    s.fill(ObjectsMode::Cheapest);
    EXPECT_EQ(s.rows(), (Rows{"Ashford (3)|Shop2 (2)|Rope|5|10", "Brill (70)|Shop1 (1)|Rope|5|10",
                              "Brill (70)|Shop1 (1)|Lamp|6|4"}));

    s.sell(70, 3, 5, "Rope", "5", "12");
    s.fill(ObjectsMode::Dearest);
    EXPECT_EQ(s.rows(), (Rows{"Ashford (3)|Shop4 (4)|Rope|5|12", "Brill (70)|Shop1 (1)|Lamp|6|4",
                              "Brill (70)|Shop3 (3)|Rope|5|12"}));
    s.filters.oneOfEach = true;
    s.fill(ObjectsMode::Dearest);
    EXPECT_EQ(s.rows().size(), 2u);
    EXPECT_TRUE(s.platform.messages.empty());
}

TEST(ObjectsDatabase, ListAllKeepsUnpricedItemsOutOfThePriceTables)
{
    Shops s;
    s.settlement(3, "Ashford");
    s.sell(3, 1, 1, "Free map", "7", "0");
    s.sell(3, 1, 2, "Odd", "7", "abc");
    s.sell(3, 1, 3, "Map", "7", "5");
    s.sell(3, 1, 4, "Map", "7", "6");
    s.sell(3, 1, 5, "Half", "8", "12.5");
    s.sell(3, 1, 6, "Half", "8", "13");
    s.sell(3, 1, 7, "Minus", "-4", "3");
    s.sell(3, 1, 8, "Minus", "-4", "3");
    s.sell(3, 0, 1, "Hidden", "9", "1"); // shop 0 is never searched

    // Zero-priced items do not count as listed, so the first priced one
    // still gets its row with the once-filter.
    s.filters.zeroCost = false;
    s.fill(ObjectsMode::All);
    EXPECT_EQ(s.rows(), (Rows{"Ashford (3)|Shop1 (1)|Free map|7|0", "Ashford (3)|Shop1 (1)|Odd|7|abc",
                              "Ashford (3)|Shop1 (1)|Map|7|5", "Ashford (3)|Shop1 (1)|Half|8|12.5",
                              "Ashford (3)|Shop1 (1)|Minus|-4|3", "Ashford (3)|Shop1 (1)|Minus|-4|3"}));

    s.filters.zeroCost = true;
    s.filters.oneOfEach = false;
    s.fill(ObjectsMode::All);
    EXPECT_EQ(s.rows().size(), 6u);

    // The cheapest and dearest modes look only at priced items whatever the
    // zero-cost box says; 12.5 is stored as 12 and so matches no price;
    // negative object numbers never count.
    s.filters.zeroCost = false;
    s.fill(ObjectsMode::Cheapest);
    EXPECT_EQ(s.rows(), (Rows{"Ashford (3)|Shop1 (1)|Map|7|5"}));
    s.fill(ObjectsMode::Dearest);
    EXPECT_EQ(s.rows(), (Rows{"Ashford (3)|Shop1 (1)|Map|7|6", "Ashford (3)|Shop1 (1)|Half|8|13"}));
}

TEST(ObjectsDatabase, SettlementClassesAndNamelessRecordsAreLeftOut)
{
    Shops s;
    for (int n : {20, 21, 60, 61, 160}) {
        s.settlement(n, std::string("S").append(std::to_string(n)));
        s.sell(n, 1, 1, "Rope", std::to_string(n), "1");
    }
    s.settlement(5, "   "); // a blank name: the settlement takes no part
    s.sell(5, 1, 1, "Rope", "1", "1");
    s.sell(7, 1, 1, "Rope", "2", "1"); // not a settlement: no name at (0, 0)
    s.world->setShopName(21, 2, "  ");
    s.world->setItem(21, 2, 1, ItemField::Name, "Unnamed shop");
    s.world->setItem(21, 2, 1, ItemField::Price, "1");
    s.sell(21, 3, 1, " ", "99", "1"); // an item without a name

    auto numbers = [&s] {
        std::string out;
        for (std::size_t r = 0; r < s.table.rowCount(); ++r)
            out += s.table.cellText(r, 4) + " ";
        return out;
    };
    s.fill(ObjectsMode::Cheapest);
    EXPECT_EQ(numbers(), "20 21 60 61 160 ");
    s.filters.noCities = true;
    s.fill(ObjectsMode::Cheapest);
    EXPECT_EQ(numbers(), "21 60 61 160 ");
    s.filters.noCities = false;
    s.filters.noTowns = true;
    s.fill(ObjectsMode::Cheapest);
    EXPECT_EQ(numbers(), "20 61 160 ");
    s.filters.noVillages = true;
    s.fill(ObjectsMode::All);
    EXPECT_EQ(numbers(), "20 ");
    s.filters.noCities = true;
    EXPECT_TRUE(s.fill(ObjectsMode::All).completed);
    EXPECT_EQ(s.table.rowCount(), 0u);
}

TEST(ObjectsDatabase, ObjectNumbersAboveTheTablesAreReportedOncePerPass)
{
    Shops s;
    s.settlement(3, "Ashford");
    s.sell(3, 2, 1, "Big", "10000", "5");
    s.sell(3, 2, 2, "Bigger", "20000", "5");
    s.sell(3, 2, 3, "Last", "9999", "5");

    s.fill(ObjectsMode::All);
    EXPECT_EQ(s.rows(), (Rows{"Ashford (3)|Shop2 (2)|Last|9999|5"}));
    EXPECT_EQ(s.messages(), (std::vector<std::string>{kOutOfRange}));

    s.platform.messages.clear();
    s.fill(ObjectsMode::Cheapest);
    EXPECT_EQ(s.rows(), (Rows{"Ashford (3)|Shop2 (2)|Last|9999|5"}));
    EXPECT_EQ(s.messages(), (std::vector<std::string>{kOutOfRange, kOutOfRange}));
}

TEST(ObjectsDatabase, ANumberBeyondThirtyTwoBitsStopsTheFillKeepingItsRows)
{
    const std::string unknown =
        "Sorry, but there was an unknown error when filling the object list.\r\n"
        "Please send this map to Orven, along with any other information necessary\r\n"
        "So that the problem may be fixed in future versions.";
    Shops s;
    s.settlement(3, "Ashford");
    s.sell(3, 1, 1, "Rope", "1", "5");
    s.sell(3, 1, 2, "Gold", "2", "3000000000");
    s.sell(3, 1, 3, "Lamp", "3", "4");

    // The dear item's row is added before its price reaches the table.
    EXPECT_FALSE(s.fill(ObjectsMode::All).completed);
    EXPECT_EQ(s.rows().size(), 2u);
    EXPECT_EQ(s.messages(), (std::vector<std::string>{unknown}));

    s.platform.messages.clear();
    EXPECT_FALSE(s.fill(ObjectsMode::Dearest).completed);
    EXPECT_EQ(s.rows().size(), 0u);

    s.sell(3, 1, 2, "Gold", "2147483648", "1");
    s.platform.messages.clear();
    EXPECT_FALSE(s.fill(ObjectsMode::All).completed);
    EXPECT_EQ(s.rows(), (Rows{"Ashford (3)|Shop1 (1)|Rope|1|5"}));
    EXPECT_EQ(s.messages(), (std::vector<std::string>{unknown}));
}

TEST(ObjectsDatabase, GotoReadsTheNumberAfterTheFirstBracket)
{
    EXPECT_EQ(indexValue(objectRowSettlementNumber("Ashford (3)")), 3);
    EXPECT_EQ(indexValue(objectRowSettlementNumber("Ash (7th) (12)")), 7);
    EXPECT_EQ(indexValue(objectRowSettlementNumber("Fort (East) (12)")), 0);
    EXPECT_EQ(objectRowSettlementNumber("no bracket"), "");
}
