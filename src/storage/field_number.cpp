#include "storage/field_number.h"

#include "model/text.h"

namespace wayscribe {

bool fieldNumber(std::string_view text, long min, long max, long &value, std::string &reason)
{
    const double v = roundHalfEven(textValueOrInfinity(text));
    if (!(v >= static_cast<double>(min) && v <= static_cast<double>(max))) {
        reason = "the number \"" + std::string(trimBlanks(text).substr(0, 40)) + "\" does not fit its field";
        return false;
    }
    value = static_cast<long>(v);
    return true;
}

} // namespace wayscribe
