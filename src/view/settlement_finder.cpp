#include "view/settlement_finder.h"

#include "model/settlement_lookup.h"
#include "model/text.h"
#include "model/world.h"

namespace wayscribe {

namespace {

// The name standing in the sector a settlement record points at, whether or
// not the number is in use.
std::string_view nameOf(const World &world, int n)
{
    const SettlementLookup found = lookUpSettlement(world, n);
    return found.sector ? std::string_view(found.sector->settlementName) : std::string_view();
}

} // namespace

std::optional<int> settlementNumberForName(const World &world, std::string_view typed)
{
    for (int n = 1; n <= kMaxSettlements; ++n) {
        const std::string_view name = nameOf(world, n);
        if (!name.empty() && name.size() >= typed.size() &&
            equalsIgnoreCase(name.substr(0, typed.size()), typed))
            return n;
    }
    return std::nullopt;
}

std::optional<std::string> settlementNameForNumber(const World &world, std::string_view numberText)
{
    const double value = textValue(numberText);
    for (int n = 1; n <= kMaxSettlements; ++n)
        if (value == n)
            return std::string(nameOf(world, n));
    return std::nullopt;
}

GotoTarget settlementPositionFor(const World &world, std::string_view numberText)
{
    const SettlementLookup found = lookUpSettlement(world, indexValue(numberText));
    if (!found.record)
        return {};
    return {found.record->x, found.record->y};
}

} // namespace wayscribe
