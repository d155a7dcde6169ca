#pragma once

#include <string>
#include <string_view>

namespace wayscribe {

// The whole number a stored field's text stands for, rounded half to even.
// False with the reason when it does not fit the field (min..max); a number
// beyond the range of any value, such as "1e309", fits no field.
bool fieldNumber(std::string_view text, long min, long max, long &value, std::string &reason);

} // namespace wayscribe
