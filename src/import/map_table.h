#pragma once

#include <string_view>

namespace wayscribe {

struct ReportImport;

bool isMapInfoLine(std::string_view text);

// The wilderness map around the party: one terrain per cell picture, and
// the party's position when it stands on a settlement.
void readMapTable(ReportImport &im, std::string_view infoLine);

// The terrain a cell's picture name stands for, with or without the party
// on it; 0 for a name that is no terrain.
int cellTerrain(std::string_view name);

} // namespace wayscribe
