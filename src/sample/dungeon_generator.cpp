#include "sample/dungeon_generator.h"

#include "model/terrain.h"
#include "model/text.h"
#include "model/world.h"
#include "sample/sample_layout.h"
#include "sample/sample_names.h"
#include "sample/sample_random.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace wayscribe::sample {

namespace {

constexpr std::string_view kLineBreak = "\r\n";

constexpr std::array<std::string_view, 16> kRoomTypes = {
    "Guard Room", "Empty Chamber",  "Crypt",           "Armoury",
    "Shrine",     "Treasure Vault", "Barracks",        "Kennel",
    "Lair",       "Prison Cells",   "Well Room",       "Throne Room",
    "Storeroom",  "Fungus Garden",  "Torture Chamber", "Collapsed Hall",
};

struct Room {
    int x, y, width, height;
};

// A level as the in-dungeon map draws it: rooms of floor joined by passages,
// walls around them, numbered rooms, U and D for the stairs.
std::string levelMap(const std::vector<Room> &rooms, int width, int height, bool stairsUp, bool stairsDown)
{
    std::vector<std::string> grid(static_cast<std::size_t>(height),
                                  std::string(static_cast<std::size_t>(width), ' '));
    auto floor = [&](int x, int y) { grid[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = '.'; };
    for (std::size_t i = 0; i < rooms.size(); ++i) {
        const Room &r = rooms[i];
        for (int y = r.y; y < r.y + r.height; ++y)
            for (int x = r.x; x < r.x + r.width; ++x)
                floor(x, y);
        if (i > 0) {
            const Room &p = rooms[i - 1];
            const int ax = p.x + p.width / 2, ay = p.y + p.height / 2;
            const int bx = r.x + r.width / 2, by = r.y + r.height / 2;
            for (int x = std::min(ax, bx); x <= std::max(ax, bx); ++x)
                floor(x, ay);
            for (int y = std::min(ay, by); y <= std::max(ay, by); ++y)
                floor(bx, y);
        }
    }
    std::vector<std::string> walled = grid;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            if (grid[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] != ' ')
                continue;
            for (int dy = -1; dy <= 1; ++dy)
                for (int dx = -1; dx <= 1; ++dx) {
                    const int nx = x + dx, ny = y + dy;
                    if (nx >= 0 && ny >= 0 && nx < width && ny < height &&
                        grid[static_cast<std::size_t>(ny)][static_cast<std::size_t>(nx)] == '.')
                        walled[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = '#';
                }
        }
    for (std::size_t i = 0; i < rooms.size() && i < 9; ++i)
        walled[static_cast<std::size_t>(rooms[i].y + rooms[i].height / 2)]
              [static_cast<std::size_t>(rooms[i].x + rooms[i].width / 2)] = static_cast<char>('1' + i);
    if (stairsUp)
        walled[static_cast<std::size_t>(rooms.front().y)][static_cast<std::size_t>(rooms.front().x)] = 'U';
    if (stairsDown)
        walled[static_cast<std::size_t>(rooms.back().y)][static_cast<std::size_t>(rooms.back().x)] = 'D';
    // Only the part around the rooms is shown, and the import keeps a line
    // break after every line of it.
    std::size_t top = 0, bottom = walled.size(), left = walled.front().size();
    while (walled[top].find_first_not_of(' ') == std::string::npos)
        ++top;
    while (walled[bottom - 1].find_first_not_of(' ') == std::string::npos)
        --bottom;
    for (std::size_t row = top; row < bottom; ++row)
        left = std::min(left, walled[row].find_first_not_of(' '));
    std::string text;
    for (std::size_t row = top; row < bottom; ++row) {
        text += trimRightBlanks(std::string_view(walled[row]).substr(left));
        text += kLineBreak;
    }
    return text;
}

// The room list under the map: a heading, then one row per room with the
// stairs column, each cut to 26 characters, as the import writes it.
std::string roomData(const std::vector<Room> &rooms, bool stairsUp, bool stairsDown, SampleRandom &random)
{
    std::string text = "#   U/D  TYPE";
    text += kLineBreak;
    for (std::size_t i = 0; i < rooms.size(); ++i) {
        std::string number = formatPlain(static_cast<long long>(i + 1));
        number.resize(2, ' ');
        const bool up = stairsUp && i == 0;
        const bool down = stairsDown && i + 1 == rooms.size();
        std::string row = number +
                          (up     ? "  U    "
                           : down ? "  D    "
                                  : "       ") +
                          std::string(random.pick(kRoomTypes));
        text += trimRightBlanks(leftChars(row, 26));
        text += kLineBreak;
    }
    if (stairsDown) {
        const Room &r = rooms.back();
        text += "Stairs down at " + formatPlain(r.x + 1) + "," + formatPlain(r.y + 1);
        text += kLineBreak;
    }
    return text;
}

void exploreLevel(DungeonLevel &level, int number, SampleRandom &random)
{
    const int width = random.between(17, 29);
    const int height = random.between(9, 15);
    std::vector<Room> rooms(static_cast<std::size_t>(random.between(3, 6)));
    for (Room &r : rooms) {
        r.width = random.between(3, 6);
        r.height = random.between(2, 4);
        r.x = random.between(1, width - r.width - 1);
        r.y = random.between(1, height - r.height - 1);
    }
    const bool up = number > 1;
    const bool down = number < kLevelsPerDungeon;
    level.map = levelMap(rooms, width, height, up, down);
    level.roomData = roomData(rooms, up, down, random);
}

// A free sector of known land for a dungeon's entrance.
bool findEntrance(const World &world, const SampleLayout &layout, SampleRandom &random, int &x, int &y)
{
    for (int tries = 0; tries < 5000; ++tries) {
        x = random.between(1, kMapSize);
        y = random.between(1, kMapSize);
        const Sector &sector = world.sector(x, y);
        if (layout.isExplored(x, y) && sector.note.empty() && sector.terrain != kWater &&
            sector.terrain != kUnknown && !isSettlementTerrain(sector.terrain))
            return true;
    }
    return false;
}

// "DUNGEON: Black Pit.  3+ levels.": the import's note, with the blank of
// the level number's general format after ". ".
std::string dungeonNote(const std::string &name, int levels, bool onlyScouted)
{
    return "DUNGEON: " + name + ". " + formatGeneral(levels) + (onlyScouted ? " level." : "+ levels.");
}

} // namespace

void generateDungeons(World &world, const SampleLayout &layout, std::uint64_t seed)
{
    SampleRandom random = SampleRandom::stream(seed, 50);
    UniqueNames names;
    const bool full = layout.fullTables;
    const int count = full ? kMaxDungeons : random.between(16, 28);
    int low = 1, high = kMaxDungeons;
    for (int k = 0; k < count; ++k) {
        const bool explored = full || random.percent(55);
        const int slot = full ? k + 1 : explored ? high-- : low++;
        Dungeon &dungeon = world.dungeon(slot);
        dungeon.name = names.next(random, dungeonName);
        const bool onlyScouted = !explored && random.percent(30);
        dungeon.levels = static_cast<std::int16_t>(full          ? kLevelsPerDungeon
                                                   : onlyScouted ? 1
                                                   : explored    ? random.between(1, random.between(1, 10))
                                                                 : random.between(2, 6));
        if (explored)
            for (int l = 1; l <= dungeon.levels; ++l)
                exploreLevel(dungeon.level[l], l, random);
        int x = 0, y = 0;
        if ((full || !explored || random.percent(80)) && findEntrance(world, layout, random, x, y))
            world.sector(x, y).note = dungeonNote(dungeon.name, dungeon.levels, onlyScouted);
    }
}

} // namespace wayscribe::sample
