#pragma once

#include <string>

namespace wayscribe {

class World;
struct ProgramState;
class Platform;

// The open dialog names no title of the format's own; ours follows the map
// file's dialogs.
inline constexpr const char *kQuestorDialogTitle = "Import QuestOR Map...";
inline constexpr const char *kQuestorFileFilter = "QuestOR map files (*.mp1)|*.mp1";
inline constexpr const char *kQuestorStatus = "Please wait, importing Questor map... (May take some time...)";
inline constexpr const char *kQuestorOver160Warning =
    "Warning! Import found a settlement with a number over 160.\r\n"
    "If more than 1 of these is found, then 1 settlement's info will over-write another's!";

// Where a QuestOR import had to stop, for the person to read.
struct QuestorError {
    std::string path;
    std::string place; // "byte 1234" or "line 7"; empty when the file could not be read at all
    std::string reason;

    // "<path>, <place>: <reason>" or "<path>: <reason>"
    std::string describe() const;
};

struct QuestorImportResult {
    bool ok = true;
    // False only when the import stopped before it wrote anything.
    bool modelChanged = false;
    QuestorError error;
};

// The names file that belongs to a QuestOR map file: the same name with its
// last three characters replaced by "mp2", in the case of the map file's
// extension (SAMPLE.MP1 has SAMPLE.MP2), or in the other case when only
// that file exists.
std::string questorNamesPath(const std::string &mapPath);

// Reads a QuestOR map (the .mp1 file and the .mp2 file beside it) into the
// model without clearing it first: terrain and notes of every sector are
// rewritten, settlements, shops and items only where the files name them.
// Stops at the first read error or index outside the tables; what was read
// before it stays. Settlement numbers over 160 are warned about through the
// platform. Leaves the busy flag, status line and cursor to the caller.
QuestorImportResult readQuestorMap(const std::string &mapPath, World &world, ProgramState &state,
                                   Platform &platform);

// Asks for a QuestOR map file and imports it; the map has no file name
// afterwards, so the next Save asks for one.
void import_questor(World &world, ProgramState &state, Platform &platform);

// File, Import QuestOR: asks before discarding a changed map.
void importQuestorCommand(World &world, ProgramState &state, Platform &platform);

} // namespace wayscribe
