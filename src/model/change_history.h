#pragma once

#include "model/change_recorder.h"
#include "model/program_state.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace wayscribe {

// What a step, its undo or its redo changed, so that windows refresh only that.
struct WorldChange {
    // The document was replaced, or so many sectors changed that listing them
    // is pointless: redraw everything.
    bool wholeMap = false;
    std::vector<std::pair<std::uint8_t, std::uint8_t>> sectors; // (x, y) whose saved content changed
    bool settlements = false, shops = false, dungeons = false, gameNumber = false, questorNames = false;

    bool empty() const;
};

// Beyond this many changed sectors a change is reported as the whole map: a
// full screen of the map picture shows fewer.
inline constexpr std::size_t kMaxListedSectors = 4096;

// The history keeps at most this much (256 MB, some fifteen steps that each
// overwrite a full map), dropping its oldest steps first.
inline constexpr std::size_t kDefaultHistoryBudget = std::size_t{256} * 1024 * 1024;

// The undo history of one world and its document. Every change to the world
// runs inside apply(); the world reports each record a step hands out for
// writing, and the step keeps the records whose saved content changed, with
// their content from before. Undo and redo swap that content with the
// world's, so both restore the map exactly as the file would save it.
class ChangeHistory {
public:
    ChangeHistory(World &world, DocumentState &document, std::size_t memoryBudget = kDefaultHistoryBudget);
    ~ChangeHistory(); // detaches from the world
    ChangeHistory(const ChangeHistory &) = delete;
    ChangeHistory &operator=(const ChangeHistory &) = delete;

    // Runs `edit` as one undoable step called `name`. A step that changed
    // nothing is not kept. An apply inside another joins the outer step and
    // returns an empty change: the outer one reports it all. When `edit`
    // throws, what it changed is still kept as the step (so it can be
    // undone) and reported, then the exception goes on. References to
    // records must be taken inside `edit`: a write through one taken before
    // the step is not seen. Leaves document.mapChanged to the command.
    WorldChange apply(const std::string &name, const std::function<void()> &edit);
    // The same, but a step whose `joinKey` (not empty) equals that of the
    // step just before it, with no other step, undo, redo or replacement
    // between them, becomes part of that step: a run of keystrokes in one
    // box is undone at once. The joined step keeps each record's content
    // from before the first of them.
    WorldChange apply(const std::string &name, const std::function<void()> &edit, const std::string &joinKey);

    // Runs a command that may replace the document (New, Open). When it
    // touched the world or the game number the history is emptied, as the
    // old map's steps cannot apply to another map, and the change is the
    // whole map. Records no copies: an apply inside it records nothing, and
    // a replace inside an open step is simply part of that step.
    WorldChange replace(const std::function<void()> &command);

    bool canUndo() const;
    bool canRedo() const;
    std::string undoName() const; // empty when there is nothing to undo
    std::string redoName() const;
    // Both set document.mapChanged to 1: the map differs from what was loaded
    // or saved. They do nothing while a step is open.
    WorldChange undo();
    WorldChange redo();
    void clear();

    // Bytes held by the steps and the recorder, for the benchmark.
    std::size_t memoryBytes() const;

    using Listener = std::function<void(const WorldChange &)>;
    // Listeners are told after every apply, undo, redo or replace that
    // changed something.
    int subscribe(Listener listener);
    void unsubscribe(int id);

private:
    struct Step {
        std::string name;
        RecordedChanges changes;
        std::optional<std::uint8_t> gameNumber; // the other side's game number, when the step changed it
        std::size_t bytes = 0;
    };

    WorldChange run(ChangeRecorder::Mode mode, const std::function<void()> &command,
                    const std::function<WorldChange()> &close);
    WorldChange closeStep(const std::string &name, const std::string &joinKey);
    WorldChange closeReplacement();
    WorldChange exchange(Step &step);
    void push(Step step);
    void join(Step &older, Step newer);
    void trimToBudget();
    static WorldChange describe(const Step &step);
    WorldChange notify(WorldChange change);

    World &world_;
    DocumentState &document_;
    std::size_t budget_;
    ChangeRecorder recorder_;
    int depth_ = 0;                     // applies and replaces running, the outermost owning the step
    std::uint8_t gameNumberBefore_ = 0; // at the start of the open step
    std::deque<Step> steps_;
    std::size_t done_ = 0; // steps_[0, done_) can be undone, the rest redone
    std::size_t stepBytes_ = 0;
    // The join key of the newest step while nothing else has happened since
    // it was kept; empty otherwise.
    std::string lastJoinKey_;
    std::vector<std::pair<int, Listener>> listeners_;
    int nextListenerId_ = 1;
};

} // namespace wayscribe
