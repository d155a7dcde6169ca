#pragma once

#include "sample/sample_random.h"

#include <set>
#include <string>

namespace wayscribe::sample {

// A one-word place name of at most 12 characters, first letter upper case
// and the rest lower case, the way turn reports leave settlement names.
std::string placeName(SampleRandom &random);

// A first name for shop keepers ("Osric").
std::string keeperName(SampleRandom &random);

// A dungeon name without full stops, since a dungeon note ends its name at
// the first one ("Sunken Crypts", "Tomb Of Morgath").
std::string dungeonName(SampleRandom &random);

// Hands out names that were not handed out before.
class UniqueNames {
public:
    template <class Maker> std::string next(SampleRandom &random, Maker make)
    {
        while (true) {
            std::string name = make(random);
            if (used_.insert(name).second)
                return name;
        }
    }
    void reserve(const std::string &name) { used_.insert(name); }

private:
    std::set<std::string> used_;
};

} // namespace wayscribe::sample
