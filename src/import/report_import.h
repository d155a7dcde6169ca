#pragma once

#include "import/report_state.h"
#include "model/file_error.h"

#include <string>

namespace wayscribe {

class World;
struct ProgramState;
class Platform;

enum class ReportResult {
    Imported,  // read to its end (also a report of another game, skipped after its "Party#" line)
    Stopped,   // stopped inside the report; what was read before stays
    NotOpened, // nothing read
};

struct ReportOutcome {
    ReportResult result = ReportResult::NotOpened;
    bool mapSeen = false;
    bool aborted = false;
    long mapStartX = 0;
    long mapStartY = 0;
    FileError error;
};

// The one reader of a turn report, for the single and the batch import:
// reads `path` from top to bottom into the model. A report that cannot be
// opened or stops early is reported to the person, naming file and line.
ReportOutcome readReport(World &world, ProgramState &state, Platform &platform, const std::string &path,
                         const ImportSettings &settings);

} // namespace wayscribe
