#pragma once

#include "model/recorded_changes.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace wayscribe {

// One bit per record of a table: whether the open step has touched it yet.
class TouchSet {
public:
    explicit TouchSet(std::size_t size) : words_((size + 63) / 64) {}
    // Marks record i and tells whether it was marked already.
    bool testAndSet(std::size_t i)
    {
        std::uint64_t &word = words_[i / 64];
        const std::uint64_t bit = std::uint64_t{1} << (i % 64);
        const bool was = (word & bit) != 0;
        word |= bit;
        return was;
    }
    void reset() { std::fill(words_.begin(), words_.end(), 0); }
    std::size_t memoryBytes() const { return words_.capacity() * sizeof(std::uint64_t); }

private:
    std::vector<std::uint64_t> words_;
};

// Watches a world for the length of one step. The world reports each record
// before it hands it out for writing; the first report of a record in the
// step copies its content, later ones cost a bit test. At the end of the
// step the copies of records that did not change are dropped.
class ChangeRecorder {
public:
    enum class Mode {
        Record, // keep each touched record's content from before the step
        Notice, // only note whether anything was touched: the document is being replaced
    };

    ChangeRecorder();
    ~ChangeRecorder();
    ChangeRecorder(const ChangeRecorder &) = delete;
    ChangeRecorder &operator=(const ChangeRecorder &) = delete;

    // Attaches to `world` until finish(). A world takes one recorder at a time.
    void begin(World &world, Mode mode);
    // Detaches, and hands over the records whose saved content changed since
    // begin(), with that earlier content (in Notice mode: nothing).
    RecordedChanges finish();
    bool attached() const { return world_ != nullptr; }
    // Whether any record was handed out for writing since begin().
    bool touchedAnything() const { return touched_; }
    std::size_t memoryBytes() const;

    // The world's reports, by position in its tables.
    void sector(std::size_t index)
    {
        if (!sectors_.testAndSet(index))
            recordSector(index);
    }
    void settlement(int n)
    {
        if (!settlements_.testAndSet(static_cast<std::size_t>(n)))
            recordSettlement(n);
    }
    void shop(std::size_t index)
    {
        if (!shops_.testAndSet(index))
            recordShop(index);
    }
    void dungeon(int d)
    {
        if (!dungeons_.testAndSet(static_cast<std::size_t>(d)))
            recordDungeon(d);
    }
    void questorItemName(int number)
    {
        if (!questorNames_.testAndSet(static_cast<std::size_t>(number)))
            recordQuestorItemName(number);
    }
    // Every table is about to be emptied: the records not touched yet are
    // taken over rather than copied, since the world overwrites them next.
    void clearing();

private:
    void recordSector(std::size_t index);
    void recordSettlement(int n);
    void recordShop(std::size_t index);
    void recordDungeon(int d);
    void recordQuestorItemName(int number);
    bool recording();
    void dropUnchanged();

    World *world_ = nullptr;
    Mode mode_ = Mode::Record;
    bool touched_ = false;
    TouchSet sectors_, settlements_, shops_, dungeons_, questorNames_;
    RecordedChanges changes_;
};

} // namespace wayscribe
