// shoplist: the settlement editor's "Clipboard" text of one settlement.
#include "cli/command_registry.h"

#include "model/change_history.h"
#include "model/program_state.h"
#include "model/quiet_platform.h"
#include "model/text.h"
#include "model/world.h"
#include "settlements/settlement_editor.h"
#include "storage/map_file.h"

#include <memory>

namespace wayscribe::cli {

namespace {

// Keeps what the editor puts on the clipboard; the confirmation that
// follows is for a person at the window and is not printed.
class ClipboardPlatform : public QuietPlatform {
public:
    void setClipboardText(const std::string &text) override { clipboard = text; }
    std::string clipboard;
};

} // namespace

// Opens the editor on settlement N as a left click on its sector does, with
// the tidying of the first shop's items that opening makes, then copies.
static int runShoplist(const Args &args, std::ostream &out, std::ostream &err)
{
    if (args.size() != 2)
        return kUsageError;
    auto world = std::make_unique<World>();
    ProgramState state;
    if (!loadMap(args[0], *world, state.document.gameNumber, err))
        return kInputError;
    const long long n = indexValue(args[1]);
    if (!isSettlementIndex(n) || !world->settlement(static_cast<int>(n)).inUse) {
        err << "wayscribe-cli: settlement " << args[1] << " is not in use\n";
        return kInputError;
    }
    const Settlement &record = world->settlement(static_cast<int>(n));
    if (!isSectorIndex(record.x) || !isSectorIndex(record.y) ||
        world->sector(record.x, record.y).settlementNumber != n) {
        err << "wayscribe-cli: the sector of settlement " << n << " does not carry its number\n";
        return kInputError;
    }
    Selections &sel = state.selection;
    sel.selX = record.x;
    sel.selY = record.y;
    sel.selSettlement = static_cast<std::uint8_t>(n);
    sel.selNumber = static_cast<std::int16_t>(n);
    sel.selShop = 20;
    ClipboardPlatform platform;
    ChangeHistory history(*world, state.document);
    SettlementEditor editor(*world, state, platform, history);
    editor.open();
    editor.copyShopList();
    writeWithUnixLineEnds(out, platform.clipboard);
    return kOk;
}

const CommandRegistration shoplistCommand("shoplist", "shoplist MAP N", runShoplist);

} // namespace wayscribe::cli
