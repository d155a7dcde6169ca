#pragma once

#include <string>

namespace wayscribe {

struct GraphicsFolder {
    std::string path;
    // The pictures lie beside the program, as in a build or an unpacked
    // folder of its own, rather than in the data folder of an installation.
    bool besideProgram = true;
};

// Where the program in programFolder finds its pictures: its own "graphics"
// folder, else the data folder of the installation it sits in, else the one of
// the prefix it was built for. When none exists, the folder beside the
// program, so that the missing pictures are reported where a build has them.
GraphicsFolder findGraphicsFolder(const std::string &programFolder);

} // namespace wayscribe
