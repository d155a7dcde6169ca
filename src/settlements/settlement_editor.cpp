#include "settlements/settlement_editor.h"

#include "model/change_history.h"
#include "model/platform.h"
#include "model/program_state.h"
#include "model/text.h"
#include "model/world.h"

#include <cstdint>

namespace wayscribe {

namespace {

constexpr int kBoxName = 1, kBoxCityState = 2, kBoxNotes = 3;

void message(Platform &platform, const std::string &text)
{
    platform.message(text, kProgramTitle, MessageButtons::Ok, MessageIcon::None);
}

// "57, 112".
std::string coordsText(int x, int y)
{
    std::string text = formatPlain(x);
    text += ", ";
    text += formatPlain(y);
    return text;
}

bool sure(Platform &platform, const std::string &question)
{
    return platform.message(question, "Sure?", MessageButtons::YesNo, MessageIcon::Question) == Answer::Yes;
}

} // namespace

SettlementEditor::SettlementEditor(World &world, ProgramState &state, Platform &platform,
                                   ChangeHistory &history)
    : world_(world), state_(state), platform_(platform), history_(history)
{
}

int SettlementEditor::sectorNumber(int x, int y) const
{
    const int n = world_.sector(x, y).settlementNumber;
    return n <= kMaxSettlements ? n : 0;
}

bool SettlementEditor::sectorNumbered() const
{
    return sectorNumber(state_.selection.selX, state_.selection.selY) != 0;
}

// A record holds the coordinates of the sector that carries its number; a
// free record, and one a broken file points beyond the map, stands at (0, 0),
// a sector of the table that is no part of the map.
std::pair<int, int> SettlementEditor::recordPosition(int n) const
{
    if (n > kMaxSettlements)
        return {0, 0};
    const Settlement &record = world_.settlement(n);
    if (record.x > kMapSize || record.y > kMapSize)
        return {0, 0};
    return {record.x, record.y};
}

bool SettlementEditor::inUse(long long v) const
{
    return world_.settlement(static_cast<int>(v)).inUse != 0;
}

int SettlementEditor::shopSettlement() const
{
    const auto [x, y] = recordPosition(state_.selection.selSettlement);
    return sectorNumber(x, y);
}

int SettlementEditor::selectedShop() const
{
    return state_.selection.selShop;
}

bool SettlementEditor::locked() const
{
    return state_.document.mapLocked != 0;
}

std::string SettlementEditor::numberText() const
{
    return formatPlain(state_.selection.selNumber);
}

SettlementFields SettlementEditor::open()
{
    loaded_ = false;
    const Selections &sel = state_.selection;
    SettlementFields fields;
    if (sectorNumbered()) {
        const auto [x, y] = recordPosition(sel.selSettlement);
        const Sector &sector = world_.sector(x, y);
        fields.name = trimBlanks(sector.settlementName);
        fields.number = formatPlain(sectorNumber(x, y));
        fields.coords = coordsText(x, y);
        fields.notes = trimBlanks(sector.note);
        if (sel.selSettlement <= kMaxSettlements)
            fields.cityState = trimBlanks(world_.settlement(sel.selSettlement).cityState);
    } else {
        fields = SettlementFields{std::string("Unknown"), std::string("0"), coordsText(sel.selX, sel.selY),
                                  world_.sector(sel.selX, sel.selY).note, std::string("Unknown")};
    }
    state_.selection.selShop = trimBlanks(world_.shopName(shopSettlement(), 0)).empty() ? 20 : 0;
    refreshObjects();
    loaded_ = true;
    return fields;
}

void SettlementEditor::typed(const char *stepName, int box, const std::string &text)
{
    const std::string key = "settlement editor " + std::to_string(reinterpret_cast<std::uintptr_t>(this)) +
                            " box " + std::to_string(box) + " run " + std::to_string(typingRun_);
    const Selections &sel = state_.selection;
    history_.apply(
        stepName,
        [&] {
            const bool numbered = sectorNumbered();
            const auto [x, y] =
                numbered ? recordPosition(sel.selSettlement) : std::pair<int, int>(sel.selX, sel.selY);
            switch (box) {
            case kBoxName:
                world_.sector(x, y).settlementName = text;
                break;
            case kBoxCityState:
                if (numbered && sel.selSettlement <= kMaxSettlements)
                    world_.settlement(sel.selSettlement).cityState = text;
                break;
            default:
                world_.sector(x, y).note = text;
                break;
            }
        },
        key);
}

void SettlementEditor::nameChanged(const std::string &text)
{
    if (loaded_)
        typed("Settlement Name", kBoxName, text);
}

void SettlementEditor::cityStateChanged(const std::string &text)
{
    if (loaded_)
        typed("City State", kBoxCityState, text);
}

void SettlementEditor::notesChanged(const std::string &text)
{
    if (!loaded_)
        return;
    typed("Settlement Notes", kBoxNotes, text);
    state_.document.mapChanged = 1;
}

void SettlementEditor::endTyping()
{
    ++typingRun_;
}

std::optional<std::string> SettlementEditor::rangeCheck(long long v)
{
    if (v >= 0 && v <= kMaxSettlements)
        return std::nullopt;
    message(platform_, "Number out of range!");
    return numberText();
}

// Gives number v the settlement of sector (SelX, SelY) and frees SelNumber's
// record. The record of v takes the old record's coordinates, or the
// sector's when the sector had no number. Its shops stay filed under the old
// number.
void SettlementEditor::renumber(int v, bool fromSector, bool moveCityState)
{
    const Selections &sel = state_.selection;
    const int old = sel.selNumber;
    Settlement *from = old >= 0 && old <= kMaxSettlements ? &world_.settlement(old) : nullptr;
    Settlement &to = world_.settlement(v);
    to.x = fromSector || !from ? sel.selX : from->x;
    to.y = fromSector || !from ? sel.selY : from->y;
    world_.sector(sel.selX, sel.selY).settlementNumber = static_cast<std::uint8_t>(v);
    if (moveCityState) {
        to.cityState = from ? from->cityState : std::string();
        if (from)
            from->cityState.clear();
    }
    to.inUse = 1;
    if (from) {
        from->inUse = 0;
        from->x = 0;
        from->y = 0;
    }
}

std::optional<std::string>
SettlementEditor::numberLeft(const std::string &name, const std::string &numberText, const std::string &notes)
{
    if (!loaded_)
        return std::nullopt;
    Selections &sel = state_.selection;
    const bool numbered = sectorNumbered();
    if (!numbered)
        history_.apply("Settlement", [&] {
            Sector &sector = world_.sector(sel.selX, sel.selY);
            sector.settlementName = name;
            sector.note = notes;
        });
    const long long v = indexValue(numberText);
    if (std::optional<std::string> reset = rangeCheck(v))
        return reset;
    if (v == sel.selNumber)
        return std::nullopt;
    if (inUse(v)) {
        message(platform_, "Settlement " + formatPlain(v) + " already exists!");
        return this->numberText();
    }
    state_.document.mapChanged = 1;
    history_.apply("Settlement Number", [&] { renumber(static_cast<int>(v), !numbered, false); });
    sel.selNumber = static_cast<std::int16_t>(v);
    return std::nullopt;
}

void SettlementEditor::close(const std::string &name, const std::string &numberText, const std::string &notes)
{
    const bool wasLoaded = loaded_;
    loaded_ = false;
    if (handingOff_) {
        handingOff_ = false;
        return;
    }
    if (!wasLoaded)
        return;
    Selections &sel = state_.selection;
    const bool numbered = sectorNumbered();
    history_.apply("Settlement", [&] {
        Sector &sector = world_.sector(sel.selX, sel.selY);
        sector.settlementName = name;
        sector.note = notes;
    });
    const long long v = indexValue(numberText);
    if (rangeCheck(v) || v == sel.selNumber)
        return;
    if (inUse(v)) {
        message(platform_, "Settlement " + formatPlain(v) + " already exists !");
        return;
    }
    history_.apply("Settlement Number", [&] { renumber(static_cast<int>(v), !numbered, true); });
    if (numbered)
        sel.selNumber = static_cast<std::int16_t>(v);
}

std::optional<int> SettlementEditor::handOff()
{
    const Selections &sel = state_.selection;
    const int n = sectorNumber(sel.selX, sel.selY);
    if (!inUse(n))
        return std::nullopt;
    handingOff_ = true;
    return n;
}

std::vector<ShopRow> SettlementEditor::shops() const
{
    return shopRows(world_, shopSettlement());
}

std::vector<ShopItemRow> SettlementEditor::refreshObjects()
{
    const int s = shopSettlement();
    const int shop = state_.selection.selShop;
    if (!isShopIndex(shop)) {
        itemCount_ = 0;
        return {};
    }
    history_.apply("Tidy Shop Items", [&] { itemCount_ = compactShopItems(world_, s, shop); });
    return itemRows(world_, s, shop);
}

std::vector<ShopItemRow> SettlementEditor::selectShop(const std::string &rowNumberText)
{
    state_.selection.selShop = static_cast<std::int16_t>(indexValue(leftChars(rowNumberText, 3)));
    return refreshObjects();
}

void SettlementEditor::addShop()
{
    state_.selection.selShop = static_cast<std::int16_t>(proposedShopNumber(world_, shopSettlement()));
}

ShopFields SettlementEditor::shopDialogFields() const
{
    const int shop = state_.selection.selShop;
    if (shop < 1 || !isShopIndex(shop))
        return {};
    return {formatPlain(shop), std::string(world_.shopName(shopSettlement(), shop))};
}

bool SettlementEditor::storeShop(const std::string &numberText, const std::string &name, bool markChanged)
{
    const long long n = indexValue(numberText);
    // Only shops 0..110 exist: another number is refused, and the dialog
    // stays open for the person to correct it.
    if (!isShopIndex(n)) {
        message(platform_, "Shop number out of range!");
        return false;
    }
    history_.apply("Shop", [&] {
        world_.setShopName(shopSettlement(), static_cast<int>(n), name);
        state_.selection.selShop = static_cast<std::int16_t>(n);
        itemCount_ = compactShopItems(world_, shopSettlement(), static_cast<int>(n));
    });
    if (markChanged)
        state_.document.mapChanged = 1;
    return true;
}

void SettlementEditor::addObject()
{
    selItem_ = itemCount_ + 1;
    if (selItem_ > kItemsPerShop) {
        platform_.message("Unable to add more than 20 items to a shop, please edit current items.",
                          "Item Add Error", MessageButtons::Ok, MessageIcon::None);
        selItem_ = 1;
    }
}

void SettlementEditor::editItem(int row)
{
    selItem_ = row;
}

ItemFields SettlementEditor::itemDialogFields() const
{
    const int s = shopSettlement(), shop = state_.selection.selShop;
    if (!isShopIndex(shop) || !isItemIndex(selItem_))
        return {};
    return {std::string(world_.item(s, shop, selItem_, ItemField::Name)),
            std::string(world_.item(s, shop, selItem_, ItemField::Number)),
            std::string(world_.item(s, shop, selItem_, ItemField::Price))};
}

void SettlementEditor::storeItem(const ItemFields &item, bool markChanged)
{
    const int s = shopSettlement(), shop = state_.selection.selShop;
    if (!isShopIndex(shop) || !isItemIndex(selItem_))
        return;
    history_.apply("Item", [&] {
        world_.setItem(s, shop, selItem_, ItemField::Name, item.name);
        world_.setItem(s, shop, selItem_, ItemField::Number, item.number);
        world_.setItem(s, shop, selItem_, ItemField::Price, item.price);
        itemCount_ = compactShopItems(world_, s, shop);
    });
    if (markChanged)
        state_.document.mapChanged = 1;
}

bool SettlementEditor::deleteShop(const std::string &rowNumberText)
{
    if (locked())
        return false;
    selectShop(rowNumberText);
    const int s = shopSettlement(), shop = state_.selection.selShop;
    if (!isShopIndex(shop))
        return false;
    if (!sure(platform_, "Really delete shop " + formatGeneral(shop) + ": " +
                             std::string(world_.shopName(s, shop)) + " and all objects?"))
        return false;
    history_.apply("Delete Shop", [&] {
        world_.setShop(s, shop, ShopTexts{});
        state_.selection.selShop = trimBlanks(world_.shopName(s, 0)).empty() ? 20 : 0;
        itemCount_ = compactShopItems(world_, s, state_.selection.selShop);
    });
    state_.document.mapChanged = 1;
    return true;
}

bool SettlementEditor::deleteItem(int row)
{
    if (locked() || !sure(platform_, "Really delete this object?"))
        return false;
    selItem_ = row;
    const int s = shopSettlement(), shop = state_.selection.selShop;
    if (!isShopIndex(shop) || !isItemIndex(row))
        return false;
    history_.apply("Delete Item", [&] {
        for (ItemField f : {ItemField::Name, ItemField::Number, ItemField::Price})
            world_.setItem(s, shop, row, f, "");
        itemCount_ = compactShopItems(world_, s, shop);
    });
    state_.document.mapChanged = 1;
    return true;
}

std::string SettlementEditor::copyShopList()
{
    platform_.setWaitCursor(true);
    const std::string text = shopListText(world_, shopSettlement());
    platform_.setClipboardText(text);
    platform_.setWaitCursor(false);
    message(platform_, "The shoplist has been copied to the clipboard.\r\n"
                       "You can now 'Paste' it to a text document or elsewhere.");
    return text;
}

} // namespace wayscribe
