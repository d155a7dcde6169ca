#include "sample/sample_names.h"

#include <array>
#include <string_view>

namespace wayscribe::sample {

namespace {

constexpr std::array<std::string_view, 50> kPlaceStarts = {
    "Oak",  "Ash",  "Elm",  "Thorn", "Raven", "Stone",  "Wolf",  "Bright", "Cold",   "Deep",
    "Grey", "High", "Iron", "Mar",   "Red",   "Silver", "Black", "Storm",  "Winter", "Frost",
    "Gold", "King", "Dun",  "Bel",   "Kar",   "Tor",    "Vel",   "Lan",    "Mor",    "Ul",
    "Ys",   "Gal",  "Hal",  "Ard",   "Bran",  "Caer",   "Fen",   "Glen",   "Wyn",    "Ald",
    "Brim", "Crow", "Hart", "Lin",   "Nor",   "Pen",    "Quel",  "Rhos",   "Sel",    "Tam",
};

constexpr std::array<std::string_view, 34> kPlaceEnds = {
    "vale",  "ford",   "wick", "bury",   "holm", "mere",  "stead", "gate",  "haven", "moor", "dale", "crest",
    "fall",  "hollow", "ton",  "by",     "wood", "march", "reach", "mouth", "port",  "keep", "well", "bridge",
    "field", "ham",    "ley",  "thorpe", "wyn",  "dor",   "mar",   "ia",    "oth",   "un",
};

constexpr std::array<std::string_view, 40> kKeepers = {
    "Osric",  "Maud",  "Bram",   "Hild",    "Edric",  "Gunnar",  "Alys",   "Tobin",    "Wulf",   "Rowena",
    "Cedric", "Elsa",  "Jory",   "Merrick", "Nell",   "Piers",   "Quinn",  "Roderick", "Sabine", "Tamsin",
    "Ulric",  "Vance", "Wilmot", "Yorick",  "Agatha", "Barnaby", "Corwin", "Dunstan",  "Eldred", "Fenwick",
    "Godric", "Hobb",  "Ivo",    "Jocelyn", "Kester", "Leofric", "Mabel",  "Nyle",     "Oswin",  "Perrin",
};

constexpr std::array<std::string_view, 16> kDungeonAdjectives = {
    "Black",  "Sunken",  "Forgotten", "Howling",    "Silent",  "Crimson", "Broken",   "Drowned",
    "Hollow", "Burning", "Frozen",    "Whispering", "Ancient", "Lost",    "Shadowed", "Weeping",
};

constexpr std::array<std::string_view, 16> kDungeonPlaces = {
    "Pit",   "Caverns", "Crypt",  "Mines",     "Halls", "Catacombs", "Warrens", "Tombs",
    "Delve", "Depths",  "Vaults", "Labyrinth", "Keep",  "Tower",     "Grotto",  "Barrow",
};

constexpr std::array<std::string_view, 14> kDungeonLords = {
    "Morgath", "Xul",    "Vorn",  "Ishtak", "Belgor", "Azrath", "Kelthar",
    "Nargul",  "Sethra", "Ulmok", "Zarrik", "Grimna", "Oskar",  "Thessaly",
};

constexpr std::array<std::string_view, 10> kDungeonCreatures = {
    "Goblin", "Orc", "Spider", "Troll", "Ratling", "Kobold", "Serpent", "Ghoul", "Bat", "Wyrm",
};

} // namespace

std::string placeName(SampleRandom &random)
{
    std::string name(random.pick(kPlaceStarts));
    std::string_view end = random.pick(kPlaceEnds);
    // A letter doubled at the joint ("Wolfford") is written once.
    if (name.back() == end.front())
        end.remove_prefix(1);
    name += end;
    return name;
}

std::string keeperName(SampleRandom &random)
{
    return std::string(random.pick(kKeepers));
}

std::string dungeonName(SampleRandom &random)
{
    switch (random.between(0, 2)) {
    case 0:
        return std::string(random.pick(kDungeonAdjectives)) + " " + std::string(random.pick(kDungeonPlaces));
    case 1:
        return std::string(random.pick(kDungeonPlaces)) + " Of " + std::string(random.pick(kDungeonLords));
    default:
        return std::string(random.pick(kDungeonCreatures)) + " " + std::string(random.pick(kDungeonPlaces));
    }
}

} // namespace wayscribe::sample
