// The .mp2 file of a QuestOR map: sector notes and the names of the
// settlements, shops and items that the .mp1 file placed by number.
#include "storage/questor_files.h"

#include "model/platform.h"
#include "model/program_state.h"
#include "model/text.h"
#include "model/world.h"
#include "storage/field_number.h"

#include <cmath>
#include <cstdint>
#include <deque>
#include <map>
#include <set>
#include <unordered_map>
#include <vector>

namespace wayscribe {

namespace {

constexpr int kNotesEnd = 255;
constexpr int kQuestorLastShop = 99; // QuestOR shops are numbered 1..99
constexpr int kSpecialItemFirst = 310;
constexpr int kSpecialItemLast = 317;

// Values of the names file, each read error told with its line.
class NamesInput {
public:
    NamesInput(const std::string &text, Platform &platform, QuestorError &error)
        : csv_(text), platform_(platform), error_(error)
    {
    }

    // `what` names the section for the message when the file ends early.
    bool read(std::string &value, const char *what)
    {
        const int line = csv_.line();
        if (!csv_.next(value))
            return fail(line, std::string("the file ends before the ") + what + " are complete");
        lastLine_ = line;
        platform_.processEvents();
        return true;
    }

    bool skip(int count, const char *what)
    {
        std::string ignored;
        for (int k = 0; k < count; ++k)
            if (!read(ignored, what))
                return false;
        return true;
    }

    // A value that must fit an unsigned byte.
    bool readByte(int &value, const char *what)
    {
        std::string text;
        if (!read(text, what))
            return false;
        long v;
        std::string reason;
        if (!fieldNumber(text, 0, 255, v, reason))
            return fail(lastLine_, reason);
        value = static_cast<int>(v);
        return true;
    }

    bool fail(int line, const std::string &reason)
    {
        error_.place = "line " + std::to_string(line);
        error_.reason = reason;
        return false;
    }
    int lastLine() const { return lastLine_; }

private:
    CsvReader csv_;
    Platform &platform_;
    QuestorError &error_;
    int lastLine_ = 0;
};

bool isSectorTableIndex(int v)
{
    return v >= 0 && v <= kMapSize;
}

// Notes by sector, up to the 255 that ends them. The selected sector carries
// each note's position, as it always has.
bool readNotes(NamesInput &in, World &world, ProgramState &state)
{
    const char *what = "sector notes";
    int x = 0;
    if (!in.readByte(x, what))
        return false;
    while (true) {
        state.selection.selX = static_cast<std::uint8_t>(x);
        if (x == kNotesEnd)
            return in.skip(4, what);
        int y = 0;
        if (!in.readByte(y, what))
            return false;
        state.selection.selY = static_cast<std::uint8_t>(y);
        if (!isSectorTableIndex(x) || !isSectorTableIndex(y))
            return in.fail(in.lastLine(), "a note is placed at X " + std::to_string(x) + ", Y " +
                                              std::to_string(y) + ", outside the map");
        std::string note;
        if (!in.read(note, what))
            return false;
        world.sector(x, y).note = std::move(note);
        if (!in.readByte(x, what))
            return false;
    }
}

bool isInUse(const World &world, int n)
{
    return world.settlement(n).inUse == 1;
}

// Each name goes to the first settlement whose name is still the number the
// map file gave it.
bool readSettlementNames(NamesInput &in, World &world, int count)
{
    std::string name;
    for (int k = 1; k <= count; ++k) {
        if (!in.read(name, "settlement names"))
            return false;
        const std::string key = formatPlain(k);
        for (int s = 1; s <= kMaxSettlements; ++s) {
            const Settlement &settlement = world.settlement(s);
            // A settlement kept from before whose place lies off the map has
            // no sector name to compare.
            if (!isInUse(world, s) || !isSectorTableIndex(settlement.x) || !isSectorTableIndex(settlement.y))
                continue;
            Sector &sector = world.sector(settlement.x, settlement.y);
            if (sector.settlementName == key) {
                sector.settlementName = oneLine(name);
                break;
            }
        }
    }
    return true;
}

// Each name goes to the first shop whose name reads as its number. The
// shops are filed once by the whole number their names read as, in the order
// of the search, and refiled as they are renamed, so a large map does not
// read every shop name again for every name.
bool readShopNames(NamesInput &in, World &world, int count)
{
    std::map<double, std::set<int>> shopsByValue; // place: (settlement - 1) * 99 + shop - 1
    const auto file = [&shopsByValue](std::string_view name, int place) {
        const double value = textValue(name);
        if (!name.empty() && value >= 1 && value == std::floor(value))
            shopsByValue[value].insert(place);
    };
    for (int s = 1; s <= kMaxSettlements; ++s)
        for (int shop = 1; shop <= kQuestorLastShop; ++shop)
            file(world.shopName(s, shop), (s - 1) * kQuestorLastShop + shop - 1);
    std::string name;
    for (int j = 1; j <= count; ++j) {
        if (!in.read(name, "shop names"))
            return false;
        const auto found = shopsByValue.find(j);
        if (found == shopsByValue.end() || found->second.empty())
            continue;
        const int place = *found->second.begin();
        found->second.erase(found->second.begin());
        const std::string shopName = oneLine(name);
        world.setShopName(place / kQuestorLastShop + 1, place % kQuestorLastShop + 1, shopName);
        file(shopName, place);
    }
    return true;
}

bool isSpecialItem(int number)
{
    return number >= kSpecialItemFirst && number <= kSpecialItemLast;
}

// The QuestOR item number an item's number text stands for, or 0 when it is
// not exactly the decimal form of 101..999.
int questorItemNumber(std::string_view text)
{
    if (text.size() != 3 || text[0] < '1' || text[0] > '9')
        return 0;
    int number = 0;
    for (char c : text) {
        if (c < '0' || c > '9')
            return 0;
        number = number * 10 + (c - '0');
    }
    return number >= kQuestorFirstItem ? number : 0;
}

// Ordinary items take their names from the item name table by number.
void nameItems(World &world)
{
    for (int s = 1; s <= kMaxSettlements; ++s) {
        if (!isInUse(world, s))
            continue;
        for (int shop = 1; shop <= kQuestorLastShop; ++shop) {
            ShopTexts texts;
            bool unpacked = false;
            for (int i = 1; i <= kItemsPerShop; ++i) {
                const int number = questorItemNumber(world.item(s, shop, i, ItemField::Number));
                if (number == 0 || isSpecialItem(number) || world.questorItemName(number).empty())
                    continue;
                if (!unpacked) {
                    texts = world.shop(s, shop);
                    unpacked = true;
                }
                texts.item(i, ItemField::Name) = world.questorItemName(number);
            }
            if (unpacked)
                world.setShop(s, shop, texts);
        }
    }
}

struct ItemPlace {
    int settlement, shop, item;
};

// Special items carry their own names, matched through the items' name
// indexes: the j-th name goes to the first item, in table order, whose index
// is j, and that index is used up.
bool readSpecialItemNames(NamesInput &in, World &world, int count)
{
    std::unordered_map<int, std::deque<ItemPlace>> byIndex;
    for (int s = 1; s <= kMaxSettlements; ++s) {
        if (!isInUse(world, s))
            continue;
        for (int shop = 1; shop <= kQuestorLastShop; ++shop)
            for (int i = 1; i <= kItemsPerShop; ++i)
                if (const int index = world.questorNameIndex(s, shop, i); index != 0)
                    byIndex[index].push_back({s, shop, i});
    }
    std::string name;
    for (int j = 1; j <= count; ++j) {
        if (!in.read(name, "special item names"))
            return false;
        const auto found = byIndex.find(j);
        if (found == byIndex.end() || found->second.empty())
            continue;
        const ItemPlace place = found->second.front();
        found->second.pop_front();
        world.setItem(place.settlement, place.shop, place.item, ItemField::Name, oneLine(name));
        world.setQuestorNameIndex(place.settlement, place.shop, place.item, 0);
    }
    return true;
}

} // namespace

bool readQuestorNamesFile(const std::string &path, World &world, ProgramState &state, Platform &platform,
                          const QuestorTokenCounts &counts, QuestorError &error)
{
    std::string text;
    if (!readQuestorFile(path, kQuestorNamesFile, text, error))
        return false;
    NamesInput in(text, platform, error);
    const bool special = counts.hasSpecialItems();
    if (!readNotes(in, world, state))
        return false;
    if (!special && !in.skip(1, "settlement names"))
        return false;
    if (!readSettlementNames(in, world, counts.settlements))
        return false;
    if (!in.skip(special ? 2 : 3, "shop names") || !readShopNames(in, world, counts.shops))
        return false;
    if (!in.skip(1, "item names"))
        return false;
    std::string name;
    for (int number = kQuestorFirstItem; number <= kQuestorLastItem; ++number) {
        if (!in.read(name, "900 item names"))
            return false;
        world.questorItemName(number) = oneLine(name);
    }
    nameItems(world);
    if (special &&
        (!in.skip(2, "special item names") || !readSpecialItemNames(in, world, counts.specialItems)))
        return false;
    return true;
}

} // namespace wayscribe
