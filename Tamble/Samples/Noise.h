#pragma once

#include <cstdint>

namespace tamble::samples {

/// From one value (at 0) to the other (at 1). Unlike std::lerp it does not care for the last bit, and is
/// fast.
constexpr double between(double from, double to, double amount) {
    return from + (to - from) * amount;
}

/// A random number in 0…1 that depends on the arguments alone, the same on every machine.
double hashed(std::int64_t x, std::int64_t y, std::uint32_t seed);

/// Smooth value noise in 0…1 with one feature per unit.
double noise(double x, double y, std::uint32_t seed);

/// Noise in 0…1 of `octaves` layers, each half as large and half as strong as the one before.
double layeredNoise(double x, double y, int octaves, std::uint32_t seed);

}  // namespace tamble::samples
