#pragma once

namespace wayscribe {

class World;
struct ProgramState;
class Platform;

// Clears the map for a fresh start. Leaves MapChanged alone: the commands
// that call it ask first and clear the flag themselves.
void NewMap(World &world, ProgramState &state, Platform &platform);

} // namespace wayscribe
