#pragma once

#include <string_view>

namespace wayscribe {

struct ReportImport;

bool isDungeonMapHeading(std::string_view text);

// The map and room list of the dungeon level the party stands in, stored
// at once under the dungeon's name.
void readDungeonSection(ReportImport &im);

} // namespace wayscribe
