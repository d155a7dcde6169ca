#pragma once

#include "model/program_state.h"

#include <optional>
#include <string>

namespace wayscribe {

class World;

// The texts of the counter's two boxes: mpcbox shows MoveTotal, txtTotalMPs
// MoveSteps. After a change they are in the general number format (" 12");
// after a reset they are "0".
struct CounterBoxes {
    std::string mpcbox;
    std::string txtTotalMPs;

    bool operator==(const CounterBoxes &) const = default;
};

// What the window does after a counter command.
struct CounterUpdate {
    std::optional<CounterBoxes> boxes; // new box texts, when the boxes change
    bool redrawMap = false;            // the footprints changed: a full Refresh_Map
};

// Map clicks while the counter is on; both do nothing while FileBusy is set.
// Left button on sector (x, y): the square goes into the lowest free path
// entry. Entry 0 starts a new path and resets the counts; after the start
// square and 100 moves further squares are ignored.
CounterUpdate addPathSquare(World &world, ProgramState &state, int x, int y);
// Right button: takes back the last square, the start square last; taking
// back the start square leaves the counts alone.
CounterUpdate takeBackPathSquare(World &world, ProgramState &state);

// chkMovement and mnuEditMovement. Turning the counter off removes the path
// and its footprints and resets the boxes; turning it on starts with no path.
CounterUpdate setMovementCounter(World &world, MovementState &movement, bool on);

// chkHorses, with its new check state: on foot when unticked, else the
// checked mount; recounts while the counter is on.
CounterUpdate setHorseCounter(const World &world, MovementState &movement, bool ticked);

// mnuArabians, mnuMules, mnuDrafts, mnuFlying: checks that mount and counts
// with it even when the horse box is unticked; recounts when both the horse
// box and the counter are on.
CounterUpdate chooseMount(const World &world, MovementState &movement, Mount mount);

// Counts entries 1..100 again with the current MoveMode.
CounterUpdate recount(const World &world, MovementState &movement);

} // namespace wayscribe
