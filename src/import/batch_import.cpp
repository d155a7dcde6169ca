#include "import/batch_import.h"

#include "import/report_import.h"
#include "model/file_job.h"
#include "model/file_paths.h"
#include "model/platform.h"
#include "model/program_state.h"
#include "model/text.h"

#include <algorithm>
#include <filesystem>

namespace wayscribe {

namespace {

constexpr const char *kBatchStatus = "Please wait, batch importing HTML turns...";

// Extensions match exactly, case included, so that a folder is read the
// same on every system; ".htm" does not take in ".html".
bool hasExtension(const std::string &name, std::string_view extension)
{
    return name.size() >= extension.size() &&
           std::string_view(name).substr(name.size() - extension.size()) == extension;
}

std::string withSeparator(std::string folder)
{
    if (!folder.empty() && folder.back() != '/' && folder.back() != '\\')
        folder += '/';
    return folder;
}

} // namespace

bool reportFilesInFolder(const std::string &folder, std::vector<std::string> &files, std::string &error)
{
    namespace fs = std::filesystem;
    std::vector<std::string> names;
    std::error_code ec;
    for (fs::directory_iterator it(folder.empty() ? "." : folder, ec), end; !ec && it != end;
         it.increment(ec)) {
        std::error_code typeError;
        if (it->is_regular_file(typeError))
            names.push_back(it->path().filename().string());
    }
    if (ec) {
        error = folder + ": " + ec.message();
        return false;
    }
    std::sort(names.begin(), names.end());
    files.clear();
    for (std::string_view extension : {".htm", ".html"})
        for (const std::string &name : names)
            if (hasExtension(name, extension))
                files.push_back(withSeparator(folder) + name);
    return true;
}

namespace {

// The batch's reading: each report with the single import's rules, without
// the message about another game's report and without moving the view; a
// report that stops or cannot be opened has been reported and the others
// are still imported.
void importEach(World &world, ProgramState &state, Platform &platform, const std::vector<std::string> &files,
                BatchOutcome &outcome)
{
    outcome.files = static_cast<int>(files.size());
    for (std::size_t k = 0; k < files.size(); ++k) {
        const std::string name = files[k].substr(folderPart(files[k]).size());
        platform.setStatus(std::string(kBatchStatus) + " file " + formatPlain(static_cast<long long>(k + 1)) +
                           " of " + formatPlain(outcome.files) + ", " + name);
        switch (readReport(world, state, platform, files[k], ImportSettings{true}).result) {
        case ReportResult::Imported:
            ++outcome.imported;
            break;
        case ReportResult::Stopped:
            ++outcome.stopped;
            break;
        case ReportResult::NotOpened:
            ++outcome.notOpened;
            break;
        }
    }
}

} // namespace

BatchOutcome importHtmlFolder(World &world, ProgramState &state, Platform &platform,
                              const std::string &folder, const OptionsWriter &saveOptions)
{
    BatchOutcome outcome;
    if (state.document.fileBusy)
        return outcome;
    state.document.mapChanged = 1;
    FileJob job(state.document, platform, kBatchStatus);
    state.options.lastImp = withSeparator(folder);
    saveOptions(state, platform);

    std::vector<std::string> files;
    std::string error;
    outcome.listed = reportFilesInFolder(folder, files, error);
    if (!outcome.listed)
        platform.message("The folder could not be read.", kProgramTitle, MessageButtons::Ok,
                         MessageIcon::Exclamation, error);
    importEach(world, state, platform, files, outcome);

    job.finish();
    platform.redrawMap();
    return outcome;
}

BatchOutcome importHtmlFiles(World &world, ProgramState &state, Platform &platform,
                             const std::vector<std::string> &files, const OptionsWriter &saveOptions)
{
    BatchOutcome outcome;
    if (state.document.fileBusy || files.empty())
        return outcome;
    state.document.mapChanged = 1;
    FileJob job(state.document, platform, kBatchStatus);
    state.options.lastImp = folderPart(files.front());
    saveOptions(state, platform);
    outcome.listed = true;
    importEach(world, state, platform, files, outcome);
    job.finish();
    platform.redrawMap();
    return outcome;
}

void batchImportHtml(World &world, ProgramState &state, Platform &platform, const OptionsWriter &saveOptions)
{
    if (state.document.fileBusy)
        return;
    const std::string path = platform.chooseOpenFile(
        {"Select folder with HTML turns...", kHtmlFileFilter, state.options.lastImp, ""});
    if (path.empty())
        return;
    importHtmlFolder(world, state, platform, folderPart(path), saveOptions);
}

} // namespace wayscribe
