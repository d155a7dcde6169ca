#pragma once

#include <string>

namespace wayscribe {

// Where the program finds its pictures and keeps its options.
struct AppPaths {
    std::string appFolder;      // the folder of the program file
    std::string graphicsFolder; // appFolder + "/graphics", or the installed one
    std::string optionsFile;    // wayscribe.ini beside the program, or in the
                                // person's configuration folder when the
                                // program is installed or its folder cannot
                                // be written
    std::string recoveryFolder; // the autosave's copies; empty: no autosave
};

AppPaths locateAppPaths();

} // namespace wayscribe
