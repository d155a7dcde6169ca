#pragma once

namespace wayscribe {

class World;

// True while the map knows nothing: every sector Unknown, without a
// settlement or a note, and no settlement or dungeon recorded. A new player's
// map looks like this until the first report comes in.
bool worldIsEmpty(const World &world);

} // namespace wayscribe
