#include "import/html_import.h"

#include "model/platform.h"
#include "model/program_state.h"
#include "model/world.h"
#include "storage/map_commands.h"
#include "storage/options_file.h"
#include "view/view_navigation.h"

#include <algorithm>

namespace wayscribe {

namespace {

// Brings the imported map into sight: its start a little left of and above
// the middle of the view, kept inside the world.
void showImportedMap(ProgramState &state, Platform &platform, long startX, long startY)
{
    const long left = std::max(1L, startX - state.view.viewCols / 2 + 5);
    const long top = std::max(1L, startY - state.view.viewRows / 2 + 5);
    state.view.viewLeft = static_cast<std::int16_t>(std::min<long>(left, kMapSize));
    state.view.viewTop = static_cast<std::int16_t>(std::min<long>(top, kMapSize));
    clampView(state);
    platform.redrawMap();
}

} // namespace

ReportResult importHtmlFile(World &world, ProgramState &state, Platform &platform, const std::string &path)
{
    if (state.document.fileBusy)
        return ReportResult::NotOpened;
    state.document.mapChanged = 1;
    platform.setStatus("Please wait, importing HTML turn...");
    platform.setWaitCursor(true);
    state.document.fileBusy = 1;
    state.options.lastImp = folderPart(path);
    writeOptions(state, platform);

    const ReportOutcome outcome = readReport(world, state, platform, path, ImportSettings{false});

    platform.setStatus("");
    platform.setWaitCursor(false);
    state.document.fileBusy = 0;
    if (outcome.result == ReportResult::Imported && !outcome.aborted && outcome.mapSeen)
        showImportedMap(state, platform, outcome.mapStartX, outcome.mapStartY);
    else if (outcome.result == ReportResult::Stopped)
        platform.redrawMap(); // show what was read before the report stopped, where the view is
    return outcome.result;
}

void Import_HTML(World &world, ProgramState &state, Platform &platform)
{
    if (state.document.fileBusy)
        return;
    const std::string path =
        platform.chooseOpenFile({"Import HTML Turn...", kHtmlFileFilter, state.options.lastImp, ""});
    if (path.empty())
        return;
    importHtmlFile(world, state, platform, path);
}

} // namespace wayscribe
