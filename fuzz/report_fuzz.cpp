// The turn-report importer on any bytes, imported into an empty map as
// File, Import HTML does. A report that stops must say where.
#include "fuzz/fuzz_input.h"
#include "fuzz/fuzz_maps.h"

#include "import/html_import.h"
#include "model/program_state.h"
#include "model/quiet_platform.h"

#include <cstdlib>

namespace {

using namespace wayscribe;

// Keeps the detail of the last message, where the importer names the file
// and line it stopped at.
class DetailPlatform : public QuietPlatform {
public:
    Answer message(const std::string &text, const std::string &title, MessageButtons buttons,
                   MessageIcon icon, const std::string &detail) override
    {
        lastDetail = detail;
        return QuietPlatform::message(text, title, buttons, icon, detail);
    }

    std::string lastDetail;
};

// "<path>, line <n>: <reason>", read back into its parts.
FileError parsedDetail(const std::string &detail, const std::string &path)
{
    const std::string lead = path + ", line ";
    if (detail.compare(0, lead.size(), lead) != 0)
        return {};
    char *end = nullptr;
    const long line = std::strtol(detail.c_str() + lead.size(), &end, 10);
    if (std::string_view(end).substr(0, 2) != ": ")
        return {};
    return {path, line, end + 2};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view bytes = fuzz::inputBytes(data, size);
    const std::string path = fuzz::writeInputFile("turn.htm", bytes);
    World &world = fuzz::emptiedMap();
    ProgramState state;
    // The map picture of a maximised window.
    state.view.viewCols = 40;
    state.view.viewRows = 25;
    DetailPlatform platform;
    const auto keepOptionsInMemory = [](const ProgramState &, Platform &) { return true; };
    if (importHtmlFile(world, state, platform, path, keepOptionsInMemory) == ReportResult::Stopped)
        fuzz::expectNamedLine(parsedDetail(platform.lastDetail, path), path, bytes);
    return 0;
}
