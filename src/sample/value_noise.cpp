#include "sample/value_noise.h"

namespace wayscribe::sample {

namespace {

constexpr int kFractionBits = 16;
constexpr std::int64_t kFractionMask = (std::int64_t{1} << kFractionBits) - 1;

std::uint64_t mix(std::uint64_t z)
{
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

// 3t^2 - 2t^3 of a fraction t in sixteen bits.
std::int64_t smooth(std::int64_t t)
{
    return (t * t * (3 * ValueNoise::kRange - 2 * t)) >> (2 * kFractionBits);
}

std::int64_t blend(std::int64_t a, std::int64_t b, std::int64_t t)
{
    return a + (((b - a) * t) >> kFractionBits);
}

} // namespace

int ValueNoise::lattice(std::int64_t ix, std::int64_t iy) const
{
    std::uint64_t h = mix(seed_);
    h = mix(h ^ static_cast<std::uint64_t>(ix) * 0xC2B2AE3D27D4EB4Full);
    h = mix(h ^ static_cast<std::uint64_t>(iy) * 0x165667B19E3779F9ull);
    return static_cast<int>(h >> (64 - kFractionBits));
}

int ValueNoise::at(std::int64_t x, std::int64_t y) const
{
    const std::int64_t ix = x >> kFractionBits, iy = y >> kFractionBits;
    const std::int64_t tx = smooth(x & kFractionMask), ty = smooth(y & kFractionMask);
    const std::int64_t top = blend(lattice(ix, iy), lattice(ix + 1, iy), tx);
    const std::int64_t bottom = blend(lattice(ix, iy + 1), lattice(ix + 1, iy + 1), tx);
    return static_cast<int>(blend(top, bottom, ty));
}

int ValueNoise::fractal(int x, int y, int cell, int layers) const
{
    std::int64_t sum = 0, total = 0;
    for (int layer = 0; layer < layers; ++layer) {
        // Each layer its own lattice, shifted so that the lattice points of
        // the layers do not line up.
        const ValueNoise layerNoise(seed_ + static_cast<std::uint64_t>(layer) * 0x632BE59BD9B4E019ull);
        const std::int64_t shift = static_cast<std::int64_t>(layer) * 1134467;
        const std::int64_t weight = std::int64_t{1} << (layers - 1 - layer);
        sum += layerNoise.at((static_cast<std::int64_t>(x) << (kFractionBits + layer)) / cell + shift,
                             (static_cast<std::int64_t>(y) << (kFractionBits + layer)) / cell + 2 * shift) *
               weight;
        total += weight;
    }
    return static_cast<int>(sum / total);
}

} // namespace wayscribe::sample
