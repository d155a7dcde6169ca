// The options file reader on any bytes, then the text that would be written
// back from what it read.
#include "fuzz/fuzz_input.h"

#include "model/program_state.h"
#include "storage/options_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace wayscribe;
    const std::string path = fuzz::writeInputFile("wayscribe.ini", fuzz::inputBytes(data, size));
    ProgramState state;
    readOptionsFile(path, state);
    // Start-up takes the scroll origin into the view, which the writer saves.
    state.view.viewLeft = state.options.xLeft;
    state.view.viewTop = state.options.yTop;
    fuzz::expect(!optionsFileText(state).empty(), "the options text is empty");
    return 0;
}
