#pragma once

#include "storage/map_commands.h"

#include <optional>
#include <string>

namespace wayscribe {

class World;
struct ProgramState;
class Platform;

// A map with unsaved changes left behind by a run that did not end cleanly.
struct LeftBehindMap {
    std::string mapPath;      // the recovery copy
    std::string originalName; // the map's own file, empty for a map never saved
};

// The autosave's copy of a changed map, kept in one folder of the person's
// data: the map itself and a small companion naming the map's own file and
// the process that wrote it, so that a second copy of the program running
// at the same time does not take the first one's copy for a crash's.
class RecoveryStore {
public:
    explicit RecoveryStore(std::string folder);

    // Writes the copy atomically; the document itself (its file name, its
    // changed flag) is not touched. False with a reason naming the file.
    bool save(const World &world, const ProgramState &state, std::string &reason) const;

    // The copy of a run that ended without a clean exit, if there is one.
    std::optional<LeftBehindMap> leftBehind() const;

    // Moves a declined copy out of the autosave's way; it stays until the
    // next clean exit.
    void setAside() const;
    // The map was saved, replaced or left unchanged: nothing to recover.
    void discard() const;
    // A clean exit: the copy and any declined one go.
    void discardAll() const;

    const std::string &folder() const { return folder_; }

private:
    std::string file(const char *name) const { return folder_ + "/" + name; }

    std::string folder_;
};

// Loads a left-behind copy as a changed map named like the original, so that
// Save writes it where it belongs. The folders the file dialogs remember
// keep pointing at the player's own files.
LoadResult restoreLeftBehindMap(World &world, ProgramState &state, Platform &platform,
                                const LeftBehindMap &copy);

} // namespace wayscribe
