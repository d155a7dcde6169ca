#pragma once

#include <string>
#include <string_view>

namespace wayscribe {

struct DesktopOptions;

// The options this program adds to the options file live in a section of
// their own, after every line the file has always held, so that the older
// lines read and write exactly as before.
inline constexpr std::string_view kDesktopSection = "[Desktop]";

// Applies the lines of the desktop section of an options file's text; other
// sections, unknown keys and values out of range are skipped.
void readDesktopOptions(std::string_view text, DesktopOptions &options);

// The desktop section, ready to be appended to the options file.
std::string desktopOptionsText(const DesktopOptions &options);

// Puts `path` at the top of the recent maps, once, keeping the newest ones.
void rememberRecentMap(DesktopOptions &options, const std::string &path);

} // namespace wayscribe
