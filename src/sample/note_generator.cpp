#include "sample/note_generator.h"

#include "model/terrain.h"
#include "model/text.h"
#include "model/world.h"
#include "sample/sample_layout.h"
#include "sample/sample_names.h"
#include "sample/sample_random.h"
#include "sample/shop_catalogue.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace wayscribe::sample {

namespace {

constexpr std::string_view kLineBreak = "\r\n";

constexpr std::array<std::string_view, 20> kLandRemarks = {
    "Good camp site, fresh water",     "Ambushed by bandits",          "Ogres seen heading north",
    "Ruined tower, nothing inside",    "Wild herbs grow here",         "Old stone bridge",
    "Lost two mules in the bog",       "Tracks of a large beast",      "Abandoned farmstead",
    "Hermit lives here, friendly",     "Goblin patrols, keep moving",  "Dead end, sheer cliffs",
    "Ford across the river",           "Scouts report wyverns nearby", "Trolls under the bridge",
    "Lightning-struck oak, landmark",  "Burnt-out caravan, no loot",   "Wolves howl here at night",
    "Shepherd trades cheese for salt", "Ancient road, overgrown",
};

constexpr std::array<std::string_view, 6> kWaterRemarks = {
    "Sea serpent sighted", "Whirlpool, keep clear", "Shipwreck visible at low tide",
    "Pirate sails seen",   "Good fishing",          "Reefs, ships avoid",
};

constexpr std::array<std::string_view, 12> kSpecials = {
    "SPECIAL: Standing stones, hum at night",
    "SPECIAL: Shrine of the moon, blessing for 10gp",
    "SPECIAL: Wishing well",
    "SPECIAL: Sage who answers one question",
    "SPECIAL: Fairy ring, party lost a day",
    "SPECIAL: Healing spring",
    "SPECIAL: Statue of a forgotten king",
    "SPECIAL: Oracle cave, asks for a gem",
    "SPECIAL: Dragon bones, too big to move",
    "SPECIAL: Portal arch, quiet for now",
    "SPECIAL: Giant's cairn, do not disturb",
    "SPECIAL: Talking raven, trades secrets",
};

constexpr std::array<std::string_view, 5> kFollowUps = {
    "came back, nothing new", "still there", "seen again", "passed by, all quiet", "told the guild about it",
};

constexpr std::array<std::string_view, 8> kDirections = {
    "north", "north-east", "east", "south-east", "south", "south-west", "west", "north-west",
};

std::string remark(const Sector &sector, SampleRandom &random)
{
    if (sector.terrain == kWater)
        return std::string(random.pick(kWaterRemarks));
    switch (random.between(0, 5)) {
    case 0:
        return std::string(random.pick(kLandRemarks)) + ", turn " + formatPlain(random.between(3, 420));
    case 1:
        return "Signpost: " + placeName(random) + " " + formatPlain(random.between(2, 30)) + " leagues " +
               std::string(random.pick(kDirections));
    default:
        return std::string(random.pick(kLandRemarks));
    }
}

// A note written over several visits, one line each.
std::string longNote(std::string first, SampleRandom &random)
{
    const int more = random.between(1, 3);
    int turn = random.between(3, 150);
    for (int k = 0; k < more; ++k) {
        turn += random.between(5, 90);
        first += kLineBreak;
        first += "Turn " + formatPlain(turn) + ": " + std::string(random.pick(kFollowUps));
    }
    return first;
}

// The hide prices of a settlement as the import takes them from a report:
// "Wolf Pelts (480) @ 12gp, Bear Hides (481) @ 33gp."
std::string hideNote(SampleRandom &random)
{
    const auto hides = hideKinds();
    const int count = random.between(2, 4);
    const int first = random.between(0, static_cast<int>(hides.size()) - 1);
    std::string text;
    for (int k = 0; k < count; ++k) {
        const CatalogueItem &hide = hides[static_cast<std::size_t>(first + k) % hides.size()];
        if (k > 0)
            text += ", ";
        text += std::string(hide.name) + " (" + formatPlain(hide.number) + ") @ " +
                formatPlain(std::max(1, hide.price * random.between(70, 140) / 100)) + "gp";
    }
    return text + ".";
}

// A known sector of the map without a note yet; false after too many tries.
bool freeSector(const World &world, const SampleLayout &layout, SampleRandom &random, int &x, int &y)
{
    for (int tries = 0; tries < 5000; ++tries) {
        x = random.between(1, kMapSize);
        y = random.between(1, kMapSize);
        const Sector &sector = world.sector(x, y);
        if (layout.isExplored(x, y) && sector.note.empty() && !isSettlementTerrain(sector.terrain))
            return true;
    }
    return false;
}

void writeEveryNote(World &world, const SampleLayout &layout, SampleRandom &random)
{
    for (const PlacedSettlement &place : layout.settlements) {
        Sector &sector = world.sector(place.x, place.y);
        if (sector.note.empty())
            sector.note = hideNote(random);
    }
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            Sector &sector = world.sector(x, y);
            if (sector.settlementName.empty())
                sector.settlementName = placeName(random);
            if (!sector.note.empty())
                continue;
            const int kind = random.between(1, 100);
            if (kind <= 5)
                sector.note = std::string(random.pick(kSpecials));
            else if (kind <= 10)
                sector.note = longNote(remark(sector, random), random);
            else
                sector.note = remark(sector, random);
        }
}

} // namespace

void writeNotes(World &world, const SampleLayout &layout, std::uint64_t seed)
{
    SampleRandom random = SampleRandom::stream(seed, 60);
    if (layout.fullTables) {
        writeEveryNote(world, layout, random);
        return;
    }
    for (const PlacedSettlement &place : layout.settlements)
        if (place.visited && random.percent(45))
            world.sector(place.x, place.y).note = hideNote(random);
    const int remarks = random.between(90, 140);
    const int specials = random.between(10, 18);
    const int longNotes = random.between(6, 10);
    int x = 0, y = 0;
    for (int k = 0; k < remarks + specials + longNotes && freeSector(world, layout, random, x, y); ++k) {
        Sector &sector = world.sector(x, y);
        if (k < remarks)
            sector.note = remark(sector, random);
        else if (k < remarks + specials)
            sector.note = std::string(random.pick(kSpecials));
        else
            sector.note = longNote(
                random.percent(30) ? std::string(random.pick(kSpecials)) : remark(sector, random), random);
    }
}

} // namespace wayscribe::sample
