#pragma once

namespace wayscribe {

// Columns of the movement cost table: 0 on foot, 1..4 the mounts.
inline constexpr int kMoveModes = 5;

// Movement points spent to enter one sector of `terrain` with mode 0..4, from
// the movement cost table. Codes outside 1..18 (0, and the 19..25 a QuestOR
// map can carry) and modes outside 0..4 cost 0, like Unknown: a square the
// table knows nothing about adds nothing, and nothing is read outside it.
int moveCost(int terrain, int mode);

} // namespace wayscribe
