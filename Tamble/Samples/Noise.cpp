#include "Noise.h"

namespace tamble::samples {

double hashed(std::int64_t x, std::int64_t y, std::uint32_t seed) {
    // The finisher of splitmix64 over a mix of the three.
    auto h = static_cast<std::uint64_t>(x) * 0x9E3779B97F4A7C15U ^
             static_cast<std::uint64_t>(y) * 0xC2B2AE3D27D4EB4FU ^ (std::uint64_t{seed} << 32U);
    h = (h ^ (h >> 30U)) * 0xBF58476D1CE4E5B9U;
    h = (h ^ (h >> 27U)) * 0x94D049BB133111EBU;
    h ^= h >> 31U;
    return static_cast<double>(h >> 11U) * 0x1p-53;
}

double noise(double x, double y, std::uint32_t seed) {
    // Rounding down by hand: std::floor is a function call on the smallest x86-64 processors.
    const auto floored = [](double value) {
        const auto whole = static_cast<std::int64_t>(value);
        return static_cast<double>(whole) > value ? whole - 1 : whole;
    };
    const auto eased = [](double t) { return t * t * (3 - 2 * t); };
    const std::int64_t column = floored(x);
    const std::int64_t row = floored(y);
    const double s = eased(x - static_cast<double>(column));
    const double t = eased(y - static_cast<double>(row));
    return between(between(hashed(column, row, seed), hashed(column + 1, row, seed), s),
                   between(hashed(column, row + 1, seed), hashed(column + 1, row + 1, seed), s), t);
}

double layeredNoise(double x, double y, int octaves, std::uint32_t seed) {
    double sum = 0;
    double total = 0;
    double weight = 1;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += weight * noise(x, y, seed + static_cast<std::uint32_t>(octave));
        total += weight;
        weight /= 2;
        x *= 2;
        y *= 2;
    }
    return sum / total;
}

}  // namespace tamble::samples
