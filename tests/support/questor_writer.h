#pragma once

// Writes QuestOR map files for the tests: the .mp1 file value by value and
// the .mp2 file section by section.

#include "model/world.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace wayscribe::test {

class QuestorMapWriter {
public:
    // One signed 16-bit little-endian value.
    QuestorMapWriter &value(int v)
    {
        const auto u = static_cast<std::uint16_t>(static_cast<std::int16_t>(v));
        bytes_.push_back(static_cast<char>(u & 0xFF));
        bytes_.push_back(static_cast<char>(u >> 8));
        return *this;
    }

    // `count` sectors of a QuestOR terrain code, going on down the columns.
    QuestorMapWriter &run(int count, int code)
    {
        sectors_ += count;
        return value(count * 25 + code);
    }

    // Fills the rest of the map with one code and writes the two values that
    // follow the terrain.
    QuestorMapWriter &finishTerrain(int code = 0)
    {
        const int total = kMapSize * kMapSize;
        while (sectors_ < total)
            run(std::min(total - sectors_, 1000), code);
        return value(7).value(7);
    }

    QuestorMapWriter &nameIndex(int n) { return value(1000 + n); }
    QuestorMapWriter &at(int x, int y) { return value(2000 + x).value(2000 + y); }
    QuestorMapWriter &settlement(int n) { return value(3000 + n); }
    QuestorMapWriter &shop(int number) { return value(number); }
    QuestorMapWriter &shopNameIndex(int n) { return value(5000 + n); }
    // An item as QuestOR writes it: number, price, and the name index when
    // it has one.
    QuestorMapWriter &item(int number, int price, int nameIndex = 0)
    {
        value(number).value(-price);
        return nameIndex ? value(5000 + nameIndex) : *this;
    }

    const std::string &bytes() const { return bytes_; }

private:
    std::string bytes_;
    int sectors_ = 0;
};

// The .mp2 file; `specialSection` must match whether the .mp1 file holds
// items 310..317.
struct QuestorNamesWriter {
    struct Note {
        int x, y;
        std::string text;
    };
    std::vector<Note> notes;
    std::vector<std::string> settlementNames;
    std::vector<std::string> shopNames;
    std::map<int, std::string> itemNames; // 101..1000
    std::vector<std::string> specialNames;
    bool specialSection = false;

    std::string text() const
    {
        std::string t;
        auto line = [&t](const std::string &v) { t += v + "\r\n"; };
        auto quoted = [&line](const std::string &v) { line('"' + v + '"'); };
        for (const Note &n : notes)
            line(std::to_string(n.x) + "," + std::to_string(n.y) + ",\"" + n.text + '"');
        line("255");
        line("1,2,3,4");
        if (!specialSection)
            line("0");
        for (const std::string &s : settlementNames)
            quoted(s);
        line("0,0");
        if (!specialSection)
            line("0");
        for (const std::string &s : shopNames)
            quoted(s);
        line("0");
        for (int k = kQuestorFirstItem; k <= kQuestorLastItem; ++k) {
            const auto found = itemNames.find(k);
            quoted(found == itemNames.end() ? std::string() : found->second);
        }
        if (specialSection) {
            line("0,0");
            for (const std::string &s : specialNames)
                quoted(s);
        }
        return t;
    }
};

} // namespace wayscribe::test
