#pragma once

#include "settlements/shop_lists.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace wayscribe {

class World;
struct ProgramState;
class Platform;
class ChangeHistory;

// What the settlement editor's boxes show when it opens.
struct SettlementFields {
    std::string name, number, coords, notes, cityState;
};

// What the shop and item dialogs show when they open.
struct ShopFields {
    std::string number, name;
};
struct ItemFields {
    std::string name, number, price;
};

// The rules of the settlement editor and its shop and item dialogs, for the
// settlement the selections name (SelX, SelY, SelSettlement, SelNumber, set
// by the opener). Every write to the world is an undo step of its own; the
// windows only pass texts in and show what comes back.
//
// Settlement numbers a broken file puts beyond 160 into a sector count as no
// number at all, so that nothing reads or writes outside the tables.
class SettlementEditor {
public:
    SettlementEditor(World &world, ProgramState &state, Platform &platform, ChangeHistory &history);

    // Opening: the boxes' texts, SelShop (0 when shop 0 has a name, else 20)
    // and the tidying of its items. The change handlers act from here on.
    SettlementFields open();
    bool locked() const;

    // The live store of each box, while typing. Keystrokes in one box form
    // one undo step until endTyping().
    void nameChanged(const std::string &text);
    void cityStateChanged(const std::string &text);
    void notesChanged(const std::string &text);
    void endTyping();

    // The number box lost the focus: renumbers, or tells why not. Returns
    // the text the box is set back to, when it is.
    std::optional<std::string> numberLeft(const std::string &name, const std::string &numberText,
                                          const std::string &notes);

    // The normal close: stores name, notes and a number not yet checked.
    // After a travel hand-off it stores nothing. The handlers stop acting.
    void close(const std::string &name, const std::string &numberText, const std::string &notes);

    // The travel hand-off: the number of the settlement in use on the
    // sector, which the editor then closes to hand over; none when the
    // sector carries no settlement in use (the editor stays open).
    std::optional<int> handOff();

    // The settlement number the shops are filed under, read afresh.
    int shopSettlement() const;
    int selectedShop() const;

    std::vector<ShopRow> shops() const;
    // Refresh_Objects: tidies the items of SelShop and counts them.
    std::vector<ShopItemRow> refreshObjects();
    // A shop row was chosen by its "#" text.
    std::vector<ShopItemRow> selectShop(const std::string &rowNumberText);

    // "Add shop": proposes a number and opens the shop dialog on it.
    void addShop();
    ShopFields shopDialogFields() const;
    // The shop dialog's OK (markChanged) or Enter. False when the number is
    // no shop number: nothing is stored and the dialog stays open.
    bool storeShop(const std::string &numberText, const std::string &name, bool markChanged);

    // "Add object": the next free slot, or slot 1 with a message when the
    // shop has 20 items.
    void addObject();
    // A row of the object list was double-clicked (1 for the first).
    void editItem(int row);
    ItemFields itemDialogFields() const;
    void storeItem(const ItemFields &item, bool markChanged);

    // The Delete key in the lists, after the question. True when deleted.
    bool deleteShop(const std::string &rowNumberText);
    bool deleteItem(int row);

    // "Clipboard": the shop list onto the clipboard; returns the text.
    std::string copyShopList();

private:
    int sectorNumber(int x, int y) const;
    bool sectorNumbered() const;
    std::pair<int, int> recordPosition(int n) const;
    bool inUse(long long v) const;
    std::optional<std::string> rangeCheck(long long v);
    void renumber(int v, bool fromSector, bool moveCityState);
    void typed(const char *stepName, int box, const std::string &text);
    std::string numberText() const;

    World &world_;
    ProgramState &state_;
    Platform &platform_;
    ChangeHistory &history_;
    bool loaded_ = false;
    bool handingOff_ = false; // TravelHandOff
    int selItem_ = 0;
    int itemCount_ = 0; // SelShopItemCount, counted by refreshObjects
    int typingRun_ = 0; // part of the join key, so a new run starts a new step
};

} // namespace wayscribe
