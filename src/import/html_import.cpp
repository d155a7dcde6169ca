#include "import/html_import.h"

#include "model/file_job.h"
#include "model/file_paths.h"
#include "model/platform.h"
#include "model/program_state.h"
#include "view/view_navigation.h"

#include <algorithm>

namespace wayscribe {

namespace {

// Brings the imported map into sight: its start a little left of and above
// the middle of the view, kept inside the world.
void showImportedMap(ViewState &view, Platform &platform, long startX, long startY)
{
    view.viewLeft = clampedViewOrigin(std::max(1L, startX - view.viewCols / 2 + 5), view.viewCols);
    view.viewTop = clampedViewOrigin(std::max(1L, startY - view.viewRows / 2 + 5), view.viewRows);
    platform.redrawMap();
}

} // namespace

ReportResult importHtmlFile(World &world, ProgramState &state, Platform &platform, const std::string &path,
                            const OptionsWriter &saveOptions)
{
    if (state.document.fileBusy)
        return ReportResult::NotOpened;
    state.document.mapChanged = 1;
    FileJob job(state.document, platform, "Please wait, importing HTML turn...",
                FileJobEnd::StatusThenCursor);
    state.options.lastImp = folderPart(path);
    saveOptions(state, platform);

    const ReportOutcome outcome = readReport(world, state, platform, path, ImportSettings{false});

    job.finish();
    if (outcome.result == ReportResult::Imported && !outcome.aborted && outcome.mapSeen)
        showImportedMap(state.view, platform, outcome.mapStartX, outcome.mapStartY);
    else if (outcome.result == ReportResult::Stopped)
        platform.redrawMap(); // show what was read before the report stopped, where the view is
    return outcome.result;
}

void Import_HTML(World &world, ProgramState &state, Platform &platform, const OptionsWriter &saveOptions)
{
    if (state.document.fileBusy)
        return;
    const std::string path =
        platform.chooseOpenFile({"Import HTML Turn...", kHtmlFileFilter, state.options.lastImp, ""});
    if (path.empty())
        return;
    importHtmlFile(world, state, platform, path, saveOptions);
}

} // namespace wayscribe
