#include "model/world.h"

#include "model/change_recorder.h"

#include <cstring>
#include <stdexcept>

namespace wayscribe {

namespace {

constexpr int kSectorStride = kMapSize + 1;
constexpr std::size_t kHeaderBytes = (PackedShop::kFieldCount + 1) * sizeof(std::uint32_t);

std::uint32_t readOffset(const std::string &data, int index)
{
    std::uint32_t v;
    std::memcpy(&v, data.data() + index * sizeof(std::uint32_t), sizeof v);
    return v;
}

void writeOffset(std::string &data, int index, std::uint32_t v)
{
    std::memcpy(data.data() + index * sizeof(std::uint32_t), &v, sizeof v);
}

[[noreturn]] void badIndex(const char *table, int index)
{
    throw std::out_of_range(std::string(table) + " index out of range: " + std::to_string(index));
}

} // namespace

std::string_view PackedShop::field(int index) const
{
    if (data_.empty())
        return {};
    const std::uint32_t begin = readOffset(data_, index);
    const std::uint32_t end = readOffset(data_, index + 1);
    return std::string_view(data_).substr(kHeaderBytes + begin, end - begin);
}

void PackedShop::setField(int index, std::string_view text)
{
    if (field(index) == text)
        return;
    ShopTexts all = unpack();
    if (index == 0)
        all.name = std::string(text);
    else
        all.items[(index - 1) / 3 + 1][(index - 1) % 3] = std::string(text);
    assign(all);
}

void PackedShop::assign(const ShopTexts &texts)
{
    std::size_t total = texts.name.size();
    bool anyText = !texts.name.empty();
    for (int i = 1; i <= kItemsPerShop; ++i)
        for (const auto &f : texts.items[i]) {
            total += f.size();
            anyText = anyText || !f.empty();
        }
    if (!anyText) {
        std::string().swap(data_);
        return;
    }
    std::string data(kHeaderBytes + total, '\0');
    std::uint32_t at = 0;
    auto put = [&](int index, const std::string &text) {
        writeOffset(data, index, at);
        std::memcpy(data.data() + kHeaderBytes + at, text.data(), text.size());
        at += static_cast<std::uint32_t>(text.size());
    };
    put(0, texts.name);
    for (int i = 1; i <= kItemsPerShop; ++i)
        for (int f = 0; f < 3; ++f)
            put(itemFieldIndex(i, static_cast<ItemField>(f)), texts.items[i][f]);
    writeOffset(data, kFieldCount, at);
    data_ = std::move(data);
}

void PackedShop::assign(const JoinedShopTexts &texts)
{
    if (texts.text_.empty()) {
        std::string().swap(data_);
        return;
    }
    std::string data(kHeaderBytes + texts.text_.size(), '\0');
    for (int i = 0; i < kFieldCount; ++i)
        writeOffset(data, i, texts.offsets_[i]);
    writeOffset(data, kFieldCount, static_cast<std::uint32_t>(texts.text_.size()));
    std::memcpy(data.data() + kHeaderBytes, texts.text_.data(), texts.text_.size());
    data_ = std::move(data);
}

ShopTexts PackedShop::unpack() const
{
    ShopTexts t;
    if (data_.empty())
        return t;
    t.name = std::string(field(0));
    for (int i = 1; i <= kItemsPerShop; ++i)
        for (int f = 0; f < 3; ++f)
            t.items[i][f] = std::string(field(itemFieldIndex(i, static_cast<ItemField>(f))));
    return t;
}

World::World()
    : sectors_(kSectorStride * kSectorStride), shops_((kMaxSettlements + 1) * kShopCount),
      dungeons_(kMaxDungeons + 1), questorItemNames_(kQuestorLastItem + 1)
{
}

std::size_t World::sectorIndex(int x, int y) const
{
    if (x < 0 || x > kMapSize)
        badIndex("sector x", x);
    if (y < 0 || y > kMapSize)
        badIndex("sector y", y);
    return static_cast<std::size_t>(y) * kSectorStride + x;
}

Sector &World::sector(int x, int y)
{
    const std::size_t i = sectorIndex(x, y);
    if (recorder_)
        recorder_->sector(i);
    return sectors_[i];
}

const Sector &World::sector(int x, int y) const
{
    return sectors_[sectorIndex(x, y)];
}

Settlement &World::settlement(int n)
{
    if (n < 0 || n > kMaxSettlements)
        badIndex("settlement", n);
    if (recorder_)
        recorder_->settlement(n);
    return settlements_[n];
}

const Settlement &World::settlement(int n) const
{
    if (n < 0 || n > kMaxSettlements)
        badIndex("settlement", n);
    return settlements_[n];
}

std::size_t World::shopIndex(int n, int shop) const
{
    if (n < 0 || n > kMaxSettlements)
        badIndex("settlement", n);
    if (!isShopIndex(shop))
        badIndex("shop", shop);
    return static_cast<std::size_t>(n) * kShopCount + shop;
}

const PackedShop &World::packed(int n, int shop) const
{
    return shops_[shopIndex(n, shop)];
}

PackedShop &World::packedForWriting(int n, int shop)
{
    const std::size_t i = shopIndex(n, shop);
    if (recorder_)
        recorder_->shop(i);
    return shops_[i];
}

std::string_view World::shopName(int n, int shop) const
{
    return packed(n, shop).field(0);
}

void World::setShopName(int n, int shop, std::string_view name)
{
    packedForWriting(n, shop).setField(0, name);
}

std::string_view World::item(int n, int shop, int item, ItemField f) const
{
    if (!isItemIndex(item))
        badIndex("item", item);
    return packed(n, shop).field(PackedShop::itemFieldIndex(item, f));
}

void World::setItem(int n, int shop, int item, ItemField f, std::string_view text)
{
    if (!isItemIndex(item))
        badIndex("item", item);
    packedForWriting(n, shop).setField(PackedShop::itemFieldIndex(item, f), text);
}

ShopTexts World::shop(int n, int shop) const
{
    return packed(n, shop).unpack();
}

void World::setShop(int n, int shop, const ShopTexts &texts)
{
    packedForWriting(n, shop).assign(texts);
}

void World::setShop(int n, int shop, const JoinedShopTexts &texts)
{
    packedForWriting(n, shop).assign(texts);
}

Dungeon &World::dungeon(int d)
{
    if (d < 0 || d > kMaxDungeons)
        badIndex("dungeon", d);
    if (recorder_)
        recorder_->dungeon(d);
    return dungeons_[d];
}

const Dungeon &World::dungeon(int d) const
{
    if (d < 0 || d > kMaxDungeons)
        badIndex("dungeon", d);
    return dungeons_[d];
}

std::string &World::questorItemName(int number)
{
    if (number < kQuestorFirstItem || number > kQuestorLastItem)
        badIndex("QuestOR item", number);
    if (recorder_)
        recorder_->questorItemName(number);
    return questorItemNames_[number];
}

const std::string &World::questorItemName(int number) const
{
    if (number < kQuestorFirstItem || number > kQuestorLastItem)
        badIndex("QuestOR item", number);
    return questorItemNames_[number];
}

namespace {

std::uint32_t questorItemKey(int n, int shop, int item)
{
    if (n < 0 || n > kMaxSettlements)
        badIndex("settlement", n);
    if (!isShopIndex(shop))
        badIndex("shop", shop);
    if (item < 0 || item > kItemsPerShop)
        badIndex("QuestOR name index item", item);
    return static_cast<std::uint32_t>((n * kShopCount + shop) * (kItemsPerShop + 1) + item);
}

} // namespace

int World::questorNameIndex(int n, int shop, int item) const
{
    const auto found = questorNameIndexes_.find(questorItemKey(n, shop, item));
    return found == questorNameIndexes_.end() ? 0 : found->second;
}

void World::setQuestorNameIndex(int n, int shop, int item, int index)
{
    const std::uint32_t key = questorItemKey(n, shop, item);
    if (index < 0 || index > 0xFFFF)
        badIndex("QuestOR name index", index);
    if (index == 0)
        questorNameIndexes_.erase(key);
    else
        questorNameIndexes_[key] = static_cast<std::uint16_t>(index);
}

void World::clear()
{
    if (recorder_)
        recorder_->clearing();
    for (Sector &s : sectors_)
        s = Sector{};
    for (Settlement &s : settlements_)
        s = Settlement{};
    for (PackedShop &p : shops_)
        p = PackedShop{};
    for (Dungeon &d : dungeons_)
        d = Dungeon{};
    for (std::string &name : questorItemNames_)
        name.clear();
    // The QuestOR name indexes stay: a new map empties only the item name table.
}

std::size_t World::memoryBytes() const
{
    auto heap = [](const std::string &s) { return s.capacity() > 15 ? s.capacity() + 1 : 0; };
    std::size_t total = sizeof(World);
    total += sectors_.capacity() * sizeof(Sector);
    for (const Sector &s : sectors_)
        total += heap(s.note) + heap(s.settlementName);
    for (const Settlement &s : settlements_)
        total += heap(s.cityState);
    total += shops_.capacity() * sizeof(PackedShop);
    for (const PackedShop &p : shops_)
        total += p.heapBytes();
    total += dungeons_.capacity() * sizeof(Dungeon);
    for (const Dungeon &d : dungeons_) {
        total += heap(d.name);
        for (const DungeonLevel &l : d.level)
            total += heap(l.map) + heap(l.roomData);
    }
    total += questorItemNames_.capacity() * sizeof(std::string);
    for (const std::string &s : questorItemNames_)
        total += heap(s);
    total += questorNameIndexes_.bucket_count() * sizeof(void *) +
             questorNameIndexes_.size() * (sizeof(void *) + sizeof(std::size_t) + 2 * sizeof(std::uint32_t));
    return total;
}

} // namespace wayscribe
