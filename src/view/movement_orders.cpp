#include "view/movement_orders.h"

#include "model/platform.h"
#include "model/program_state.h"
#include "model/text.h"

namespace wayscribe {

namespace {

constexpr int kDigitsPerOrder = 8;

int sign(int v)
{
    return (v > 0) - (v < 0);
}

// The game's direction digits: 1 north, then clockwise to 8 north-west. Only
// the signs of the differences count; Y grows southward. 0 for no move.
char directionDigit(int dx, int dy)
{
    static constexpr char digits[3][3] = {
        // dx = -1, 0, 1
        {'8', '1', '2'}, // dy = -1
        {'7', 0, '3'},   // dy = 0
        {'6', '5', '4'}, // dy = 1
    };
    return digits[sign(dy) + 1][sign(dx) + 1];
}

} // namespace

MovementOrders movementOrders(const MovementState &movement)
{
    MovementOrders result;
    int prevX = movement.pathX[0], prevY = movement.pathY[0];
    for (int i = 1; i <= kMaxPathEntries; ++i) {
        const int x = movement.pathX[i], y = movement.pathY[i];
        if (x == 0 || y == 0)
            continue;
        const char digit = directionDigit(x - prevX, y - prevY);
        if (digit == 0)
            continue;
        if (result.digits % kDigitsPerOrder == 0) {
            result.text += result.orders == 0 ? "M " : "\r\nM ";
            ++result.orders;
        }
        result.text += digit;
        ++result.digits;
        prevX = x;
        prevY = y;
    }
    return result;
}

std::optional<std::string> copyMovementOrders(const MovementState &movement, Platform &platform)
{
    if (movement.moveCounterOn != 1)
        return std::nullopt;
    const MovementOrders orders = movementOrders(movement);
    // The clipboard is replaced even by an empty text, so that an old order
    // cannot be pasted by mistake.
    platform.setClipboardText(orders.text);
    if (orders.orders < 1)
        platform.message("No orders were copied to your clipboard. \r\n"
                         "Please select at least 1 movement square after the start square.",
                         kProgramTitle, MessageButtons::Ok, MessageIcon::None);
    else
        platform.message("You moved " + formatPlain(orders.digits) + " sectors, using " +
                             formatPlain(orders.orders) +
                             " orders.\r\n"
                             "The necessary 'M' commands have been copied to the clipboard.\r\n"
                             "You can now 'Paste' it to a turn or elsewhere.",
                         kProgramTitle, MessageButtons::Ok, MessageIcon::None);
    return orders.text;
}

} // namespace wayscribe
