#include "settlements/settlement_editor.h"

#include "model/change_history.h"
#include "model/program_state.h"
#include "model/world.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

// Settlement 12 "Oakvale" at (57, 112) with a city-state, settlement 30 in
// use elsewhere, and an editor opened on 12 as a left click opens it.
struct Editor : ::testing::Test {
    std::unique_ptr<World> world = std::make_unique<World>();
    ProgramState state;
    ScriptedPlatform platform;
    ChangeHistory history{*world, state.document};
    std::unique_ptr<SettlementEditor> editor;

    void settle(int n, const std::string &name, int x, int y)
    {
        placeSettlement(*world, n, x, y, name, "Realm");
        world->sector(x, y).terrain = 17;
    }
    SettlementFields openOn(int x, int y)
    {
        const int n = world->sector(x, y).settlementNumber;
        state.selection = {};
        state.selection.selX = static_cast<std::uint8_t>(x);
        state.selection.selY = static_cast<std::uint8_t>(y);
        state.selection.selSettlement = static_cast<std::uint8_t>(n);
        state.selection.selNumber = static_cast<std::int16_t>(n);
        state.selection.selShop = 20;
        editor = std::make_unique<SettlementEditor>(*world, state, platform, history);
        return editor->open();
    }
    void SetUp() override
    {
        settle(12, " Oakvale ", 57, 112);
        world->sector(57, 112).note = " well ";
        settle(30, "Elsewhere", 9, 9);
    }
    std::string record(int n) const { return recordText(world->settlement(n)); }
    std::string lastMessage() const { return platform.messages.empty() ? "" : platform.messages.back().text; }
};

} // namespace

TEST_F(Editor, OpensOnANumberedAndAnUnnumberedSector)
{
    const SettlementFields f = openOn(57, 112);
    EXPECT_EQ(f.name, "Oakvale");
    EXPECT_EQ(f.number, "12");
    EXPECT_EQ(f.coords, "57, 112");
    EXPECT_EQ(f.notes, "well");
    EXPECT_EQ(f.cityState, "Realm");
    EXPECT_EQ(state.selection.selShop, 20);

    world->sector(3, 4).terrain = 16;
    world->sector(3, 4).note = " kept ";
    world->setShopName(0, 0, "Zero"); // shops of an unnumbered settlement are filed under 0
    const SettlementFields u = openOn(3, 4);
    EXPECT_EQ(u.name, "Unknown");
    EXPECT_EQ(u.cityState, "Unknown");
    EXPECT_EQ(u.number, "0");
    EXPECT_EQ(u.coords, "3, 4");
    EXPECT_EQ(u.notes, " kept ");
    EXPECT_EQ(state.selection.selShop, 0);
    editor->close(u.name, u.number, u.notes);
    EXPECT_EQ(world->sector(3, 4).settlementName, "Unknown");
    EXPECT_EQ(state.document.mapChanged, 0);
}

TEST_F(Editor, LiveStoreAndWhatMarksTheMapChanged)
{
    openOn(57, 112);
    editor->nameChanged("Oak");
    editor->cityStateChanged("Kingdom");
    EXPECT_EQ(world->sector(57, 112).settlementName, "Oak");
    EXPECT_EQ(world->settlement(12).cityState, "Kingdom");
    EXPECT_EQ(state.document.mapChanged, 0);
    editor->notesChanged("n");
    EXPECT_EQ(world->sector(57, 112).note, "n");
    EXPECT_EQ(state.document.mapChanged, 1);

    // Nothing is stored for the city-state of an unnumbered sector.
    world->sector(3, 4).terrain = 16;
    openOn(3, 4);
    editor->cityStateChanged("Lost");
    EXPECT_EQ(world->settlement(0).cityState, "");
    editor->nameChanged("Hamlet");
    EXPECT_EQ(world->sector(3, 4).settlementName, "Hamlet");
}

TEST_F(Editor, NumberBoxRangeAndNumbersInUse)
{
    openOn(57, 112);
    for (const char *bad : {"-1", "161"}) {
        EXPECT_EQ(editor->numberLeft("Oakvale", bad, "well"), std::optional<std::string>("12")) << bad;
        EXPECT_EQ(lastMessage(), "Number out of range!");
    }
    EXPECT_EQ(editor->numberLeft("Oakvale", "30", "well"), std::optional<std::string>("12"));
    EXPECT_EQ(lastMessage(), "Settlement 30 already exists!");
    EXPECT_EQ(editor->numberLeft("Oakvale", "12", "well"), std::nullopt);
    EXPECT_EQ(world->sector(57, 112).settlementNumber, 12);
    EXPECT_EQ(state.document.mapChanged, 0);

    // 160 passes; 0 too, and then record 0 holds the settlement.
    EXPECT_EQ(editor->numberLeft("Oakvale", "160", "well"), std::nullopt);
    EXPECT_EQ(world->sector(57, 112).settlementNumber, 160);
    EXPECT_EQ(editor->numberLeft("Oakvale", "0", "well"), std::nullopt);
    EXPECT_EQ(world->sector(57, 112).settlementNumber, 0);
    EXPECT_EQ(record(0), "1 57,112 ");
    EXPECT_EQ(record(160), "0 0,0 ");
}

TEST_F(Editor, RenumberingThroughTheBoxLeavesCityStateAndShopsBehind)
{
    world->setShopName(12, 20, "Smithy");
    openOn(57, 112);
    EXPECT_EQ(editor->numberLeft("Oakvale", "40", "well"), std::nullopt);
    EXPECT_EQ(state.document.mapChanged, 1);
    EXPECT_EQ(state.selection.selNumber, 40);
    EXPECT_EQ(state.selection.selSettlement, 12); // the editor never changes it
    EXPECT_EQ(record(40), "1 57,112 ");
    EXPECT_EQ(record(12), "0 0,0 Realm");
    // The old record now stands at (0, 0): a name typed now goes there, and
    // reaches the sector only at the close.
    editor->nameChanged("Oakton");
    EXPECT_EQ(world->sector(0, 0).settlementName, "Oakton");
    editor->close("Oakton", "40", "well");
    EXPECT_EQ(world->sector(57, 112).settlementName, "Oakton");

    EXPECT_TRUE(openOn(57, 112).cityState.empty());
    EXPECT_TRUE(editor->shops().empty());
    settle(12, "Newcomer", 80, 80); // a settlement that takes number 12 finds the shops
    openOn(80, 80);
    ASSERT_EQ(editor->shops().size(), 1u);
}

TEST_F(Editor, RenumberingAtTheCloseMovesTheCityState)
{
    openOn(57, 112);
    editor->close("Oakvale", "41", "well");
    EXPECT_EQ(world->sector(57, 112).settlementNumber, 41);
    EXPECT_EQ(record(41), "1 57,112 Realm");
    EXPECT_EQ(record(12), "0 0,0 ");
    EXPECT_EQ(state.document.mapChanged, 0);

    openOn(57, 112);
    editor->close("Renamed", "30", "new note");
    EXPECT_EQ(lastMessage(), "Settlement 30 already exists !");
    EXPECT_EQ(world->sector(57, 112).settlementNumber, 41);
    EXPECT_EQ(world->sector(57, 112).settlementName, "Renamed");
    EXPECT_EQ(world->sector(57, 112).note, "new note");
}

TEST_F(Editor, AnUnnumberedSectorTakesANumber)
{
    world->sector(3, 4).terrain = 16;
    openOn(3, 4);
    EXPECT_EQ(editor->numberLeft("Hamlet", "7", "pond"), std::nullopt);
    EXPECT_EQ(world->sector(3, 4).settlementNumber, 7);
    EXPECT_EQ(world->sector(3, 4).settlementName, "Hamlet");
    EXPECT_EQ(world->sector(3, 4).note, "pond");
    EXPECT_EQ(record(7), "1 3,4 ");
    EXPECT_EQ(state.document.mapChanged, 1);

    world->sector(5, 5).terrain = 16;
    world->settlement(0).cityState = "Carried";
    openOn(5, 5);
    editor->close("Farm", "8", "");
    EXPECT_EQ(world->sector(5, 5).settlementNumber, 8);
    EXPECT_EQ(record(8), "1 5,5 Carried");
    EXPECT_EQ(record(0), "0 0,0 ");
}

TEST_F(Editor, TravelHandOffSkipsTheClose)
{
    openOn(57, 112);
    editor->nameChanged("Live");
    EXPECT_EQ(editor->handOff(), std::optional<int>(12));
    editor->close("Closing", "13", "not stored");
    EXPECT_EQ(world->sector(57, 112).settlementName, "Live");
    EXPECT_EQ(world->sector(57, 112).note, " well ");
    EXPECT_EQ(world->sector(57, 112).settlementNumber, 12);

    world->sector(3, 4).terrain = 16;
    openOn(3, 4);
    EXPECT_EQ(editor->handOff(), std::nullopt);
}

TEST_F(Editor, ShopsAreNumberedFrom20AndDeletedOnYes)
{
    openOn(57, 112);
    editor->addShop();
    EXPECT_EQ(editor->shopDialogFields().number, "20");
    EXPECT_TRUE(editor->storeShop("20", "Smithy", false));
    EXPECT_EQ(state.document.mapChanged, 0); // Enter does not mark the map
    editor->addShop();
    EXPECT_TRUE(editor->storeShop("21", "Stables", true));
    EXPECT_EQ(state.document.mapChanged, 1);
    EXPECT_EQ(editor->selectedShop(), 21);
    EXPECT_FALSE(editor->storeShop("111", "Nowhere", true));
    EXPECT_EQ(lastMessage(), "Shop number out of range!");

    platform.answers = {Answer::No};
    EXPECT_FALSE(editor->deleteShop("20"));
    EXPECT_EQ(world->shopName(12, 20), "Smithy");
    EXPECT_EQ(lastMessage(), "Really delete shop  20: Smithy and all objects?");
    EXPECT_EQ(platform.messages.back().title, "Sure?");
    platform.answers = {Answer::Yes};
    world->setItem(12, 20, 5, ItemField::Price, "9");
    EXPECT_TRUE(editor->deleteShop("20"));
    EXPECT_EQ(world->shop(12, 20).name, "");
    EXPECT_EQ(world->item(12, 20, 5, ItemField::Price), "");
    editor->addShop();
    EXPECT_EQ(editor->selectedShop(), 20); // reused before 22

    // Shop 0 opens the dialog empty, and is where a delete returns to.
    world->setShopName(12, 0, "Zero");
    editor->selectShop("0");
    EXPECT_EQ(editor->shopDialogFields().name, "");
    platform.answers = {Answer::Yes};
    EXPECT_TRUE(editor->deleteShop("21"));
    EXPECT_EQ(editor->selectedShop(), 0);

    state.document.mapLocked = 1;
    EXPECT_FALSE(editor->deleteShop("0"));
    EXPECT_EQ(world->shopName(12, 0), "Zero");
}

TEST_F(Editor, TheTwentyFirstItemAndDeletingItems)
{
    openOn(57, 112);
    editor->storeShop("20", "Smithy", true);
    for (int i = 1; i <= 20; ++i) {
        editor->addObject();
        editor->storeItem({"Item " + std::to_string(i), std::to_string(i), "1"}, true);
    }
    EXPECT_EQ(editor->refreshObjects().size(), 20u);
    editor->addObject();
    EXPECT_EQ(lastMessage(), "Unable to add more than 20 items to a shop, please edit current items.");
    EXPECT_EQ(platform.messages.back().title, "Item Add Error");
    EXPECT_EQ(editor->itemDialogFields().name, "Item 1");

    platform.answers = {Answer::No};
    EXPECT_FALSE(editor->deleteItem(3));
    platform.answers = {Answer::Yes};
    EXPECT_TRUE(editor->deleteItem(3));
    EXPECT_EQ(lastMessage(), "Really delete this object?");
    const std::vector<ShopItemRow> rows = editor->refreshObjects();
    ASSERT_EQ(rows.size(), 19u);
    EXPECT_EQ(rows[2].item, "Item 4 (4)");
    EXPECT_EQ(world->item(12, 20, 20, ItemField::Number), "");

    // An item stored without a name goes, with its number and price.
    editor->editItem(1);
    editor->storeItem({"  ", "1", "1"}, true);
    EXPECT_EQ(editor->refreshObjects().size(), 18u);
    EXPECT_EQ(world->item(12, 20, 1, ItemField::Name), "Item 2");
}

TEST_F(Editor, ClipboardCopiesTheListAndSaysSo)
{
    openOn(57, 112);
    EXPECT_EQ(editor->copyShopList(), "");
    EXPECT_EQ(platform.clipboard, "");
    EXPECT_EQ(lastMessage(), "The shoplist has been copied to the clipboard.\r\n"
                             "You can now 'Paste' it to a text document or elsewhere.");
    EXPECT_EQ(platform.messages.back().title, "Wayscribe");
    editor->storeShop("21", "Stables", true);
    EXPECT_EQ(editor->copyShopList(), "21 Stables\r\n");
    EXPECT_EQ(platform.clipboard, "21 Stables\r\n");
    EXPECT_FALSE(platform.waitCursor);
}

TEST_F(Editor, EachStoredEditIsOneUndoStep)
{
    openOn(57, 112);
    for (const char *typed : {"O", "Oa", "Oak"})
        editor->nameChanged(typed);
    editor->endTyping();
    editor->nameChanged("Oaks");
    history.undo();
    EXPECT_EQ(world->sector(57, 112).settlementName, "Oak");
    history.undo();
    EXPECT_EQ(world->sector(57, 112).settlementName, " Oakvale ");

    editor->numberLeft("Oakvale", "40", "well");
    editor->storeShop("20", "Smithy", true);
    history.undo();
    EXPECT_EQ(world->shopName(12, 20), "");
    history.undo();
    EXPECT_EQ(world->sector(57, 112).settlementNumber, 12);
    EXPECT_EQ(record(12), "1 57,112 Realm");
    EXPECT_EQ(record(40), "0 0,0 ");
}
