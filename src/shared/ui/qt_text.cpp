#include "shared/ui/qt_text.h"

#include <array>

namespace wayscribe {

namespace {

// Code points of bytes 0x80..0x9F; the bytes without a character map to
// the control character of the same number, so every byte survives a round
// trip.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

} // namespace

QString toQString(std::string_view text)
{
    QString out;
    out.reserve(static_cast<qsizetype>(text.size()));
    for (char c : text) {
        const auto b = static_cast<unsigned char>(c);
        out.append(b >= 0x80 && b < 0xA0 ? QChar(kHighControls[b - 0x80]) : QChar(b));
    }
    return out;
}

std::string fromQString(const QString &text)
{
    std::string out;
    out.reserve(static_cast<std::size_t>(text.size()));
    for (QChar qc : text) {
        const char16_t u = qc.unicode();
        if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) {
            out.push_back(static_cast<char>(u));
            continue;
        }
        char mapped = '?';
        for (std::size_t i = 0; i < kHighControls.size(); ++i)
            if (kHighControls[i] == u)
                mapped = static_cast<char>(0x80 + i);
        out.push_back(mapped);
    }
    return out;
}

} // namespace wayscribe
