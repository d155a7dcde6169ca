#include "dungeons/dungeon_note.h"

#include "model/change_history.h"
#include "model/program_state.h"
#include "model/text.h"
#include "model/world.h"

namespace wayscribe {

namespace {
constexpr std::string_view kDungeonPrefix = "DUNGEON:";
}

bool isDungeonNote(std::string_view note)
{
    return startsWith(note, kDungeonPrefix);
}

DungeonNote readDungeonNote(std::string_view note)
{
    DungeonNote result;
    const std::string_view rest = midChars(note, 9);
    const std::size_t stop = rest.find('.');
    result.name = std::string(trimBlanks(rest.substr(0, stop)));
    const long dot = positionOf(note, ".");
    if (dot > 0 && static_cast<long>(note.size()) - dot + 1 >= 2)
        result.levels = static_cast<int>(indexValue(midChars(note, dot + 1, 2)));
    return result;
}

int findOrCreateDungeon(World &world, const DungeonNote &note)
{
    enum class Scan { Searching, Created, Found } scan = Scan::Searching;
    int found = 0;
    for (int d = 1; d <= kMaxDungeons; ++d) {
        const Dungeon &dungeon = std::as_const(world).dungeon(d);
        if (equalsIgnoreCase(dungeon.name, note.name)) {
            // A slot taken further down goes back to being free: the name
            // was there all along.
            if (scan == Scan::Created) {
                Dungeon &created = world.dungeon(found);
                created.name.clear();
                created.levels = 0;
            }
            found = d;
            scan = Scan::Found;
        } else if (dungeon.name.empty() && scan == Scan::Searching) {
            found = d;
            scan = Scan::Created;
            Dungeon &created = world.dungeon(d);
            created.name = note.name;
            created.levels = static_cast<std::int16_t>(note.levels);
        }
    }
    return found;
}

std::optional<int> selectDungeonOfNote(World &world, Selections &selection, ChangeHistory &history, int x,
                                       int y)
{
    const std::string &note = std::as_const(world).sector(x, y).note;
    if (!isDungeonNote(note) || selection.dungeonFormOpen != 0)
        return std::nullopt;
    const DungeonNote read = readDungeonNote(note);
    int found = 0;
    history.apply("New Dungeon", [&] { found = findOrCreateDungeon(world, read); });
    selection.selDungeon = static_cast<std::int16_t>(found);
    return found;
}

} // namespace wayscribe
