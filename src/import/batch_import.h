#pragma once

#include "import/html_import.h"

#include <string>
#include <vector>

namespace wayscribe {

class World;
struct ProgramState;
class Platform;

// The reports of a folder in the order they are imported: the ".htm" files
// first, then the ".html" files, each group sorted by name. False with
// `error` when the folder cannot be listed.
bool reportFilesInFolder(const std::string &folder, std::vector<std::string> &files, std::string &error);

struct BatchOutcome {
    bool listed = false; // the folder could be listed
    int files = 0;
    int imported = 0;
    int stopped = 0; // stopped inside; what was read stays
    int notOpened = 0;
};

// Imports every report of `folder` as File, Batch Import does once the
// folder is chosen: each with the single import's reading rules, without
// the message about another game's report and without moving the view;
// one redraw at the end. Does nothing while another file job runs.
BatchOutcome importHtmlFolder(World &world, ProgramState &state, Platform &platform,
                              const std::string &folder, const OptionsWriter &saveOptions);

// Imports the given reports in the given order, as a batch of those files
// (the reports dropped onto the window). The folder of the first one is
// remembered as the folder of the last import.
BatchOutcome importHtmlFiles(World &world, ProgramState &state, Platform &platform,
                             const std::vector<std::string> &files, const OptionsWriter &saveOptions);

// File, Batch Import: the person picks any file in the folder of reports.
void batchImportHtml(World &world, ProgramState &state, Platform &platform, const OptionsWriter &saveOptions);

} // namespace wayscribe
