#include "storage/desktop_options.h"

#include "model/program_state.h"

#include <algorithm>
#include <charconv>

namespace wayscribe {

namespace {

// The older reader splits every line at commas and acts on any piece that
// begins like one of its keys, so a path such as "/maps,Set/a.om1" would
// change the tile set. Commas, quotes, percent signs and control bytes are
// therefore written as %XX.
std::string escapeValue(std::string_view value)
{
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string out;
    for (const unsigned char c : value) {
        if (c == ',' || c == '"' || c == '%' || c < 0x20) {
            out += '%';
            out += kHex[c >> 4];
            out += kHex[c & 15];
        } else {
            out += static_cast<char>(c);
        }
    }
    return out;
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

std::string unescapeValue(std::string_view value)
{
    std::string out;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '%' && i + 2 < value.size() && hexDigit(value[i + 1]) >= 0 &&
            hexDigit(value[i + 2]) >= 0) {
            out += static_cast<char>(hexDigit(value[i + 1]) * 16 + hexDigit(value[i + 2]));
            i += 2;
        } else {
            out += value[i];
        }
    }
    return out;
}

bool readNumber(std::string_view text, int low, int high, int &value)
{
    int v = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), v);
    if (error != std::errc() || end != text.data() + text.size() || v < low || v > high)
        return false;
    value = v;
    return true;
}

void applyLine(std::string_view key, std::string_view value, DesktopOptions &options)
{
    if (key == "Zoom") {
        readNumber(value, 1, kMaxZoom, options.zoom);
    } else if (key == "AutosaveMinutes") {
        readNumber(value, 0, 24 * 60, options.autosaveMinutes);
    } else if (key.starts_with("Recent")) {
        int slot = 0;
        if (readNumber(key.substr(6), 1, kMaxRecentMaps, slot) && !value.empty() &&
            options.recentMaps.size() < static_cast<std::size_t>(kMaxRecentMaps))
            options.recentMaps.push_back(unescapeValue(value));
    }
}

std::string_view trimmed(std::string_view s)
{
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t'))
        s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r'))
        s.remove_suffix(1);
    return s;
}

} // namespace

void readDesktopOptions(std::string_view text, DesktopOptions &options)
{
    options = DesktopOptions{};
    bool inSection = false;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view line = trimmed(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.starts_with('[')) {
            inSection = line == kDesktopSection;
            continue;
        }
        const std::size_t equals = line.find('=');
        if (!inSection || line.starts_with('#') || equals == std::string_view::npos)
            continue;
        applyLine(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)), options);
    }
}

std::string desktopOptionsText(const DesktopOptions &options)
{
    std::string t;
    auto line = [&t](std::string_view s) {
        t.append(s);
        t.append("\r\n");
    };
    line(kDesktopSection);
    line("# Desktop options");
    line("Zoom = " + std::to_string(options.zoom));
    line("AutosaveMinutes = " + std::to_string(options.autosaveMinutes));
    for (std::size_t i = 0; i < options.recentMaps.size() && i < static_cast<std::size_t>(kMaxRecentMaps);
         ++i)
        line("Recent" + std::to_string(i + 1) + " = " + escapeValue(options.recentMaps[i]));
    line("");
    return t;
}

void rememberRecentMap(DesktopOptions &options, const std::string &path)
{
    auto &recent = options.recentMaps;
    recent.erase(std::remove(recent.begin(), recent.end(), path), recent.end());
    recent.insert(recent.begin(), path);
    if (recent.size() > static_cast<std::size_t>(kMaxRecentMaps))
        recent.resize(kMaxRecentMaps);
}

} // namespace wayscribe
