#pragma once

namespace wayscribe {

struct ProgramState;
class Platform;

// Keeps the scroll origin inside the world for the current view size:
// first pulled back from the far edge, then a negative value becomes 0.
void clampView(ProgramState &state);

// Puts sector (x, y) in the middle of the view (as far as the world's edges
// allow) and redraws. Coordinates outside the world are not refused: the
// view goes to the nearest edge.
void centreView(ProgramState &state, Platform &platform, int x, int y);

// View, Goto X Y: asks for "X, Y" and centres the view there. An answer
// without a comma does nothing; a part that is not a number counts as 0.
void gotoXYCommand(ProgramState &state, Platform &platform);

} // namespace wayscribe
