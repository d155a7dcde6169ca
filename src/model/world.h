#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wayscribe {

// Capacities and index ranges of the world tables. These numbers are the
// contract with the map file and every importer: nothing in the model grows.
inline constexpr int kMapSize = 200;            // sectors 1..200 in X and Y
inline constexpr int kMaxSettlements = 160;     // settlements 1..160
inline constexpr int kMaxShop = 110;            // shops 0..110
inline constexpr int kShopCount = kMaxShop + 1; // shops per settlement
inline constexpr int kItemsPerShop = 20;        // items 1..20
inline constexpr int kMaxDungeons = 200;        // dungeons 1..200
inline constexpr int kLevelsPerDungeon = 10;    // levels 1..10
inline constexpr int kQuestorFirstItem = 101;   // QuestOR item names 101..1000
inline constexpr int kQuestorLastItem = 1000;

// Every index check of the program: numbers read from files and typed by the
// person may be anything, so the checks take the widest integer there is.
inline bool isSectorIndex(long long v)
{
    return v >= 1 && v <= kMapSize;
}
inline bool isSettlementIndex(long long n)
{
    return n >= 1 && n <= kMaxSettlements;
}
inline bool isShopIndex(long long s)
{
    return s >= 0 && s <= kMaxShop;
}
inline bool isItemIndex(long long i)
{
    return i >= 1 && i <= kItemsPerShop;
}
inline bool isDungeonIndex(long long d)
{
    return d >= 1 && d <= kMaxDungeons;
}
inline bool isLevelIndex(long long l)
{
    return l >= 1 && l <= kLevelsPerDungeon;
}

struct Sector {
    std::uint8_t terrain = 1;
    std::uint8_t settlementNumber = 0;
    std::uint16_t moveMark = 0;
    std::string note;
    std::string settlementName;
};

enum class ItemField { Name = 0, Number = 1, Price = 2 };

// All texts of one shop: its name and the three fields of items 1..20.
// Used to read or replace a whole shop at once (loading, merging).
struct ShopTexts {
    std::string name;
    std::array<std::array<std::string, 3>, kItemsPerShop + 1> items; // [item][field], item 0 unused

    std::string &item(int i, ItemField f) { return items[i][static_cast<int>(f)]; }
    const std::string &item(int i, ItemField f) const { return items[i][static_cast<int>(f)]; }
};

class JoinedShopTexts;
class ChangeRecorder;
struct RecordedChanges;

// A shop's 61 texts packed into one buffer: a full map holds over three
// million item texts, and one std::string each would not fit the memory
// budget. An empty shop owns no heap memory at all.
class PackedShop {
public:
    static constexpr int kFieldCount = 1 + 3 * kItemsPerShop;

    std::string_view field(int index) const;
    void setField(int index, std::string_view text);
    void assign(const ShopTexts &texts);
    void assign(const JoinedShopTexts &texts); // all kFieldCount fields present
    ShopTexts unpack() const;
    bool empty() const { return data_.empty(); }
    // The packing is canonical (an empty shop holds nothing, offsets follow
    // from the field lengths), so equal bytes mean equal texts.
    bool operator==(const PackedShop &other) const { return data_ == other.data_; }
    std::size_t heapBytes() const { return data_.capacity() > 15 ? data_.capacity() : 0; }

    static int itemFieldIndex(int item, ItemField f) { return 1 + (item - 1) * 3 + static_cast<int>(f); }

private:
    // Layout: kFieldCount + 1 little offsets (uint32) then the characters.
    std::string data_;
};

// A shop's texts laid end to end in field order (name, then name, number and
// price of items 1..20), as a file reader collects them line by line:
// handing a whole shop over then costs one copy instead of 61 strings.
class JoinedShopTexts {
public:
    void clear()
    {
        text_.clear();
        count_ = 0;
    }
    void add(std::string_view field)
    {
        offsets_[count_++] = static_cast<std::uint32_t>(text_.size());
        text_.append(field);
    }
    int count() const { return count_; }
    // Field 0..count()-1.
    std::string_view field(int index) const
    {
        const std::uint32_t end =
            index + 1 < count_ ? offsets_[index + 1] : static_cast<std::uint32_t>(text_.size());
        return std::string_view(text_).substr(offsets_[index], end - offsets_[index]);
    }

private:
    friend class PackedShop;
    std::string text_;
    std::array<std::uint32_t, PackedShop::kFieldCount> offsets_{};
    int count_ = 0;
};

struct Settlement {
    std::uint8_t inUse = 0;
    std::uint8_t x = 0;
    std::uint8_t y = 0;
    std::string cityState;
};

struct DungeonLevel {
    std::string map;
    std::string roomData;
};

struct Dungeon {
    std::string name;
    std::int16_t levels = 0;
    std::array<DungeonLevel, kLevelsPerDungeon + 1> level; // levels 1..10, slot 0 unused
};

// The one store of everything known about a game world. Every table has its
// fixed capacity; accessors check indices and throw std::out_of_range on a
// programming error, so that no input can ever write outside a table.
//
// While an undo step is open, a ChangeRecorder is attached: every non-const
// accessor and setter reports the record it is about to hand out or change,
// before the caller can write to it, so that the recorder can keep the
// record's state from before the step. With no step open the pointer is null
// and the accessors cost one test more.
class World {
public:
    World();
    World(const World &) = delete;
    World &operator=(const World &) = delete;

    Sector &sector(int x, int y);
    const Sector &sector(int x, int y) const;

    Settlement &settlement(int n);
    const Settlement &settlement(int n) const;

    std::string_view shopName(int n, int shop) const;
    void setShopName(int n, int shop, std::string_view name);
    std::string_view item(int n, int shop, int item, ItemField f) const;
    void setItem(int n, int shop, int item, ItemField f, std::string_view text);
    ShopTexts shop(int n, int shop) const;
    void setShop(int n, int shop, const ShopTexts &texts);
    void setShop(int n, int shop, const JoinedShopTexts &texts); // all fields present

    Dungeon &dungeon(int d); // 0..200: slot 0 exists but is never used
    const Dungeon &dungeon(int d) const;

    std::string &questorItemName(int number); // 101..1000
    const std::string &questorItemName(int number) const;

    // The QuestOR name index of item 0..20 of a shop, 0 when it has none.
    // The QuestOR import matches special item names against it; it is never
    // saved, and a new map leaves it alone, so indexes that one import did not
    // use stay for the next.
    int questorNameIndex(int n, int shop, int item) const;
    void setQuestorNameIndex(int n, int shop, int item, int index); // index 0..65535

    // The clearing of a new map: every table back to its empty state.
    void clear();

    // Bytes held by the tables and their texts (for the memory benchmark).
    std::size_t memoryBytes() const;

    // A shop's texts as they are kept, for walking all 61 fields without
    // copying them (the map file writer).
    const PackedShop &packed(int n, int shop) const;

private:
    // The undo machinery reads, takes and swaps records without reporting them.
    friend class ChangeRecorder;
    friend struct RecordedChanges;

    std::size_t sectorIndex(int x, int y) const;
    std::size_t shopIndex(int n, int shop) const;
    PackedShop &packedForWriting(int n, int shop);

    std::vector<Sector> sectors_; // (kMapSize+1)^2, row 0 / column 0 unused
    std::array<Settlement, kMaxSettlements + 1> settlements_;
    std::vector<PackedShop> shops_;             // (kMaxSettlements+1) * kShopCount
    std::vector<Dungeon> dungeons_;             // kMaxDungeons + 1
    std::vector<std::string> questorItemNames_; // kQuestorLastItem + 1
    // Few items ever carry a name index: kept sparse, by item position.
    std::unordered_map<std::uint32_t, std::uint16_t> questorNameIndexes_;
    ChangeRecorder *recorder_ = nullptr;
};

} // namespace wayscribe
