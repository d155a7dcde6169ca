#pragma once

#include <cstdint>

namespace wayscribe::sample {

// Smooth value noise over the plane: hashed values on a unit lattice,
// blended with a smoothstep. Only additions, multiplications and floor are
// used, so the values are the same on every machine.
class ValueNoise {
  public:
    explicit ValueNoise(std::uint64_t seed) : seed_(seed) {}

    // 0..1, changing smoothly over about one unit.
    double at(double x, double y) const;
    // Several layers of halving size and weight, normalised back to 0..1.
    double fractal(double x, double y, int layers) const;

  private:
    double lattice(std::int64_t ix, std::int64_t iy) const;

    std::uint64_t seed_;
};

} // namespace wayscribe::sample
