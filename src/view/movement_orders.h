#pragma once

#include <optional>
#include <string>

namespace wayscribe {

struct MovementState;
class Platform;

// The game's "M" orders for the path: one direction digit for each square
// that differs from the one before, eight digits to an order, orders on
// lines of their own ("M 34512345" CR LF "M 6").
struct MovementOrders {
    std::string text;
    int digits = 0;
    int orders = 0;
};

MovementOrders movementOrders(const MovementState &movement);

// cmdMPCommandClipboard: with the counter on, puts the orders on the
// clipboard (an empty text when there are none) and tells the person what
// was copied. Returns the clipboard text, or nothing when the counter is off
// and the clipboard was left alone.
std::optional<std::string> copyMovementOrders(const MovementState &movement, Platform &platform);

} // namespace wayscribe
