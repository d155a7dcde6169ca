#pragma once

#include "import/report_import.h"
#include "model/program_state.h"
#include "model/world.h"
#include "storage/options_file.h"
#include "support/report_writer.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace wayscribe::test {

inline std::string reportPath(const std::string &name)
{
    return std::string(WAYSCRIBE_TEST_DATA) + "/reports/" + name;
}

// A fresh world and a view of 40 x 30 sectors for each test.
class ImportTest : public ::testing::Test {
protected:
    ImportTest()
    {
        state.view.viewCols = 40;
        state.view.viewRows = 30;
    }

    ReportOutcome read(const std::string &path, bool batch = false)
    {
        return readReport(*world, state, platform, path, ImportSettings{batch});
    }
    ReportOutcome readData(const std::string &name) { return read(reportPath(name)); }
    // Writes `text` as a report in the temporary folder and reads it.
    ReportOutcome readText(const std::string &text, const std::string &name = "turn.htm")
    {
        writeFile(dir.file(name), text);
        return read(dir.file(name));
    }

    void setImportOptions(bool map, bool shops, bool hides, bool dungeons)
    {
        state.options.importMap = map;
        state.options.importShops = shops;
        state.options.importHides = hides;
        state.options.importDungeons = dungeons;
    }

    Sector &at(int x, int y) { return world->sector(x, y); }
    std::string item(int n, int shop, int i, ItemField f) const
    {
        return std::string(world->item(n, shop, i, f));
    }

    std::unique_ptr<World> world = std::make_unique<World>();
    ProgramState state;
    ScriptedPlatform platform;
    TempDir dir;
};

} // namespace wayscribe::test
