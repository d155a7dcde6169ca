#include "import/report_reader.h"
#include "import/shop_lines.h"
#include "import_fixture.h"

namespace wayscribe::test {

using SettlementImport = ImportTest;

TEST_F(SettlementImport, TownWithShopsOfEveryRowKind)
{
    readData("banner_town.htm");
    EXPECT_EQ(recordText(world->settlement(23)), "1 46,68 ");
    EXPECT_EQ(at(46, 68).settlementName, "Brackwater "); // the blank before "(" stays
    EXPECT_EQ(at(46, 68).settlementNumber, 23);
    EXPECT_EQ(at(46, 68).note, "We sell our hides here for 14 gp each.");

    EXPECT_EQ(world->shopName(23, 0), "City Officials");
    EXPECT_EQ(item(23, 0, 1, ItemField::Name), " Escort the merchant to Eastport");
    EXPECT_EQ(item(23, 0, 1, ItemField::Number), "0");
    EXPECT_EQ(item(23, 0, 1, ItemField::Price), "300");

    EXPECT_EQ(world->shopName(23, 7), "Weaponsmith");
    const char *rows[][3] = {{"Longsword", "101", "150"},
                             {"Dagger", "102", "12"},
                             {"Passage to Eastport ", "J12", "300"},
                             {"Chainmail", "201", "400"}, // "5  ARMOURER" opens no shop
                             {"", "", ""}};
    for (int i = 1; i <= 5; ++i) {
        EXPECT_EQ(item(23, 7, i, ItemField::Name), rows[i - 1][0]) << i;
        EXPECT_EQ(item(23, 7, i, ItemField::Number), rows[i - 1][1]) << i;
        EXPECT_EQ(item(23, 7, i, ItemField::Price), rows[i - 1][2]) << i;
    }
    EXPECT_EQ(world->shopName(23, 5), "");
}

TEST_F(SettlementImport, CityWithTravelAgentAndShopsWithoutRoom)
{
    readData("plain_city.html");
    EXPECT_EQ(at(11, 20).settlementName, "Karnak ");
    EXPECT_EQ(world->settlement(7).x, 11);
    EXPECT_EQ(at(11, 20).note, "We can sell hides in Karnak for 9 gp.");
    EXPECT_EQ(world->shopName(7, 12), "Travel Agent");
    EXPECT_EQ(item(7, 12, 1, ItemField::Name), "Passage to Keld "); // leading blanks of a shop line go
    EXPECT_EQ(item(7, 12, 1, ItemField::Number), "J7");
    EXPECT_EQ(item(7, 12, 1, ItemField::Price), "300");
    EXPECT_EQ(item(7, 12, 2, ItemField::Name), "Passage to Ulm ");
    EXPECT_EQ(item(7, 12, 2, ItemField::Price), "1200");
    // "CITY OFFICIALS" is not the officials' name, and "110" is no shop number.
    for (int shop : {0, 110, 11})
        EXPECT_EQ(item(7, shop, 1, ItemField::Name), "") << shop;
    EXPECT_EQ(world->shopName(7, 0), "");
}

TEST_F(SettlementImport, CitiesSkipThreeLinesAfterTheHeadingOthersTwo)
{
    ReportShape shape;
    shape.map = {{"Party and City"}};
    shape.afterHeading = {"one", "two", shopHeader("9", "DECOY", tableRow("001", "Decoy", "1"))};
    shape.shops = {shopHeader("4", "REAL", tableRow("002", "Real", "2"))};
    shape.heading = "CITY OF LOWHAM (20)";
    readText(reportText(shape));
    EXPECT_EQ(item(20, 9, 1, ItemField::Name), "");
    EXPECT_EQ(item(20, 4, 1, ItemField::Name), "Real");
    shape.heading = "CITY OF HIGHAM (21)";
    readText(reportText(shape));
    EXPECT_EQ(item(21, 9, 1, ItemField::Name), "Decoy");
}

TEST_F(SettlementImport, OnlyLowerCaseKindWordsMoveThePartyToAnotherCell)
{
    // "CITYGATE" is no "city": the party stays on the town cell it was seen on.
    ReportShape shape;
    shape.map = {{"Party and Town"}};
    shape.heading = "TOWN OF CITYGATE (30)";
    shape.afterHeading = {"", ""};
    readText(reportText(shape));
    EXPECT_EQ(world->settlement(30).x, 45);
    EXPECT_EQ(at(45, 67).settlementName, "Citygate ");

    // The name's "town" is: the party goes to the town cell, though the city came first.
    shape.map = {{"Party and City", "Party and Town"}};
    shape.heading = "CITY OF Ashtown (5)";
    shape.afterHeading = {"", "", ""};
    readText(reportText(shape));
    EXPECT_EQ(recordText(world->settlement(5)), "1 46,67 ");
}

TEST_F(SettlementImport, AnotherSettlementOfTheNumberAsksFirst)
{
    auto placeOldtown = [this] {
        world->settlement(23) = {1, 10, 10, ""};
        at(10, 10).settlementName = "Oldtown";
        at(10, 10).settlementNumber = 23;
    };
    placeOldtown();
    platform.answers = {Answer::No};
    readData("banner_town.htm");
    ASSERT_EQ(platform.messages.size(), 1u);
    const auto &m = platform.messages[0];
    EXPECT_EQ(m.text, "Settlement Oldtown (23) already exists in sector 10,10.\r\n"
                      "Overwrite with imported settlement Brackwater  (23) in sector 46,68?");
    EXPECT_EQ(m.title, "Overwrite settlement?");
    EXPECT_EQ(m.buttons, MessageButtons::YesNo);
    EXPECT_EQ(m.icon, MessageIcon::Question);
    EXPECT_EQ(world->settlement(23).x, 10);
    EXPECT_EQ(at(10, 10).settlementName, "Oldtown");
    EXPECT_EQ(at(46, 68).settlementName, "");
    EXPECT_EQ(item(23, 7, 1, ItemField::Name), "Longsword"); // the shops are read all the same

    platform.answers = {Answer::Yes};
    readData("banner_town.htm");
    EXPECT_EQ(platform.messages.size(), 2u);
    EXPECT_EQ(at(10, 10).settlementName, "");
    EXPECT_EQ(at(10, 10).settlementNumber, 0);
    EXPECT_EQ(at(46, 68).settlementName, "Brackwater ");
    EXPECT_EQ(world->settlement(23).x, 46);

    at(46, 68).settlementName = "Brack"; // same place, other name: asked again
    readData("banner_town.htm");
    EXPECT_EQ(platform.messages.size(), 3u);
}

TEST_F(SettlementImport, HideNoteOnlyOnAnEmptyNoteAndOldRowsAreCleared)
{
    at(46, 68).note = "Mine";
    for (int i = 1; i <= 6; ++i)
        world->setItem(23, 7, i, ItemField::Name, "old");
    readData("banner_town.htm");
    EXPECT_EQ(at(46, 68).note, "Mine");
    EXPECT_EQ(item(23, 7, 4, ItemField::Name), "Chainmail");
    EXPECT_EQ(item(23, 7, 5, ItemField::Name), "");
    EXPECT_EQ(item(23, 7, 6, ItemField::Name), "");
}

TEST_F(SettlementImport, EldersQuestsAndRowsBeyondTheTwentieth)
{
    ReportShape shape;
    shape.map = {{"Party and Village"}};
    shape.heading = "VILLAGE OF OTTERBY (99)";
    shape.afterHeading = {"", ""};
    shape.shops = {shopHeader("0", "Village Elders", "Quest: Find the lost goat for 20 coins"),
                   shopHeader("4", "NOTICE BOARD", "Quest offered by nobody in particular today"),
                   "Quest: Guard the mill for 5 coins",
                   shopHeader("3", "MARKET", tableRow("500", "Row 1", "1"))};
    for (int i = 2; i <= 25; ++i)
        shape.shops.push_back(
            tableRow(std::to_string(500 + i), "Row " + std::to_string(i), std::to_string(i)));
    readText(reportText(shape));
    EXPECT_EQ(world->shopName(99, 0), "Village Elders");
    EXPECT_EQ(item(99, 0, 1, ItemField::Name), " Find the lost goat");
    EXPECT_EQ(item(99, 0, 1, ItemField::Price), "20");
    // A quest row without a name to cut keeps its place, empty.
    EXPECT_EQ(item(99, 4, 1, ItemField::Name), "");
    EXPECT_EQ(item(99, 4, 2, ItemField::Name), " Guard the mill");
    EXPECT_EQ(item(99, 3, 20, ItemField::Name), "Row 20");
    EXPECT_EQ(item(99, 3, 20, ItemField::Price), "20");
    EXPECT_EQ(world->settlement(99).x, 45);
}

TEST_F(SettlementImport, AFieldOfJustFiveOpensAShopAsAnyOtherDigit)
{
    ReportShape shape;
    shape.map = {{"Party and Town"}};
    shape.heading = "TOWN OF BAKEWELL (30)";
    shape.afterHeading = {"", ""};
    shape.shops = {shopHeader("4", "BAKER", tableRow("401", "Bread", "2")), "5  FOLLOWS NO SHOP",
                   tableRow("402", "Bun", "1"), "5", tableRow("403", "Cake", "3")};
    readText(reportText(shape));
    EXPECT_EQ(item(30, 4, 2, ItemField::Name), "Bun");
    // "5" has no blank after it: shop 0, which is not the officials', takes no rows.
    EXPECT_EQ(item(30, 4, 3, ItemField::Name), "");
    EXPECT_EQ(item(30, 0, 1, ItemField::Name), "");
}

TEST(ItemRows, TheThreeKindsOfRow)
{
    ReportReader in;
    auto row = parseItemRow(in, "(123) Healing potion      45", false);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->number, "123");
    EXPECT_EQ(row->name, "Healing potion");
    EXPECT_EQ(row->price, 45);

    row = parseItemRow(in, "  Ferry (F1)", true);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->name, "Ferry ");
    EXPECT_EQ(row->number, "F1");
    EXPECT_EQ(row->price, 0); // shorter than 27 characters
    row = parseItemRow(in, "  Ferry (F1)", false);
    EXPECT_EQ(row->name, "  Ferry ");

    row = parseItemRow(in, "Quest: Slay the wyrm for 1000 gold and glory", false);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->name, " Slay the wyrm");
    EXPECT_EQ(row->number, "0");
    EXPECT_EQ(row->price, 1000);

    EXPECT_FALSE(parseItemRow(in, "Quest: nothing to cut out here at all", false));
    EXPECT_FALSE(parseItemRow(in, "Quest for glory and gold: none offered", false));
}

} // namespace wayscribe::test
