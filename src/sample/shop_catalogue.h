#pragma once

#include <span>
#include <string_view>

namespace wayscribe::sample {

// An object as the game sells it: its name, its object number (the same in
// every shop) and a usual price in gold.
struct CatalogueItem {
    std::string_view name;
    int number;
    int price;
};

enum class Trade { Goods, Caravans, Ships };

// A kind of shop. Shop names are written in lower case, "{k}" standing for the
// keeper's name; they are put into proper case as the turn import does.
struct ShopKind {
    Trade trade;
    std::span<const std::string_view> names;
    std::span<const CatalogueItem> items; // empty for the journey sellers
    int weight;                           // how common the kind is
};

std::span<const ShopKind> shopKinds();

// The settlement's officials (shop 0) and the quests they offer.
std::string_view officialsName(int settlementNumber);
std::span<const std::string_view> questNames();

// Hides the settlement buys, as a hide note lists them.
std::span<const CatalogueItem> hideKinds();

} // namespace wayscribe::sample
