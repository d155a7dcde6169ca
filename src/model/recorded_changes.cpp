#include "model/recorded_changes.h"

#include <utility>

namespace wayscribe {

namespace {

std::size_t textHeap(const std::string &s)
{
    return s.capacity() > 15 ? s.capacity() + 1 : 0;
}

template <typename Entry> std::size_t tableBytes(const std::vector<Entry> &entries)
{
    return entries.capacity() * sizeof(Entry);
}

// Merges two tables kept in ascending order of `key`; on equal keys the
// entry of `older` stays.
template <typename Entry, typename Key>
void mergeOlderFirst(std::vector<Entry> &older, std::vector<Entry> &&newer, Key key)
{
    if (newer.empty())
        return;
    std::vector<Entry> merged;
    merged.reserve(older.size() + newer.size());
    auto a = older.begin();
    auto b = newer.begin();
    while (a != older.end() || b != newer.end()) {
        if (b == newer.end() || (a != older.end() && key(*a) <= key(*b))) {
            if (b != newer.end() && key(*a) == key(*b))
                ++b;
            merged.push_back(std::move(*a++));
        } else {
            merged.push_back(std::move(*b++));
        }
    }
    older = std::move(merged);
}

} // namespace

void RecordedChanges::joinNewer(RecordedChanges &&newer)
{
    mergeOlderFirst(sectors, std::move(newer.sectors), [](const SectorEntry &e) { return e.index; });
    mergeOlderFirst(settlements, std::move(newer.settlements), [](const SettlementEntry &e) { return e.n; });
    mergeOlderFirst(shops, std::move(newer.shops), [](const ShopEntry &e) { return e.index; });
    mergeOlderFirst(dungeons, std::move(newer.dungeons), [](const DungeonEntry &e) { return e.d; });
    mergeOlderFirst(questorNames, std::move(newer.questorNames),
                    [](const QuestorNameEntry &e) { return e.number; });
}

bool RecordedChanges::empty() const
{
    return sectors.empty() && settlements.empty() && shops.empty() && dungeons.empty() &&
           questorNames.empty();
}

void RecordedChanges::exchangeWith(World &world)
{
    using std::swap;
    for (SectorEntry &e : sectors) {
        Sector &s = world.sectors_[e.index];
        swap(s.terrain, e.terrain);
        swap(s.settlementNumber, e.settlementNumber);
        swap(s.note, e.note);
        swap(s.settlementName, e.settlementName);
    }
    for (SettlementEntry &e : settlements)
        swap(world.settlements_[e.n], e.content);
    for (ShopEntry &e : shops)
        swap(world.shops_[e.index], e.content);
    for (DungeonEntry &e : dungeons)
        swap(world.dungeons_[e.d], e.content);
    for (QuestorNameEntry &e : questorNames)
        swap(world.questorItemNames_[e.number], e.name);
}

std::size_t RecordedChanges::memoryBytes() const
{
    std::size_t total = tableBytes(sectors) + tableBytes(settlements) + tableBytes(shops) +
                        tableBytes(dungeons) + tableBytes(questorNames);
    for (const SectorEntry &e : sectors)
        total += textHeap(e.note) + textHeap(e.settlementName);
    for (const SettlementEntry &e : settlements)
        total += textHeap(e.content.cityState);
    for (const ShopEntry &e : shops)
        total += e.content.heapBytes();
    for (const DungeonEntry &e : dungeons) {
        total += textHeap(e.content.name);
        for (const DungeonLevel &l : e.content.level)
            total += textHeap(l.map) + textHeap(l.roomData);
    }
    for (const QuestorNameEntry &e : questorNames)
        total += textHeap(e.name);
    return total;
}

} // namespace wayscribe
