#include "Painting.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <cstddef>
#include <thread>

#include "Noise.h"

namespace tamble::samples {

Colour mix(const Colour& from, const Colour& to, double amount) {
    const double t = std::clamp(amount, 0.0, 1.0);
    return {between(from.red, to.red, t), between(from.green, to.green, t), between(from.blue, to.blue, t),
            between(from.opacity, to.opacity, t)};
}

Colour lit(const Colour& colour, const Colour& light, double amount) {
    return {colour.red + light.red * amount, colour.green + light.green * amount,
            colour.blue + light.blue * amount, colour.opacity};
}

double smoothStep(double start, double end, double value) {
    const double t = std::clamp((value - start) / (end - start), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

std::vector<std::uint8_t> painted(Scene scene, PictureSize size, Bands bands) {
    const auto width = static_cast<std::size_t>(size.width);
    const auto bandCount = static_cast<std::size_t>(bands);
    std::vector<std::uint8_t> pixels(width * static_cast<std::size_t>(size.height) * bandCount);

    // A little grain, as a camera gives, keeps gradients from showing steps.
    const auto level = [](double value, double grain) {
        return static_cast<std::uint8_t>(std::clamp(value * 255 + grain, 0.0, 255.0) + 0.5);
    };
    const auto paintRow = [&](int row) {
        auto* pixel = pixels.data() + static_cast<std::size_t>(row) * width * bandCount;
        for (int column = 0; column < size.width; ++column, pixel += bandCount) {
            const Colour colour = scene({.x = (column + 0.5) / size.height,
                                         .y = (row + 0.5) / size.height,
                                         .aspect = static_cast<double>(size.width) / size.height});
            const double grain = 3 * (hashed(column, row, 1) + hashed(column, row, 2) - 1);
            const std::array values{level(colour.red, grain), level(colour.green, grain),
                                    level(colour.blue, grain), level(colour.opacity, 0)};
            std::copy_n(values.begin(), bandCount, pixel);
        }
    };

    std::atomic<int> nextRow = 0;
    std::vector<std::jthread> painters;
    for (unsigned painter = 0; painter < std::max(1U, std::thread::hardware_concurrency()); ++painter) {
        painters.emplace_back([&] {
            for (int row = nextRow++; row < size.height; row = nextRow++) paintRow(row);
        });
    }
    painters.clear();
    return pixels;
}

}  // namespace tamble::samples
