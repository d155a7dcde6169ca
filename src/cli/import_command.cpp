// import and batch: the HTML turn import from the command line.
//
// Both behave as the desktop program's File, Import HTML and File, Batch
// Import: a report that stops part-way (cut off, a number too large for its
// field) is reported on standard error with its file and line, keeps what
// was read before, and the map is still written (exit 0), just as the
// desktop program keeps it. A report or folder that cannot be read at all,
// or an unreadable MAP or INI, fails the command (exit 1) and OUT is not
// written.
#include "cli/cli_platform.h"
#include "cli/command_registry.h"

#include "import/batch_import.h"
#include "import/html_import.h"
#include "model/file_paths.h"
#include "model/program_state.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "storage/options_file.h"

#include <filesystem>
#include <memory>

namespace wayscribe::cli {

namespace {

const std::vector<std::string> kImportOptions{"--map", "--options", "--answer", "--out"};

// The model, program state and platform of one command run.
struct ImportRun {
    std::unique_ptr<World> world = std::make_unique<World>();
    ProgramState state;
    Answer answer = Answer::Yes;
};

// Reads the options shared by both commands. Returns kOk or the exit status.
int prepare(const ParsedArgs &p, ImportRun &run, std::ostream &err)
{
    if (const std::string *answer = p.option("--answer")) {
        if (*answer == "yes")
            run.answer = Answer::Yes;
        else if (*answer == "no")
            run.answer = Answer::No;
        else {
            err << "wayscribe-cli: --answer takes yes or no\n";
            return kUsageError;
        }
    }
    // Without an options file every part of the report is imported.
    if (const std::string *ini = p.option("--options")) {
        if (!fileExists(*ini)) {
            err << "wayscribe-cli: cannot read options file " << *ini << '\n';
            return kInputError;
        }
        if (const std::optional<FileError> error = readOptionsFile(*ini, run.state)) {
            err << "wayscribe-cli: cannot read options file " << error->describe() << '\n';
            return kInputError;
        }
    }
    if (const std::string *map = p.option("--map")) {
        if (!loadMap(*map, *run.world, run.state.document.gameNumber, err))
            return kInputError;
    }
    return kOk;
}

int save(const ImportRun &run, const std::string &path, std::ostream &err)
{
    FileError error;
    if (writeMapFile(path, *run.world, run.state.document.gameNumber, error))
        return kOk;
    err << "wayscribe-cli: cannot save map " << error.describe() << '\n';
    return kInputError;
}

} // namespace

static int runImport(const Args &args, std::ostream &, std::ostream &err)
{
    ParsedArgs p;
    if (!parseArgs(args, kImportOptions, p, err) || p.positional.empty() || !p.option("--out"))
        return kUsageError;
    ImportRun run;
    if (const int status = prepare(p, run, err); status != kOk)
        return status;
    CliPlatform platform(err, run.answer);
    for (const std::string &report : p.positional)
        if (importHtmlFile(*run.world, run.state, platform, report, writeOptions) == ReportResult::NotOpened)
            return kInputError;
    return save(run, *p.option("--out"), err);
}

static int runBatch(const Args &args, std::ostream &, std::ostream &err)
{
    ParsedArgs p;
    if (!parseArgs(args, kImportOptions, p, err) || p.positional.size() != 1 || !p.option("--out"))
        return kUsageError;
    const std::string &folder = p.positional[0];
    std::error_code ec;
    if (!std::filesystem::is_directory(folder, ec)) {
        err << "wayscribe-cli: " << folder << ": not a folder\n";
        return kInputError;
    }
    ImportRun run;
    if (const int status = prepare(p, run, err); status != kOk)
        return status;
    CliPlatform platform(err, run.answer);
    const BatchOutcome outcome = importHtmlFolder(*run.world, run.state, platform, folder, writeOptions);
    if (!outcome.listed || outcome.notOpened > 0)
        return kInputError;
    return save(run, *p.option("--out"), err);
}

const CommandRegistration
    importCommand("import", "import [--map MAP] [--options INI] [--answer yes|no] --out OUT REPORT...",
                  runImport);
const CommandRegistration
    batchCommand("batch", "batch [--map MAP] [--options INI] [--answer yes|no] --out OUT FOLDER", runBatch);

} // namespace wayscribe::cli
