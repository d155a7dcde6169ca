#pragma once

#include "model/world.h"

namespace wayscribe {

// Whether records, or whole worlds, hold the same content as far as the map
// file keeps it: a sector's movement marker is left out, and the texts are
// compared exactly as the model holds them (before the file's trimming), so
// that "same" also means "saves to the same bytes".
bool sameSavedContent(const Sector &a, const Sector &b);
bool sameSavedContent(const Settlement &a, const Settlement &b);
bool sameSavedContent(const Dungeon &a, const Dungeon &b);

// Every sector, settlement, shop and dungeon. The QuestOR item names and name
// indexes are never saved and are not compared.
bool sameSavedContent(const World &a, const World &b);

} // namespace wayscribe
