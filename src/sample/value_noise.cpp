#include "sample/value_noise.h"

#include <cmath>

namespace wayscribe::sample {

namespace {

std::uint64_t mix(std::uint64_t z)
{
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

double smooth(double t)
{
    return t * t * (3.0 - 2.0 * t);
}

} // namespace

double ValueNoise::lattice(std::int64_t ix, std::int64_t iy) const
{
    std::uint64_t h = mix(seed_);
    h = mix(h ^ static_cast<std::uint64_t>(ix) * 0xC2B2AE3D27D4EB4Full);
    h = mix(h ^ static_cast<std::uint64_t>(iy) * 0x165667B19E3779F9ull);
    return static_cast<double>(h >> 11) * (1.0 / 9007199254740992.0);
}

double ValueNoise::at(double x, double y) const
{
    const double fx = std::floor(x);
    const double fy = std::floor(y);
    const auto ix = static_cast<std::int64_t>(fx);
    const auto iy = static_cast<std::int64_t>(fy);
    const double tx = smooth(x - fx);
    const double ty = smooth(y - fy);
    const double top = lattice(ix, iy) + (lattice(ix + 1, iy) - lattice(ix, iy)) * tx;
    const double bottom = lattice(ix, iy + 1) + (lattice(ix + 1, iy + 1) - lattice(ix, iy + 1)) * tx;
    return top + (bottom - top) * ty;
}

double ValueNoise::fractal(double x, double y, int layers) const
{
    double sum = 0.0;
    double weight = 1.0;
    double total = 0.0;
    for (int layer = 0; layer < layers; ++layer) {
        // Each layer its own lattice, shifted so that the lattice points of
        // the layers do not line up.
        const ValueNoise layerNoise(seed_ + static_cast<std::uint64_t>(layer) * 0x632BE59BD9B4E019ull);
        sum += layerNoise.at(x + layer * 17.31, y + layer * 29.77) * weight;
        total += weight;
        weight *= 0.5;
        x *= 2.0;
        y *= 2.0;
    }
    return sum / total;
}

} // namespace wayscribe::sample
