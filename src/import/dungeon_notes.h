#pragma once

namespace wayscribe {

struct ReportImport;

// The dungeons named by the report's prose, stored once the party's
// settlement is known: a "DUNGEON:" note at the dungeon's sector and a
// dungeon record, merged by name with what the map already has.
void storeSightedDungeons(ReportImport &im);

} // namespace wayscribe
