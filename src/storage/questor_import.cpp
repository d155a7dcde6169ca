#include "storage/questor_import.h"

#include "model/file_job.h"
#include "model/platform.h"
#include "model/program_state.h"
#include "storage/questor_files.h"

namespace wayscribe {

std::string QuestorError::describe() const
{
    if (!place.empty())
        return path + ", " + place + ": " + reason;
    return path + ": " + reason;
}

std::string questorNamesPath(const std::string &mapPath)
{
    return mapPath.substr(0, mapPath.size() < 3 ? 0 : mapPath.size() - 3) + "mp2";
}

QuestorImportResult readQuestorMap(const std::string &mapPath, World &world, ProgramState &state,
                                   Platform &platform)
{
    QuestorImportResult result;
    QuestorTokenCounts counts;
    result.ok = readQuestorMapFile(mapPath, world, platform, counts, result.modelChanged, result.error) &&
                readQuestorNamesFile(questorNamesPath(mapPath), world, state, platform, counts, result.error);
    return result;
}

void import_questor(World &world, ProgramState &state, Platform &platform)
{
    state.document.mapFileName.clear();
    const std::string path = platform.chooseOpenFile({kQuestorDialogTitle, kQuestorFileFilter, "", ""});
    if (path.empty())
        return;
    state.document.mapChanged = 0;
    FileJob job(state.document, platform, kQuestorStatus);
    const QuestorImportResult result = readQuestorMap(path, world, state, platform);
    job.finish();
    if (!result.ok) {
        if (result.modelChanged) {
            // The model now mixes the map that was there with part of the
            // import, which no file holds: keep it from being discarded
            // without a question.
            state.document.mapChanged = 1;
            platform.message(
                "The QuestOR map could not be imported completely. Everything before the error has "
                "been imported; the rest of the map is as it was.",
                kProgramTitle, MessageButtons::Ok, MessageIcon::Exclamation, result.error.describe());
        } else {
            platform.message("The QuestOR map could not be imported. The map is as it was.", kProgramTitle,
                             MessageButtons::Ok, MessageIcon::Exclamation, result.error.describe());
        }
    }
    platform.redrawMap();
}

void importQuestorCommand(World &world, ProgramState &state, Platform &platform)
{
    if (state.document.fileBusy != 0)
        return;
    if (state.document.mapChanged == 1 &&
        platform.message("Are you sure you wish to Import a QuestOR map without saving?", "Sure?",
                         MessageButtons::YesNo, MessageIcon::Question) == Answer::Yes)
        state.document.mapChanged = 0;
    if (state.document.mapChanged == 0)
        import_questor(world, state, platform);
}

} // namespace wayscribe
