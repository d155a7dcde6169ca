#pragma once

#include <string>
#include <vector>

namespace wayscribe {

class World;

// A row of the settlement editor's shop list.
struct ShopRow {
    int number = 0;   // "#"
    std::string name; // trimmed
};

// A row of the settlement editor's object list; row k shows item slot k.
struct ShopItemRow {
    std::string item;  // trimmed name, " (", trimmed number, ")"
    std::string price; // as stored
};

// The shops of settlement number s that have a name, in shop order
// (Refresh_Shops). s is 0..160.
std::vector<ShopRow> shopRows(const World &world, int s);

// Moves the named items of a shop up to slots 1..k in their order and
// empties the slots after them; returns k (the compaction of
// Refresh_Objects).
int compactShopItems(World &world, int s, int shop);

// The object list of a shop whose items are compacted.
std::vector<ShopItemRow> itemRows(const World &world, int s, int shop);

// The number "Add shop" proposes: the lowest shop 20..99 whose name is
// exactly empty, 20 when all of them have one.
int proposedShopNumber(const World &world, int s);

// The shop list the "Clipboard" button copies: each named shop as "j N",
// its items in columns beside it, lines ended by CR LF.
std::string shopListText(const World &world, int s);

} // namespace wayscribe
