#include "dungeons/dungeon_sheet.h"

#include "model/change_history.h"
#include "model/program_state.h"
#include "model/text.h"
#include "model/world.h"

#include <optional>

namespace wayscribe {

namespace {

// A typed level count or level number as a whole number, when its value
// lies in 0 < v < 11 and rounds to a level that exists. A value such as
// 10.7 passes the test but rounds past the last level: it is ignored, as
// the tables have no level 11.
std::optional<int> typedLevelNumber(std::string_view typed, int lowest)
{
    const double v = textValue(typed);
    if (!(v > 0 && v < kLevelsPerDungeon + 1))
        return std::nullopt;
    const int level = static_cast<int>(roundHalfEven(v));
    if (level < lowest || level > kLevelsPerDungeon)
        return std::nullopt;
    return level;
}

} // namespace

EntrancePosition dungeonPosition(const World &world, std::string_view name)
{
    EntrancePosition found;
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            const std::string &note = world.sector(x, y).note;
            if (!note.empty() && contains(note, name))
                found = {x, y};
        }
    return found;
}

DungeonSheet::DungeonSheet(World &world, Selections &selection, ChangeHistory &history)
    : world_(world), selection_(selection), history_(history), dungeon_(selection.selDungeon)
{
    selection_.dungeonFormOpen = 1;
    const Dungeon &dungeon = std::as_const(world_).dungeon(dungeon_);
    for (int l = 1; l <= kLevelsPerDungeon; ++l)
        if (!trimBlanks(dungeon.level[l].map).empty())
            level_ = l;
    position_ = dungeonPosition(world_, dungeon.name);
}

const std::string &DungeonSheet::name() const
{
    return std::as_const(world_).dungeon(dungeon_).name;
}

int DungeonSheet::knownLevels() const
{
    return std::as_const(world_).dungeon(dungeon_).levels;
}

const std::string &DungeonSheet::levelMap() const
{
    return std::as_const(world_).dungeon(dungeon_).level[level_].map;
}

const std::string &DungeonSheet::roomData() const
{
    return std::as_const(world_).dungeon(dungeon_).level[level_].roomData;
}

void DungeonSheet::storeRoomData(const std::string &roomText)
{
    history_.apply("Dungeon Room Data", [&] { world_.dungeon(dungeon_).level[level_].roomData = roomText; });
}

void DungeonSheet::showLevel(int level, const std::string &roomText)
{
    storeRoomData(roomText);
    level_ = level;
}

bool DungeonSheet::levelDown(const std::string &roomText)
{
    // A known-level count above the last level the tables hold stops there.
    if (level_ >= knownLevels() || level_ >= kLevelsPerDungeon)
        return false;
    showLevel(level_ + 1, roomText);
    return true;
}

bool DungeonSheet::levelUp(const std::string &roomText)
{
    if (level_ <= 1)
        return false;
    showLevel(level_ - 1, roomText);
    return true;
}

bool DungeonSheet::typeLevel(std::string_view typed, const std::string &roomText)
{
    const std::optional<int> level = typedLevelNumber(typed, 1);
    if (!level || textValue(typed) == level_)
        return false;
    showLevel(*level, roomText);
    return true;
}

void DungeonSheet::typeKnownLevels(std::string_view typed)
{
    if (const std::optional<int> levels = typedLevelNumber(typed, 0))
        history_.apply("Dungeon Levels",
                       [&] { world_.dungeon(dungeon_).levels = static_cast<std::int16_t>(*levels); });
}

void DungeonSheet::close(std::string_view levelsText, const std::string &roomText)
{
    const double v = textValue(levelsText);
    history_.apply("Dungeon", [&] {
        Dungeon &dungeon = world_.dungeon(dungeon_);
        if (v >= 0 && v <= kLevelsPerDungeon)
            dungeon.levels = static_cast<std::int16_t>(roundHalfEven(v));
        dungeon.level[level_].roomData = roomText;
    });
    selection_.dungeonFormOpen = 0;
}

} // namespace wayscribe
