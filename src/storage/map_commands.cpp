#include "storage/map_commands.h"

#include "model/file_job.h"
#include "model/new_map.h"
#include "model/platform.h"
#include "model/program_state.h"
#include "model/text.h"
#include "model/world.h"
#include "storage/atomic_file.h"
#include "storage/map_file.h"
#include "storage/map_merge.h"
#include "storage/options_file.h"

#include <cstdint>

namespace wayscribe {

namespace {

void reportFailedLoad(Platform &platform, const MapReadResult &result)
{
    const bool partlyRead = result.error.line > 2;
    // A file without a map header is read as a map from before headers, so
    // any other file ends up here: say that first, the line only after.
    const std::string notAMap =
        result.version == 0 && result.error.line > 1 ? "The file does not look like a Wayscribe map. " : "";
    platform.message(notAMap + (partlyRead
                                    ? "The map file could not be read completely. Everything up to the "
                                      "broken line has been loaded; the rest of the map is as it was."
                                    : "The map file could not be read. The map is as it was."),
                     kProgramTitle, MessageButtons::Ok, MessageIcon::Exclamation, result.error.describe());
}

// A map the person made read-only is replaced only when they agree: that
// was their way of keeping it as it is.
bool mayReplace(Platform &platform, const std::string &target, ReadOnlyTarget &readOnly)
{
    readOnly = ReadOnlyTarget::Refuse;
    if (!isReadOnlyFile(target))
        return true;
    if (platform.message(target + " is read-only. Replace it anyway?", kProgramTitle, MessageButtons::YesNo,
                         MessageIcon::Exclamation) != Answer::Yes)
        return false;
    readOnly = ReadOnlyTarget::Replace;
    return true;
}

} // namespace

LoadResult Load_Map(World &world, ProgramState &state, Platform &platform, const std::string &name)
{
    std::string path = name;
    if (path.empty()) {
        path = platform.chooseOpenFile({"Load Map File...", kMapFileFilter, state.options.lastFile, ""});
        if (path.empty())
            return LoadResult::Cancelled;
    }
    const std::string previousName = state.document.mapFileName;
    const std::uint8_t changedBefore = state.document.mapChanged;
    state.document.mapChanged = 0;
    FileJob job(state.document, platform, "Please wait, loading map...");
    state.document.mapFileName = path;
    state.options.lastFile = folderPart(path);
    state.options.wmol = path;
    writeOptions(state, platform);

    const MapReadResult result = readMapFile(path, world, state.document.gameNumber);
    job.finish();
    if (!result.ok) {
        reportFailedLoad(platform, result);
        const bool partlyRead = result.error.line > 2;
        if (partlyRead) {
            // The model now mixes the old map with the part of the file that
            // could be read, which no file holds: keep it marked as changed,
            // and without a file, so that Save asks where to put it rather
            // than overwrite the file that failed.
            state.document.mapChanged = 1;
            state.document.mapFileName.clear();
        } else {
            state.document.mapChanged = changedBefore;
            state.document.mapFileName = previousName;
        }
        platform.redrawMap();
        return partlyRead ? LoadResult::Partial : LoadResult::Unread;
    }
    if (state.options.loadLock) {
        state.document.mapLocked = 1;
        platform.mapLockChanged();
    }
    platform.redrawMap();
    return LoadResult::Complete;
}

bool Save_Map(World &world, ProgramState &state, Platform &platform, bool chooseFile)
{
    std::string target;
    if (chooseFile) {
        target = platform.chooseSaveFile({"Save Map File As...", kMapFileFilter, "", ""});
        if (target.empty())
            return false;
        if (fileExists(target) &&
            platform.message("Are you sure you wish to over-write this file?", "Sure?", MessageButtons::YesNo,
                             MessageIcon::Question) != Answer::Yes)
            return false;
    } else
        target = state.document.mapFileName;
    ReadOnlyTarget readOnly;
    if (!mayReplace(platform, target, readOnly))
        return false;
    state.document.mapChanged = 0;
    state.document.mapFileName = target;
    state.options.wmol = target;
    FileJob job(state.document, platform, "Please wait, saving map...");
    FileError error;
    const bool ok = writeMapFile(target, world, state.document.gameNumber, error, readOnly);
    job.finish();
    if (!ok) {
        state.document.mapChanged = 1;
        platform.message("The map could not be saved. The file on disk is unchanged and the map is still "
                         "marked as changed.",
                         kProgramTitle, MessageButtons::Ok, MessageIcon::Critical, error.describe());
    }
    return ok;
}

void newMapCommand(World &world, ProgramState &state, Platform &platform)
{
    if (state.document.mapChanged == 1 &&
        platform.message("Are you sure you wish to New the map without saving?", "Sure?",
                         MessageButtons::YesNo, MessageIcon::Question) == Answer::Yes)
        state.document.mapChanged = 0;
    if (state.document.mapChanged == 0)
        NewMap(world, state, platform);
}

LoadResult loadMapCommand(World &world, ProgramState &state, Platform &platform, bool fromMenu,
                          const std::string &name)
{
    const std::uint8_t changedBefore = state.document.mapChanged;
    if (state.document.mapChanged == 1) {
        const Answer a =
            fromMenu ? platform.message("Are you sure you wish to load a new map without saving?", "Sure?",
                                        MessageButtons::YesNo, MessageIcon::Critical)
                     : platform.message("Are you sure you wish to Load a map without saving current map?",
                                        "Sure?", MessageButtons::YesNo, MessageIcon::Question);
        if (a == Answer::Yes)
            state.document.mapChanged = 0;
    }
    if (state.document.mapChanged != 0)
        return LoadResult::Cancelled;
    const LoadResult result = Load_Map(world, state, platform, name);
    // Agreeing to drop the changes was for a load that did not happen: the
    // map still holds them.
    if (result == LoadResult::Cancelled || result == LoadResult::Unread)
        state.document.mapChanged = changedBefore;
    return result;
}

bool confirmExit(World &world, ProgramState &state, Platform &platform)
{
    if (state.document.mapChanged != 1)
        return true;
    switch (platform.message("Do you wish to save the map before exiting?", "Save before exit?",
                             MessageButtons::YesNoCancel, MessageIcon::Information)) {
    case Answer::Yes:
        Save_Map(world, state, platform, true);
        return true;
    case Answer::No:
        state.document.mapChanged = 0;
        return true;
    default:
        return false;
    }
}

void mergeMapCommand(World &world, ProgramState &state, Platform &platform)
{
    const std::string path = platform.chooseOpenFile({"Merge Map File...", kMapFileFilter, "", ""});
    if (path.empty() || !contains(path, ".om1"))
        return;
    state.document.mapChanged = 1;
    FileJob job(state.document, platform, "Please wait, merging maps...");
    const MapReadResult result = mergeMapFile(path, world, state.document.gameNumber);
    if (!result.ok)
        platform.message("There was an unknown error merging the map.", kProgramTitle, MessageButtons::Ok,
                         MessageIcon::None, result.error.describe());
    job.finish();
    platform.redrawMap();
}

} // namespace wayscribe
