#pragma once

#include "import/report_import.h"

#include <functional>
#include <string>

namespace wayscribe {

class World;
struct ProgramState;
class Platform;

inline constexpr const char *kHtmlFileFilter = "HTML File (*.html)|*.htm*";

// How an import keeps the options once it has noted the report's folder in
// them: the desktop program writes its options file, a script may keep them
// in memory.
using OptionsWriter = std::function<bool(const ProgramState &state, Platform &platform)>;

// File, Import HTML: asks for a report and imports it.
void Import_HTML(World &world, ProgramState &state, Platform &platform, const OptionsWriter &saveOptions);

// Imports a chosen report as File, Import HTML does: status line, busy
// flag, the report's folder remembered in the options, and the view moved
// onto the imported map. Does nothing while another file job runs.
ReportResult importHtmlFile(World &world, ProgramState &state, Platform &platform, const std::string &path,
                            const OptionsWriter &saveOptions);

} // namespace wayscribe
