#include "import/dungeon_notes.h"

#include "import/report_state.h"
#include "model/text.h"
#include "model/world.h"

#include <algorithm>
#include <cstdint>

namespace wayscribe {

namespace {

std::string dungeonNote(const std::string &name, long levels, const char *ending)
{
    return "DUNGEON: " + name + ". " + formatGeneral(static_cast<double>(levels)) + ending;
}

// The dungeon table: the first free slot is claimed at once, unless a slot
// of the same name turns up later, which then takes the dungeon and frees
// the claim again.
void storeDungeonRecord(World &world, const std::string &name, long levels, bool levelsRaised)
{
    // The record keeps the count the report gave, as the note does; only the
    // level texts are limited to ten.
    const auto recordLevels = static_cast<std::int16_t>(std::clamp<long>(levels, INT16_MIN, INT16_MAX));
    int claimed = 0;
    bool matched = false;
    for (int d = 1; d <= kMaxDungeons; ++d) {
        Dungeon &dungeon = world.dungeon(d);
        if (dungeon.name.empty()) {
            if (claimed == 0 && !matched) {
                claimed = d;
                dungeon.name = name;
                dungeon.levels = recordLevels;
            }
        } else if (d != claimed && equalsIgnoreCase(dungeon.name, name)) {
            if (claimed != 0) {
                world.dungeon(claimed).name.clear();
                world.dungeon(claimed).levels = 0;
                claimed = 0;
            }
            matched = true;
            if (levelsRaised)
                dungeon.levels = recordLevels;
        }
    }
}

void storeSighting(ReportImport &im, const DungeonSighting &sighting, const char *ending)
{
    // A paragraph from which no name could be cut names no dungeon.
    if (!sighting.seen || trimBlanks(sighting.name).empty())
        return;
    const long x = im.report.party.x + sighting.offsetX;
    const long y = im.report.party.y + sighting.offsetY;
    // A dungeon beyond the world's edge has no sector to carry its note.
    if (!inSectorTable({x, y}))
        return;
    std::string &note = im.world.sector(static_cast<int>(x), static_cast<int>(y)).note;
    if (note.empty())
        note = dungeonNote(sighting.name, sighting.levels, ending);
    bool levelsRaised = false;
    const long dotAt = positionOf(note, ".");
    if (startsWith(note, "DUNGEON:") && dotAt != 0 &&
        static_cast<double>(sighting.levels) > textValue(midChars(note, dotAt + 1, 2))) {
        note = dungeonNote(sighting.name, sighting.levels, "+ levels.");
        levelsRaised = true;
    }
    // The record is named after the note, which may be an older one.
    // A note may hold line breaks; a dungeon's name holds one line.
    const std::string name(trimBlanks(oneLine(midChars(note, 9, positionOf(note, ".") - 9))));
    if (name.empty())
        return;
    storeDungeonRecord(im.world, name, sighting.levels, levelsRaised);
}

} // namespace

void storeSightedDungeons(ReportImport &im)
{
    storeSighting(im, im.report.located, "+ levels.");
    storeSighting(im, im.report.scouted, " level.");
}

} // namespace wayscribe
