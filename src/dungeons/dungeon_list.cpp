#include "dungeons/dungeon_list.h"

#include "model/text.h"
#include "model/world.h"

namespace wayscribe {

int mappedLevels(const Dungeon &dungeon)
{
    int mapped = 0;
    for (int l = 1; l <= kLevelsPerDungeon; ++l)
        if (!trimBlanks(dungeon.level[l].map).empty())
            ++mapped;
    return mapped;
}

ReportTable dungeonListTable(const World &world)
{
    return ReportTable({{"Dungeon Name", 2300, ColumnAlignment::Left, SortKind::Text},
                        {"Known Levels", 1280, ColumnAlignment::Right, SortKind::Number},
                        {"Mapped Levels", 1320, ColumnAlignment::Right, SortKind::Number},
                        {"Dungeon #", 1200, ColumnAlignment::Right, SortKind::Number}},
                       [&world](std::uint32_t d, int column, std::string &out) {
                           const Dungeon &dungeon = world.dungeon(static_cast<int>(d));
                           switch (column) {
                           case 1:
                               out += dungeon.name;
                               break;
                           case 2:
                               out += formatPlain(dungeon.levels);
                               break;
                           case 3:
                               out += formatPlain(mappedLevels(dungeon));
                               break;
                           default:
                               out += formatPlain(d);
                           }
                       });
}

bool fillDungeonList(ReportTable &table, const World &world)
{
    table.clear();
    for (int d = 1; d <= kMaxDungeons; ++d)
        if (!world.dungeon(d).name.empty())
            table.addRow(static_cast<std::uint32_t>(d));
    return table.rowCount() > 0;
}

std::string dungeonRemovalQuestion(const World &world, int d)
{
    return "Really remove dungeon '" + world.dungeon(d).name + "' ?";
}

void removeDungeon(World &world, int d)
{
    Dungeon &dungeon = world.dungeon(d);
    dungeon.name.clear();
    dungeon.levels = 0;
    for (int l = 1; l <= kLevelsPerDungeon; ++l)
        dungeon.level[l] = DungeonLevel{};
}

} // namespace wayscribe
