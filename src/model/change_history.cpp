#include "model/change_history.h"

#include <algorithm>

namespace wayscribe {

bool WorldChange::empty() const
{
    return !wholeMap && sectors.empty() && !settlements && !shops && !dungeons && !gameNumber &&
           !questorNames;
}

ChangeHistory::ChangeHistory(World &world, DocumentState &document, std::size_t memoryBudget)
    : world_(world), document_(document), budget_(memoryBudget)
{
}

// The recorder detaches itself from the world if a step is still open.
ChangeHistory::~ChangeHistory() = default;

WorldChange ChangeHistory::apply(const std::string &name, const std::function<void()> &edit)
{
    return apply(name, edit, std::string());
}

WorldChange ChangeHistory::apply(const std::string &name, const std::function<void()> &edit,
                                 const std::string &joinKey)
{
    return run(ChangeRecorder::Mode::Record, edit, [&] { return closeStep(name, joinKey); });
}

WorldChange ChangeHistory::replace(const std::function<void()> &command)
{
    return run(ChangeRecorder::Mode::Notice, command, [&] { return closeReplacement(); });
}

WorldChange ChangeHistory::run(ChangeRecorder::Mode mode, const std::function<void()> &command,
                               const std::function<WorldChange()> &close)
{
    if (depth_ > 0) { // inside another step: part of it
        struct Leave {
            int &depth;
            ~Leave() { --depth; }
        } leave{++depth_};
        command();
        return {};
    }
    recorder_.begin(world_, mode);
    gameNumberBefore_ = document_.gameNumber;
    depth_ = 1;
    try {
        command();
    } catch (...) {
        depth_ = 0;
        notify(close());
        throw;
    }
    depth_ = 0;
    return notify(close());
}

WorldChange ChangeHistory::closeStep(const std::string &name, const std::string &joinKey)
{
    Step step{name, recorder_.finish(), std::nullopt, 0};
    if (document_.gameNumber != gameNumberBefore_)
        step.gameNumber = gameNumberBefore_;
    if (step.changes.empty() && !step.gameNumber)
        return {};
    WorldChange change = describe(step);
    const bool joins = !joinKey.empty() && joinKey == lastJoinKey_ && done_ == steps_.size() && done_ > 0;
    if (joins)
        join(steps_.back(), std::move(step));
    else
        push(std::move(step));
    lastJoinKey_ = joinKey;
    return change;
}

WorldChange ChangeHistory::closeReplacement()
{
    recorder_.finish();
    lastJoinKey_.clear();
    const bool newGameNumber = document_.gameNumber != gameNumberBefore_;
    if (!recorder_.touchedAnything() && !newGameNumber)
        return {};
    clear();
    WorldChange change;
    change.wholeMap = change.settlements = change.shops = change.dungeons = change.questorNames = true;
    change.gameNumber = newGameNumber;
    return change;
}

bool ChangeHistory::canUndo() const
{
    return depth_ == 0 && done_ > 0;
}

bool ChangeHistory::canRedo() const
{
    return depth_ == 0 && done_ < steps_.size();
}

std::string ChangeHistory::undoName() const
{
    return canUndo() ? steps_[done_ - 1].name : std::string();
}

std::string ChangeHistory::redoName() const
{
    return canRedo() ? steps_[done_].name : std::string();
}

WorldChange ChangeHistory::undo()
{
    if (!canUndo())
        return {};
    --done_;
    lastJoinKey_.clear();
    return notify(exchange(steps_[done_]));
}

WorldChange ChangeHistory::redo()
{
    if (!canRedo())
        return {};
    ++done_;
    lastJoinKey_.clear();
    return notify(exchange(steps_[done_ - 1]));
}

void ChangeHistory::clear()
{
    steps_.clear();
    done_ = 0;
    stepBytes_ = 0;
    lastJoinKey_.clear();
}

std::size_t ChangeHistory::memoryBytes() const
{
    return sizeof(*this) + recorder_.memoryBytes() + stepBytes_;
}

int ChangeHistory::subscribe(Listener listener)
{
    listeners_.emplace_back(nextListenerId_, std::move(listener));
    return nextListenerId_++;
}

void ChangeHistory::unsubscribe(int id)
{
    std::erase_if(listeners_, [id](const auto &entry) { return entry.first == id; });
}

namespace {

std::size_t stepBytes(const std::string &name, const RecordedChanges &changes, std::size_t stepSize)
{
    return stepSize + (name.capacity() > 15 ? name.capacity() + 1 : 0) + changes.memoryBytes();
}

} // namespace

WorldChange ChangeHistory::exchange(Step &step)
{
    step.changes.exchangeWith(world_);
    if (step.gameNumber)
        std::swap(*step.gameNumber, document_.gameNumber);
    document_.mapChanged = 1;
    // The step now holds the other side's texts, which may be larger.
    stepBytes_ -= step.bytes;
    step.bytes = stepBytes(step.name, step.changes, sizeof(Step));
    stepBytes_ += step.bytes;
    WorldChange change = describe(step);
    trimToBudget();
    return change;
}

void ChangeHistory::join(Step &older, Step newer)
{
    older.changes.joinNewer(std::move(newer.changes));
    if (!older.gameNumber)
        older.gameNumber = newer.gameNumber;
    stepBytes_ -= older.bytes;
    older.bytes = stepBytes(older.name, older.changes, sizeof(Step));
    stepBytes_ += older.bytes;
    trimToBudget();
}

void ChangeHistory::push(Step step)
{
    while (steps_.size() > done_) {
        stepBytes_ -= steps_.back().bytes;
        steps_.pop_back();
    }
    step.bytes = stepBytes(step.name, step.changes, sizeof(Step));
    stepBytes_ += step.bytes;
    steps_.push_back(std::move(step));
    done_ = steps_.size();
    trimToBudget();
}

void ChangeHistory::trimToBudget()
{
    // The newest step stays whatever its size: it is the one the person is
    // most likely to undo.
    while (stepBytes_ > budget_ && steps_.size() > 1) {
        stepBytes_ -= steps_.front().bytes;
        steps_.pop_front();
        if (done_ > 0)
            --done_;
    }
}

WorldChange ChangeHistory::describe(const Step &step)
{
    const RecordedChanges &c = step.changes;
    WorldChange change;
    change.wholeMap = c.sectors.size() > kMaxListedSectors;
    if (!change.wholeMap) {
        change.sectors.reserve(c.sectors.size());
        for (const RecordedChanges::SectorEntry &e : c.sectors)
            change.sectors.emplace_back(static_cast<std::uint8_t>(e.index % (kMapSize + 1)),
                                        static_cast<std::uint8_t>(e.index / (kMapSize + 1)));
    }
    change.settlements = !c.settlements.empty();
    change.shops = !c.shops.empty();
    change.dungeons = !c.dungeons.empty();
    change.questorNames = !c.questorNames.empty();
    change.gameNumber = step.gameNumber.has_value();
    return change;
}

WorldChange ChangeHistory::notify(WorldChange change)
{
    if (change.empty())
        return change;
    // A listener may subscribe or unsubscribe while being told.
    const auto listeners = listeners_;
    for (const auto &entry : listeners)
        entry.second(change);
    return change;
}

} // namespace wayscribe
