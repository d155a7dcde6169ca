#include "import/dungeon_section.h"

#include "import/report_reader.h"
#include "import/report_state.h"
#include "model/text.h"
#include "model/world.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace wayscribe {

namespace {

constexpr const char *kSection = "the dungeon map";

void readHeading(ReportImport &im)
{
    ReportState &r = im.report;
    std::string line;
    do {
        im.in.requireLine(line, kSection);
        if (const long at = positionOf(line, "exploring"))
            r.dungeonName = std::string(midChars(line, 22, static_cast<long>(line.size()) - at - 14));
        if (positionOf(line, "location"))
            r.dungeonLevel = im.in.wholeNumber(midChars(line, positionOf(line, "level") + 6),
                                               std::numeric_limits<std::int16_t>::min(),
                                               std::numeric_limits<std::int16_t>::max(), "dungeon level");
    } while (line != "<FONT SIZE=-5>");
}

void readLevelMap(ReportImport &im)
{
    std::string &map = im.report.levelMap;
    std::string line;
    for (im.in.requireLine(line, kSection); line != "</FONT>"; im.in.requireLine(line, kSection)) {
        map += line;
        map += "\r\n";
    }
    map = std::string(trimRightBlanks(map));
}

// The room list's "U/D" column is realigned under its heading.
std::string alignStairs(std::string field)
{
    if (contains(field, " D "))
        field = std::string(leftChars(field, 2)) + "  D    " + std::string(midChars(field, 10));
    if (contains(field, " U "))
        field = std::string(leftChars(field, 2)) + "  U    " + std::string(midChars(field, 10));
    return field;
}

void readRoomData(ReportImport &im)
{
    std::string &rooms = im.report.roomData;
    std::string field;
    for (int skip = 0; skip < 3; ++skip)
        im.in.requireField(field, kSection);
    for (im.in.requireField(field, kSection); !startsWith(field, "<center><table><tr><td align=");
         im.in.requireField(field, kSection)) {
        field = alignStairs(std::move(field));
        if (startsWith(field, "NO.")) {
            rooms = "#   U/D  TYPE\r\n";
        } else {
            const std::string_view row = leftChars(field, 26);
            rooms += startsWith(field, "Stairs") ? row : trimRightBlanks(row);
            rooms += "\r\n";
        }
    }
    rooms = std::string(trimRightBlanks(rooms));
}

// Scanning down from the top, the lowest slot of the same name wins; a new
// dungeon takes the highest free slot. 0 when the table is full.
int dungeonSlot(const World &world, std::string_view name)
{
    int match = 0;
    int free = 0;
    for (int d = kMaxDungeons; d >= 1; --d) {
        const std::string &stored = world.dungeon(d).name;
        if (equalsIgnoreCase(stored, name))
            match = d;
        else if (stored.empty() && free == 0)
            free = d;
    }
    return match != 0 ? match : free;
}

void storeLevel(ReportImport &im)
{
    const ReportState &r = im.report;
    // Only levels the table has room for, of a dungeon with a name.
    const std::string_view name = trimBlanks(r.dungeonName);
    if (name.empty() || !isLevelIndex(r.dungeonLevel))
        return;
    const int slot = dungeonSlot(im.world, name);
    if (slot == 0)
        return;
    Dungeon &dungeon = im.world.dungeon(slot);
    const bool isNew = dungeon.name.empty();
    const auto level = static_cast<std::int16_t>(r.dungeonLevel);
    dungeon.name = r.dungeonName;
    dungeon.level[level].map = r.levelMap;
    dungeon.level[level].roomData = r.roomData;
    dungeon.levels = isNew ? level : std::max(dungeon.levels, level);
}

} // namespace

bool isDungeonMapHeading(std::string_view text)
{
    return contains(text, "DUNGEON MAP");
}

void readDungeonSection(ReportImport &im)
{
    im.report.specialSectionEntered = true;
    readHeading(im);
    readLevelMap(im);
    readRoomData(im);
    storeLevel(im);
}

} // namespace wayscribe
