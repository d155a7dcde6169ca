#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace wayscribe {

// The model holds single-byte Windows-1252 texts; the windows show QStrings.
// Every conversion between the two goes through these.
QString toQString(std::string_view text);
std::string fromQString(const QString &text);

} // namespace wayscribe
