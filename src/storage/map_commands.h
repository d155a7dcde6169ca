#pragma once

#include "model/file_paths.h"

#include <string>

namespace wayscribe {

class World;
struct ProgramState;
class Platform;

inline constexpr const char *kMapFileFilter = "Orven Mapper Files (*.om1)|*.om1";

enum class LoadResult {
    Cancelled, // no file chosen: nothing changed
    Complete,  // the file was read to its end and is the map's file now
    Unread,    // the file could not be read at all: the map is as it was
    Partial,   // reading stopped part-way: the map mixes both, and has no file
};

// Loads a map: `name` empty asks for a file first. A broken file is
// reported and what was read stays.
LoadResult Load_Map(World &world, ProgramState &state, Platform &platform, const std::string &name);

// Saves the map; `chooseFile` asks for a file name (Save As, or Save of a
// map that has none). True when the file was written. A failed save is
// reported and leaves the map marked as changed.
bool Save_Map(World &world, ProgramState &state, Platform &platform, bool chooseFile);

// The New commands: asks before discarding a changed map, then clears it.
void newMapCommand(World &world, ProgramState &state, Platform &platform);

// The Load Map button (`fromMenu` false) and File, Open (true): the same
// load after differently worded questions about a changed map. A load that
// changed nothing leaves the map marked as changed as it was before. A map
// dropped onto the window or picked from the recent maps comes as `name`.
LoadResult loadMapCommand(World &world, ProgramState &state, Platform &platform, bool fromMenu,
                          const std::string &name = {});

// The exit question for a changed map. False when the person cancels the
// exit; otherwise the map was saved or its changes dropped as they chose.
bool confirmExit(World &world, ProgramState &state, Platform &platform);

// File, Merge Map: asks for a second map file and merges it in.
void mergeMapCommand(World &world, ProgramState &state, Platform &platform);

} // namespace wayscribe
