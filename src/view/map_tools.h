#pragma once

namespace wayscribe {

class World;
struct ProgramState;
class Platform;

// Edit, Unknowns to Water: after a question, every Unknown sector becomes
// Water. Leaves the dirty flag alone, as the program always has.
void unknownsToWaterCommand(World &world, ProgramState &state, Platform &platform);

// Information, Map Statistics.
void mapStatisticsCommand(const World &world, Platform &platform);

} // namespace wayscribe
