#include "model/new_map.h"
#include "model/program_state.h"
#include "model/saved_content.h"
#include "model/terrain.h"
#include "model/world.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

using namespace wayscribe;

TEST(World, ShopTextsAreStoredPerFieldIncludingShopZeroAndTheLastShop)
{
    auto w = std::make_unique<World>();
    for (int s : {0, 100, 110}) {
        w->setShopName(160, s, "Shop " + std::to_string(s));
        w->setItem(160, s, 20, ItemField::Price, "5");
        w->setItem(160, s, 1, ItemField::Number, "");
    }
    w->setItem(160, 0, 1, ItemField::Name, std::string("nul\0inside", 10));
    EXPECT_EQ(w->shopName(160, 100), "Shop 100");
    EXPECT_EQ(w->item(160, 110, 20, ItemField::Price), "5");
    EXPECT_EQ(w->item(160, 110, 20, ItemField::Name), "");
    EXPECT_EQ(w->item(160, 0, 1, ItemField::Name), std::string("nul\0inside", 10));
    EXPECT_EQ(w->shopName(159, 0), "");
    ShopTexts t = w->shop(160, 0);
    t.item(2, ItemField::Name) = "Rope";
    w->setShop(160, 0, t);
    EXPECT_EQ(w->item(160, 0, 2, ItemField::Name), "Rope");
    EXPECT_EQ(w->item(160, 0, 1, ItemField::Name), std::string("nul\0inside", 10));

    EXPECT_THROW(w->sector(201, 1), std::out_of_range);
    EXPECT_THROW(w->setShopName(1, 111, "x"), std::out_of_range);
    EXPECT_THROW(w->item(1, 0, 0, ItemField::Name), std::out_of_range);
    EXPECT_THROW(w->dungeon(201), std::out_of_range);
    EXPECT_THROW(w->questorItemName(100), std::out_of_range);
}

TEST(World, NewMapClearsEveryTableAndTheSelections)
{
    auto w = std::make_unique<World>();
    ProgramState s;
    test::ScriptedPlatform p;
    w->sector(7, 9) = {12, 3, 2, "note", "Town"};
    w->settlement(3) = {1, 7, 9, "State"};
    w->setItem(3, 110, 20, ItemField::Name, "Item");
    w->dungeon(200).name = "D";
    w->dungeon(200).levels = 4;
    w->dungeon(200).level[10].roomData = "r";
    w->questorItemName(1000) = "Q";
    s.document.gameNumber = 4;
    s.document.mapFileName = "/x.om1";
    s.document.mapChanged = 1;
    s.selection.selX = s.selection.selY = s.selection.selSettlement = 3;
    s.selection.selShop = s.selection.selNumber = s.selection.selDungeon = 2;
    NewMap(*w, s, p);
    EXPECT_TRUE(sameSavedContent(*w, *std::make_unique<World>()));
    EXPECT_EQ(w->sector(7, 9).terrain, kUnknown);
    EXPECT_EQ(w->sector(7, 9).moveMark, 0);
    EXPECT_EQ(w->questorItemName(1000), "");
    EXPECT_EQ(s.document.gameNumber, 0);
    EXPECT_EQ(s.document.mapFileName, "");
    EXPECT_EQ(s.document.mapChanged, 1) << "New leaves the dirty flag to its caller";
    EXPECT_EQ(s.selection.selX + s.selection.selY + s.selection.selSettlement + s.selection.selShop +
                  s.selection.selNumber + s.selection.selDungeon,
              0);
    EXPECT_EQ(p.statuses, (std::vector<std::string>{"Please wait, clearing map...", ""}));
    EXPECT_EQ(p.redraws, 1);
}

TEST(Terrain, NamesAndClasses)
{
    EXPECT_EQ(terrainName(7), "Heavy Forest");
    EXPECT_EQ(terrainName(18), "City");
    EXPECT_EQ(terrainName(0), "");
    EXPECT_EQ(terrainName(19), "");
    EXPECT_TRUE(isSettlementTerrain(16) && isSettlementTerrain(18));
    EXPECT_FALSE(isSettlementTerrain(15) || isSettlementTerrain(19));
}
