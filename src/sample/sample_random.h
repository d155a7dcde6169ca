#pragma once

#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

namespace wayscribe::sample {

// splitmix64. A sample world must come out byte for byte the same from the
// same seed on every machine and library version, which the standard
// distributions do not promise.
class SampleRandom {
public:
    explicit SampleRandom(std::uint64_t seed) : state_(seed) {}

    // An independent stream for one part of the world, so that changing how
    // one part is made does not shift the numbers every later part draws.
    static SampleRandom stream(std::uint64_t seed, std::uint64_t part)
    {
        SampleRandom mixer(seed ^ (part * 0xD1B54A32D192ED03ull));
        return SampleRandom(mixer.next());
    }

    std::uint64_t next()
    {
        std::uint64_t z = (state_ += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }

    // A whole number from lo to hi, both included.
    int between(int lo, int hi)
    {
        const auto span = static_cast<std::uint64_t>(static_cast<std::int64_t>(hi) - lo + 1);
        return lo + static_cast<int>(next() % span);
    }

    bool percent(int chance) { return between(1, 100) <= chance; }

    template <class Container> const auto &pick(const Container &items)
    {
        return items[static_cast<std::size_t>(between(0, static_cast<int>(std::size(items)) - 1))];
    }

    // `count` different positions of 0..size-1, in ascending order.
    std::vector<int> choose(int size, int count)
    {
        std::vector<int> chosen;
        for (int i = 0; i < size && static_cast<int>(chosen.size()) < count; ++i)
            if (between(0, size - i - 1) < count - static_cast<int>(chosen.size()))
                chosen.push_back(i);
        return chosen;
    }

    template <class T> void shuffle(std::vector<T> &items)
    {
        for (std::size_t i = items.size(); i > 1; --i)
            std::swap(items[i - 1], items[static_cast<std::size_t>(between(0, static_cast<int>(i) - 1))]);
    }

private:
    std::uint64_t state_;
};

} // namespace wayscribe::sample
