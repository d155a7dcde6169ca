#include "view/movement_counter.h"

#include "model/text.h"
#include "model/world.h"
#include "view/movement_costs.h"

namespace wayscribe {

namespace {

bool entryFree(const MovementState &m, int i)
{
    return m.pathX[i] == 0 && m.pathY[i] == 0;
}

bool entryUsed(const MovementState &m, int i)
{
    return m.pathX[i] != 0 && m.pathY[i] != 0;
}

void emptyEntry(MovementState &m, int i)
{
    m.pathX[i] = 0;
    m.pathY[i] = 0;
}

int entryCost(const World &world, const MovementState &m, int i)
{
    return moveCost(world.sector(m.pathX[i], m.pathY[i]).terrain, m.moveMode);
}

// Marks are transient and never undone, so they are written outside any
// undo step. Clearing the map zeroes them while a path may still hold its
// squares; taking those squares back then must not wrap the mark around into
// a footprint.
void unmark(World &world, int x, int y)
{
    std::uint16_t &mark = world.sector(x, y).moveMark;
    if (mark > 0)
        --mark;
}

CounterBoxes shownCounts(const MovementState &m)
{
    return {formatGeneral(m.moveTotal), formatGeneral(m.moveSteps)};
}

const CounterBoxes kResetBoxes{"0", "0"};

} // namespace

CounterUpdate addPathSquare(World &world, ProgramState &state, int x, int y)
{
    MovementState &m = state.movement;
    if (state.document.fileBusy || !isSectorIndex(x) || !isSectorIndex(y))
        return {};
    int i = 0;
    while (i <= kMaxPathEntries && !entryFree(m, i))
        ++i;
    if (i > kMaxPathEntries)
        return {};
    CounterUpdate update;
    update.redrawMap = true;
    if (i == 0) {
        for (int j = 1; j <= kMaxPathEntries; ++j)
            emptyEntry(m, j);
        m.moveSteps = 0;
        m.moveTotal = 0;
        update.boxes = kResetBoxes;
    }
    m.pathX[i] = static_cast<std::uint8_t>(x);
    m.pathY[i] = static_cast<std::uint8_t>(y);
    ++world.sector(x, y).moveMark;
    if (i > 0) {
        m.moveTotal = static_cast<std::int16_t>(m.moveTotal + entryCost(world, m, i));
        ++m.moveSteps;
        update.boxes = shownCounts(m);
    }
    return update;
}

CounterUpdate takeBackPathSquare(World &world, ProgramState &state)
{
    MovementState &m = state.movement;
    if (state.document.fileBusy)
        return {};
    int i = kMaxPathEntries;
    while (i >= 0 && !entryUsed(m, i))
        --i;
    if (i < 0)
        return {};
    CounterUpdate update;
    update.redrawMap = true;
    if (i > 0) {
        m.moveTotal = static_cast<std::int16_t>(m.moveTotal - entryCost(world, m, i));
        --m.moveSteps;
        update.boxes = shownCounts(m);
    }
    unmark(world, m.pathX[i], m.pathY[i]);
    emptyEntry(m, i);
    return update;
}

CounterUpdate setMovementCounter(World &world, MovementState &movement, bool on)
{
    if (on) {
        movement.moveCounterOn = 1;
        return {};
    }
    movement.moveCounterOn = 0;
    for (int i = 0; i <= kMaxPathEntries; ++i)
        if (!entryFree(movement, i)) {
            unmark(world, movement.pathX[i], movement.pathY[i]);
            emptyEntry(movement, i);
        }
    movement.moveTotal = 0;
    movement.moveSteps = 0;
    return {kResetBoxes, true};
}

CounterUpdate setHorseCounter(const World &world, MovementState &movement, bool ticked)
{
    movement.horseCounter = ticked;
    movement.moveMode = ticked ? static_cast<std::int16_t>(movement.checkedMount) : 0;
    if (movement.moveCounterOn == 1)
        return recount(world, movement);
    return {};
}

CounterUpdate chooseMount(const World &world, MovementState &movement, Mount mount)
{
    movement.checkedMount = mount;
    movement.moveMode = static_cast<std::int16_t>(mount);
    if (movement.horseCounter && movement.moveCounterOn == 1)
        return recount(world, movement);
    return {};
}

CounterUpdate recount(const World &world, MovementState &movement)
{
    movement.moveTotal = 0;
    movement.moveSteps = 0;
    for (int i = 1; i <= kMaxPathEntries; ++i)
        if (movement.pathX[i] != 0) {
            movement.moveTotal =
                static_cast<std::int16_t>(movement.moveTotal + entryCost(world, movement, i));
            ++movement.moveSteps;
        }
    return {shownCounts(movement), false};
}

} // namespace wayscribe
