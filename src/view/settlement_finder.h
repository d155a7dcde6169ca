#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace wayscribe {

class World;

// The settlement finder's two boxes fill each other in.

// Typing in the name box: the lowest settlement number whose name begins
// with the typed text, ignoring case. Nothing when no name does; the number
// box then keeps its text.
std::optional<int> settlementNumberForName(const World &world, std::string_view typed);

// Typing in the number box: the name of the settlement whose number equals
// the value of the text. Nothing when no number 1..160 does.
std::optional<std::string> settlementNameForNumber(const World &world, std::string_view numberText);

// Where Go takes the view for the number box's text: the settlement record's
// sector. A number that is no settlement points where a free record does,
// at (0, 0), which the view's clamp turns into the top-left corner.
struct GotoTarget {
    int x = 0;
    int y = 0;
};
GotoTarget settlementPositionFor(const World &world, std::string_view numberText);

} // namespace wayscribe
