#include "model/settlement_lookup.h"

#include "model/world.h"

namespace wayscribe {

SettlementLookup lookUpSettlement(const World &world, long long number)
{
    SettlementLookup found;
    if (!isSettlementIndex(number))
        return found;
    const Settlement &record = world.settlement(static_cast<int>(number));
    found.record = &record;
    found.inUse = record.inUse == 1;
    if (record.x <= kMapSize && record.y <= kMapSize)
        found.sector = &world.sector(record.x, record.y);
    found.onMap = isSectorIndex(record.x) && isSectorIndex(record.y);
    return found;
}

} // namespace wayscribe
