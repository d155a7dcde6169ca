#include "storage/questor_import.h"

#include "model/file_job.h"
#include "model/file_paths.h"
#include "model/platform.h"
#include "model/program_state.h"
#include "storage/questor_files.h"

#include <cctype>

namespace wayscribe {

std::string QuestorError::describe() const
{
    if (!place.empty())
        return path + ", " + place + ": " + reason;
    return path + ": " + reason;
}

std::string questorNamesPath(const std::string &mapPath)
{
    const std::string stem = mapPath.substr(0, mapPath.size() < 3 ? 0 : mapPath.size() - 3);
    const std::string extension = mapPath.substr(stem.size());
    // Folders from a case-blind system often hold SAMPLE.MP1 with SAMPLE.MP2:
    // the names file's extension follows the map file's case, letter by
    // letter, and the other case is tried when that file is not there.
    std::string sameCase = "mp2";
    for (std::size_t i = 0; i < 2 && i < extension.size(); ++i)
        if (std::isupper(static_cast<unsigned char>(extension[i])))
            sameCase[i] = static_cast<char>(std::toupper(static_cast<unsigned char>(sameCase[i])));
    if (fileExists(stem + sameCase))
        return stem + sameCase;
    const std::string otherCase = sameCase == "mp2" ? "MP2" : "mp2";
    return fileExists(stem + otherCase) ? stem + otherCase : stem + sameCase;
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
