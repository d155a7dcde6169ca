#pragma once

#include <cstdint>

namespace wayscribe::sample {

// Smooth value noise over the map: hashed values on a lattice, blended with
// a smoothstep, in whole numbers only. Floating point would let compilers
// that fuse multiply and add give other worlds for the same seed.
class ValueNoise {
public:
    static constexpr int kRange = 1 << 16; // values are 0..kRange-1

    explicit ValueNoise(std::uint64_t seed) : seed_(seed) {}

    // The value at sector (x, y) of `layers` layers, the first with lattice
    // points `cell` sectors apart, each further one half the size and half
    // the weight of the one before.
    int fractal(int x, int y, int cell, int layers) const;

private:
    // x and y in sixteenths of sixteen bits (16.16 fixed point).
    int at(std::int64_t x, std::int64_t y) const;
    int lattice(std::int64_t ix, std::int64_t iy) const;

    std::uint64_t seed_;
};

} // namespace wayscribe::sample
