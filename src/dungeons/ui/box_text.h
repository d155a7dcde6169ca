#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace wayscribe {

// A multi-line box shows line breaks as LF, the model keeps them as CR LF:
// every multi-line box of notes and dungeons converts through these.
QString toBoxText(std::string_view text);
std::string fromBoxText(const QString &text);

} // namespace wayscribe
