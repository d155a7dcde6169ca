#pragma once

#include "model/world.h"

#include <cstdint>
#include <string>
#include <vector>

namespace wayscribe {

// The records one undo step changed, each with its content from the other
// side of the step: from before it while the step is done, from after it
// once it is undone. Exchanging this content with the world's therefore both
// undoes and redoes the step. Records are kept by their position in the
// world's tables, in ascending order.
struct RecordedChanges {
    struct SectorEntry { // a sector's saved fields; its movement marker is never restored
        std::uint16_t index = 0;
        std::uint8_t terrain = 0;
        std::uint8_t settlementNumber = 0;
        std::string note;
        std::string settlementName;
    };
    struct SettlementEntry {
        std::uint8_t n = 0;
        Settlement content;
    };
    struct ShopEntry {
        std::uint16_t index = 0; // settlement * kShopCount + shop
        PackedShop content;
    };
    struct DungeonEntry {
        std::uint8_t d = 0;
        Dungeon content;
    };
    struct QuestorNameEntry {
        std::uint16_t number = 0;
        std::string name;
    };

    std::vector<SectorEntry> sectors;
    std::vector<SettlementEntry> settlements;
    std::vector<ShopEntry> shops;
    std::vector<DungeonEntry> dungeons;
    std::vector<QuestorNameEntry> questorNames;

    bool empty() const;
    // Takes in the records of the step that followed this one, for joining
    // the two: a record both hold keeps this side's (earlier) content.
    void joinNewer(RecordedChanges &&newer);
    // Swaps every recorded record's content with the world's.
    void exchangeWith(World &world);
    // Bytes held, counting the entries and the texts they own.
    std::size_t memoryBytes() const;
};

} // namespace wayscribe
