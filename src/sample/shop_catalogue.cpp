#include "sample/shop_catalogue.h"

#include "sample/sample_layout.h"

#include <array>

namespace wayscribe::sample {

namespace {

using Names = std::string_view;

constexpr std::array<Names, 5> kGeneralNames = {"general store", "trading post", "{k}'s provisions",
                                                "the market hall", "{k}'s sundries"};
constexpr std::array<CatalogueItem, 22> kGeneralItems = {{
    {"Rations, One Week", 101, 2}, {"Pine Torch", 102, 1},      {"Hemp Rope", 103, 3},
    {"Hooded Lantern", 104, 8},    {"Flask Of Oil", 105, 2},    {"Backpack", 106, 4},
    {"Wool Bedroll", 107, 3},      {"Waterskin", 108, 2},       {"Tinderbox", 109, 2},
    {"Iron Spikes", 110, 3},       {"Woollen Blanket", 111, 4}, {"Cooking Pot", 112, 5},
    {"Grappling Hook", 113, 12},   {"Iron Shovel", 114, 6},     {"Pick Axe", 115, 9},
    {"Iron Crowbar", 116, 7},      {"Tallow Candles", 117, 1},  {"Grain Sack", 118, 1},
    {"Fishing Net", 119, 6},       {"Stick Of Chalk", 120, 1},  {"Small Mirror", 121, 15},
    {"Ten Foot Pole", 122, 2},
}};

constexpr std::array<Names, 5> kWeaponNames = {"weaponsmith", "{k}'s forge", "the iron anvil",
                                               "blades and blunts", "{k} the smith"};
constexpr std::array<CatalogueItem, 21> kWeaponItems = {{
    {"Steel Dagger", 140, 5},  {"Short Sword", 141, 20},      {"Long Sword", 143, 45},
    {"Broad Sword", 144, 55},  {"Two Handed Sword", 145, 90}, {"Hand Axe", 146, 12},
    {"Battle Axe", 147, 40},   {"Flanged Mace", 148, 25},     {"War Hammer", 149, 30},
    {"Boar Spear", 150, 10},   {"Iron Halberd", 151, 50},     {"War Flail", 152, 28},
    {"Morning Star", 153, 35}, {"Scimitar", 154, 42},         {"Oaken Cudgel", 155, 2},
    {"Quarterstaff", 156, 3},  {"Throwing Knives", 157, 15},  {"Jousting Lance", 158, 60},
    {"Sea Trident", 159, 38},  {"Cavalry Sabre", 160, 48},    {"Duelling Rapier", 161, 52},
}};

constexpr std::array<Names, 4> kArmourNames = {"armourer", "{k}'s armoury", "the mail shirt",
                                               "steel and leather"};
constexpr std::array<CatalogueItem, 18> kArmourItems = {{
    {"Leather Armour", 200, 15},
    {"Studded Leather", 201, 30},
    {"Ring Mail", 202, 50},
    {"Scale Mail", 203, 70},
    {"Chain Mail", 204, 110},
    {"Banded Mail", 205, 160},
    {"Plate Mail", 206, 400},
    {"Small Shield", 207, 10},
    {"Large Shield", 208, 25},
    {"Tower Shield", 209, 40},
    {"Iron Helm", 210, 12},
    {"Great Helm", 211, 30},
    {"Gauntlets", 212, 10},
    {"Steel Greaves", 213, 18},
    {"Padded Jerkin", 214, 6},
    {"Mail Coif", 215, 20},
    {"Leather Bracers", 216, 8},
    {"Horse Barding", 217, 250},
}};

constexpr std::array<Names, 4> kBowNames = {"bowyer and fletcher", "{k}'s bows", "the straight arrow",
                                            "archery supplies"};
constexpr std::array<CatalogueItem, 14> kBowItems = {{
    {"Short Bow", 230, 25},
    {"Long Bow", 231, 60},
    {"Composite Bow", 232, 95},
    {"Light Crossbow", 233, 40},
    {"Heavy Crossbow", 234, 75},
    {"Sheaf Of Arrows", 235, 5},
    {"Case Of Quarrels", 236, 6},
    {"Silver Arrows", 237, 40},
    {"Leather Sling", 238, 1},
    {"Sling Stones", 239, 1},
    {"Bow String", 240, 1},
    {"Leather Quiver", 241, 3},
    {"Archer's Bracer", 242, 4},
    {"Fire Arrows", 243, 12},
}};

constexpr std::array<Names, 4> kStableNames = {"stables", "{k}'s stables", "horse fair", "the drovers' yard"};
constexpr std::array<CatalogueItem, 14> kStableItems = {{
    {"Riding Horse", 260, 75},
    {"Arabian Horse", 261, 300},
    {"Pack Mule", 262, 30},
    {"Draft Horse", 263, 90},
    {"Hill Pony", 264, 40},
    {"War Horse", 265, 450},
    {"Riding Saddle", 266, 20},
    {"Saddlebags", 267, 6},
    {"Leather Bridle", 268, 4},
    {"Horseshoes", 269, 2},
    {"Sack Of Feed", 270, 1},
    {"Hand Cart", 271, 35},
    {"Covered Wagon", 272, 120},
    {"Stabling Per Week", 273, 1},
}};

constexpr std::array<Names, 4> kHerbNames = {"apothecary", "{k}'s remedies", "the herb garden",
                                             "healer's hut"};
constexpr std::array<CatalogueItem, 17> kHerbItems = {{
    {"Healing Herbs", 300, 5},
    {"Antidote", 301, 25},
    {"Potion Of Healing", 302, 60},
    {"Bandages", 303, 1},
    {"Mandrake Root", 304, 18},
    {"Wolfsbane", 305, 12},
    {"Garlic Bulbs", 306, 1},
    {"Belladonna", 307, 20},
    {"Smelling Salts", 308, 4},
    {"Sleeping Draught", 309, 15},
    {"Cure Disease", 310, 45},
    {"Fever Remedy", 311, 8},
    {"Poultice", 312, 3},
    {"Elixir Of Vigour", 313, 120},
    {"Balm Of Gilead", 314, 35},
    {"Herb Pouch", 315, 2},
    {"Potion Of Strength", 316, 150},
}};

constexpr std::array<Names, 4> kTempleNames = {"temple of light", "shrine of the moon", "the holy order",
                                               "chapel of saint {k}"};
constexpr std::array<CatalogueItem, 14> kTempleItems = {{
    {"Holy Water", 330, 25},
    {"Blessing", 331, 10},
    {"Remove Curse", 332, 200},
    {"Prayer Beads", 333, 5},
    {"Holy Symbol", 334, 15},
    {"Silver Holy Symbol", 335, 45},
    {"Raise Dead", 336, 1500},
    {"Cure Blindness", 337, 100},
    {"Temple Incense", 338, 2},
    {"Votive Candles", 339, 1},
    {"Sanctuary", 340, 50},
    {"Heal Wounds", 341, 30},
    {"Restoration", 342, 800},
    {"Scroll Of Protection", 343, 120},
}};

constexpr std::array<Names, 4> kMagicNames = {"guild of mages", "{k}'s arcana", "the crystal tower",
                                              "wizards' emporium"};
constexpr std::array<CatalogueItem, 19> kMagicItems = {{
    {"Scroll Of Light", 360, 30},     {"Scroll Of Fireball", 361, 300}, {"Scroll Of Sleep", 362, 90},
    {"Wand Of Sparks", 363, 400},     {"Spellbook", 364, 60},           {"Ink And Quill", 365, 3},
    {"Crystal Ball", 366, 900},       {"Staff Of Power", 367, 2500},    {"Potion Of Invisibility", 368, 250},
    {"Ring Of Protection", 369, 700}, {"Amulet Of Warding", 370, 650},  {"Bag Of Holding", 371, 1200},
    {"Scroll Of Teleport", 372, 500}, {"Identify Item", 373, 40},       {"Magic Candle", 374, 20},
    {"Runestone", 375, 80},           {"Cloak Of Elvenkind", 376, 850}, {"Boots Of Speed", 377, 1000},
    {"Wand Of Frost", 378, 450},
}};

constexpr std::array<Names, 4> kJewelNames = {"jeweller", "{k}'s gems", "the gilded cage", "gold and silver"};
constexpr std::array<CatalogueItem, 15> kJewelItems = {{
    {"Silver Ring", 400, 20},
    {"Gold Ring", 401, 60},
    {"Cut Ruby", 402, 500},
    {"Cut Emerald", 403, 450},
    {"Star Sapphire", 404, 400},
    {"Pearl Necklace", 405, 300},
    {"Amber Brooch", 406, 45},
    {"Jade Figurine", 407, 120},
    {"Gold Chain", 408, 150},
    {"Silver Bracelet", 409, 70},
    {"Rough Diamond", 410, 1000},
    {"Opal Pendant", 411, 220},
    {"Ivory Comb", 412, 35},
    {"Red Garnet", 413, 80},
    {"Moonstone", 414, 95},
}};

constexpr std::array<Names, 6> kTavernNames = {"the prancing pony", "the green dragon",
                                               "{k}'s tavern",      "the drowned rat",
                                               "the king's head",   "the wayfarer's rest"};
constexpr std::array<CatalogueItem, 13> kTavernItems = {{
    {"Tankard Of Ale", 430, 1},
    {"Bottle Of Wine", 431, 2},
    {"Horn Of Mead", 432, 2},
    {"Hot Meal", 433, 1},
    {"Room For The Night", 434, 3},
    {"Private Room", 435, 8},
    {"Hot Bath", 436, 1},
    {"Roast Boar", 437, 4},
    {"Flask Of Brandy", 438, 6},
    {"Pipeweed", 439, 2},
    {"Local Rumours", 440, 5},
    {"Dwarven Stout", 441, 3},
    {"Elven Wine", 442, 12},
}};

constexpr std::array<Names, 4> kTannerNames = {"tanner", "{k}'s leathers", "the fur trader",
                                               "hides and skins"};
constexpr std::array<CatalogueItem, 13> kTannerItems = {{
    {"Leather Strips", 460, 1},
    {"Wolf Pelt", 461, 8},
    {"Bear Hide", 462, 25},
    {"Deer Skin", 463, 5},
    {"Fur Cloak", 464, 30},
    {"Leather Boots", 465, 9},
    {"Leather Gloves", 466, 4},
    {"Leather Belt", 467, 2},
    {"Waterproof Cloak", 468, 12},
    {"Snakeskin Boots", 469, 40},
    {"Leather Satchel", 470, 7},
    {"Beaver Fur Hat", 471, 6},
    {"Boar Hide", 472, 10},
}};

constexpr std::array<Names, 4> kCaravanNames = {"caravan master", "{k}'s caravans", "merchants' guild",
                                                "wayfarers' company"};
constexpr std::array<Names, 4> kShipNames = {"harbour master", "shipping office", "{k}'s ferry",
                                             "the salt wharf"};

constexpr std::array<ShopKind, 13> kKinds = {{
    {Trade::Goods, kGeneralNames, kGeneralItems, 6},
    {Trade::Goods, kWeaponNames, kWeaponItems, 4},
    {Trade::Goods, kArmourNames, kArmourItems, 3},
    {Trade::Goods, kBowNames, kBowItems, 2},
    {Trade::Goods, kStableNames, kStableItems, 3},
    {Trade::Goods, kHerbNames, kHerbItems, 3},
    {Trade::Goods, kTempleNames, kTempleItems, 2},
    {Trade::Goods, kMagicNames, kMagicItems, 1},
    {Trade::Goods, kJewelNames, kJewelItems, 1},
    {Trade::Goods, kTavernNames, kTavernItems, 4},
    {Trade::Goods, kTannerNames, kTannerItems, 2},
    {Trade::Caravans, kCaravanNames, {}, 0},
    {Trade::Ships, kShipNames, {}, 0},
}};

constexpr std::array<Names, 16> kQuests = {
    "Slay The Hill Giant",      "Clear The Old Mine",      "Escort The Salt Merchant",
    "Recover The Stolen Relic", "Hunt The Wolf Pack",      "Destroy The Goblin Camp",
    "Find The Missing Scout",   "Guard The Harvest",       "Rid The Sewers Of Rats",
    "Map The Northern Hills",   "Bring Back A Troll Head", "Cleanse The Haunted Barrow",
    "Capture The Bandit Chief", "Survey The Marshes",      "Kill The Giant Spider",
    "Retake The Watchtower",
};

constexpr std::array<CatalogueItem, 10> kHides = {{
    {"Wolf Pelts", 480, 12},
    {"Bear Hides", 481, 30},
    {"Deer Skins", 482, 6},
    {"Boar Hides", 483, 9},
    {"Lion Skins", 484, 40},
    {"Snake Skins", 485, 15},
    {"Crocodile Hides", 486, 45},
    {"Fox Furs", 487, 8},
    {"Giant Rat Pelts", 488, 3},
    {"Wyvern Hides", 489, 120},
}};

} // namespace

std::span<const ShopKind> shopKinds()
{
    return kKinds;
}

std::string_view officialsName(int settlementNumber)
{
    if (settlementNumber <= kLastCity)
        return "City Officials";
    return settlementNumber <= kLastTown ? "Town Council" : "Village Elders";
}

std::span<const std::string_view> questNames()
{
    return kQuests;
}

std::span<const CatalogueItem> hideKinds()
{
    return kHides;
}

} // namespace wayscribe::sample
