#include "model/change_recorder.h"

#include "model/saved_content.h"

#include <stdexcept>
#include <utility>

namespace wayscribe {

namespace {

constexpr std::size_t kSectorSlots = static_cast<std::size_t>(kMapSize + 1) * (kMapSize + 1);
constexpr std::size_t kShopSlots = static_cast<std::size_t>(kMaxSettlements + 1) * kShopCount;

// Keeps the entries for which `changed` holds, in ascending order of
// position, with no spare capacity: a history holds thousands of steps.
template <typename Entry, typename Position, typename Changed>
void keepChanged(std::vector<Entry> &entries, Position position, Changed changed)
{
    std::erase_if(entries, [&](const Entry &e) { return !changed(e); });
    std::sort(entries.begin(), entries.end(),
              [&](const Entry &a, const Entry &b) { return position(a) < position(b); });
    entries.shrink_to_fit();
}

} // namespace

ChangeRecorder::ChangeRecorder()
    : sectors_(kSectorSlots), settlements_(kMaxSettlements + 1), shops_(kShopSlots),
      dungeons_(kMaxDungeons + 1), questorNames_(kQuestorLastItem + 1)
{
}

ChangeRecorder::~ChangeRecorder()
{
    if (world_)
        world_->recorder_ = nullptr;
}

void ChangeRecorder::begin(World &world, Mode mode)
{
    if (world_ || world.recorder_)
        throw std::logic_error("a change recorder is already attached");
    world_ = &world;
    mode_ = mode;
    touched_ = false;
    world.recorder_ = this;
}

RecordedChanges ChangeRecorder::finish()
{
    if (!world_)
        return {};
    world_->recorder_ = nullptr;
    dropUnchanged();
    world_ = nullptr;
    for (TouchSet *set : {&sectors_, &settlements_, &shops_, &dungeons_, &questorNames_})
        set->reset();
    return std::exchange(changes_, RecordedChanges{});
}

std::size_t ChangeRecorder::memoryBytes() const
{
    return sizeof(*this) + sectors_.memoryBytes() + settlements_.memoryBytes() + shops_.memoryBytes() +
           dungeons_.memoryBytes() + questorNames_.memoryBytes() + changes_.memoryBytes();
}

bool ChangeRecorder::recording()
{
    touched_ = true;
    return mode_ == Mode::Record;
}

void ChangeRecorder::recordSector(std::size_t index)
{
    if (!recording())
        return;
    const Sector &s = world_->sectors_[index];
    changes_.sectors.push_back(
        {static_cast<std::uint16_t>(index), s.terrain, s.settlementNumber, s.note, s.settlementName});
}

void ChangeRecorder::recordSettlement(int n)
{
    if (recording())
        changes_.settlements.push_back({static_cast<std::uint8_t>(n), world_->settlements_[n]});
}

void ChangeRecorder::recordShop(std::size_t index)
{
    if (recording())
        changes_.shops.push_back({static_cast<std::uint16_t>(index), world_->shops_[index]});
}

void ChangeRecorder::recordDungeon(int d)
{
    if (recording())
        changes_.dungeons.push_back({static_cast<std::uint8_t>(d), world_->dungeons_[d]});
}

void ChangeRecorder::recordQuestorItemName(int number)
{
    if (recording())
        changes_.questorNames.push_back(
            {static_cast<std::uint16_t>(number), world_->questorItemNames_[number]});
}

void ChangeRecorder::clearing()
{
    const bool keep = recording();
    World &w = *world_;
    for (std::size_t i = 0; i < kSectorSlots; ++i)
        if (!sectors_.testAndSet(i) && keep) {
            Sector &s = w.sectors_[i];
            changes_.sectors.push_back({static_cast<std::uint16_t>(i), s.terrain, s.settlementNumber,
                                        std::move(s.note), std::move(s.settlementName)});
        }
    for (int n = 0; n <= kMaxSettlements; ++n)
        if (!settlements_.testAndSet(static_cast<std::size_t>(n)) && keep)
            changes_.settlements.push_back({static_cast<std::uint8_t>(n), std::move(w.settlements_[n])});
    for (std::size_t i = 0; i < kShopSlots; ++i)
        if (!shops_.testAndSet(i) && keep)
            changes_.shops.push_back({static_cast<std::uint16_t>(i), std::move(w.shops_[i])});
    for (int d = 0; d <= kMaxDungeons; ++d)
        if (!dungeons_.testAndSet(static_cast<std::size_t>(d)) && keep)
            changes_.dungeons.push_back({static_cast<std::uint8_t>(d), std::move(w.dungeons_[d])});
    for (int k = kQuestorFirstItem; k <= kQuestorLastItem; ++k)
        if (!questorNames_.testAndSet(static_cast<std::size_t>(k)) && keep)
            changes_.questorNames.push_back(
                {static_cast<std::uint16_t>(k), std::move(w.questorItemNames_[k])});
}

void ChangeRecorder::dropUnchanged()
{
    const World &w = *world_;
    keepChanged(
        changes_.sectors, [](const auto &e) { return e.index; },
        [&](const RecordedChanges::SectorEntry &e) {
            const Sector &s = w.sectors_[e.index];
            return s.terrain != e.terrain || s.settlementNumber != e.settlementNumber || s.note != e.note ||
                   s.settlementName != e.settlementName;
        });
    keepChanged(
        changes_.settlements, [](const auto &e) { return e.n; },
        [&](const auto &e) { return !sameSavedContent(w.settlements_[e.n], e.content); });
    keepChanged(
        changes_.shops, [](const auto &e) { return e.index; },
        [&](const auto &e) { return !(w.shops_[e.index] == e.content); });
    keepChanged(
        changes_.dungeons, [](const auto &e) { return e.d; },
        [&](const auto &e) { return !sameSavedContent(w.dungeons_[e.d], e.content); });
    keepChanged(
        changes_.questorNames, [](const auto &e) { return e.number; },
        [&](const auto &e) { return w.questorItemNames_[e.number] != e.name; });
}

} // namespace wayscribe
