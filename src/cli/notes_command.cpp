// notes: the notes database's list from the command line.
#include "cli/command_registry.h"
#include "cli/list_output.h"

#include "model/world.h"
#include "notes/notes_search.h"
#include "storage/map_file.h"

#include <memory>

namespace wayscribe::cli {

// The window's filters as options: --search checks the search box with its
// text, --or picks "+" means "Or", --no-settlements leaves out the notes of
// settlements; --sort clicks a column header after the fill.
static int runNotes(const Args &args, std::ostream &out, std::ostream &err)
{
    NotesFilter filter;
    std::vector<std::string> positional, sorts;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string &a = args[i];
        const bool hasValue = i + 1 < args.size();
        if (a == "--or") {
            filter.plus = PlusMeans::Or;
        } else if (a == "--no-settlements") {
            filter.skipSettlements = true;
        } else if (a == "--search" && hasValue) {
            filter.search = true;
            filter.searchText = args[++i];
        } else if (a == "--sort" && hasValue) {
            sorts.push_back(args[++i]);
        } else if (a.size() > 2 && a.compare(0, 2, "--") == 0) {
            err << "wayscribe-cli: unknown option or missing value: " << a << '\n';
            return kUsageError;
        } else {
            positional.push_back(a);
        }
    }
    if (positional.size() != 1)
        return kUsageError;

    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    if (!loadMap(positional[0], *world, game, err))
        return kInputError;
    ReportTable table = notesListTable(*world);
    fillNotesList(table, *world, filter);
    if (!applySortClicks(table, sorts, err))
        return kUsageError;
    writeListRows(out, table);
    return kOk;
}

const CommandRegistration
    notesCommand("notes", "notes MAP [--search TEXT] [--or] [--no-settlements] [--sort C]...", runNotes);

} // namespace wayscribe::cli
