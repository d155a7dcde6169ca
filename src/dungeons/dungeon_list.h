#pragma once

#include "settlements/report_table.h"

#include <string>

namespace wayscribe {

class World;
struct Dungeon;

// Levels 1..10 that have a map text (blanks only do not count), whatever
// the known-level count says.
int mappedLevels(const Dungeon &dungeon);

// The dungeon list's columns: "Dungeon Name", "Known Levels", "Mapped
// Levels", "Dungeon #", the name sorting as text and the rest as numbers.
// Each row is a dungeon number; its cells are read from the world when shown.
ReportTable dungeonListTable(const World &world);

// List_Update_All: every dungeon in use, in number order. Returns whether
// there is a row.
bool fillDungeonList(ReportTable &table, const World &world);

// The question the list asks before removing dungeon d.
std::string dungeonRemovalQuestion(const World &world, int d);

// Frees dungeon d: no name, no known levels, no maps and no room data on
// any level. The sector note of its entrance stays.
void removeDungeon(World &world, int d);

} // namespace wayscribe
