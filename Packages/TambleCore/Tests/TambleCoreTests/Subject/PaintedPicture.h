#pragma once

#include <TambleCore/Images/SubjectMask.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

namespace tamble {

using Colour = std::array<int, 3>;

/// A picture made by the tests, with its noise.
struct PaintedPicture {
    int width;
    int height;
    std::vector<std::uint8_t> pixels;

    SubjectPicture view() const { return {pixels, width, height}; }
};

/// `colourAt(x, y)` for every pixel, with even noise of `noise` levels either way.
template <typename ColourAt>
PaintedPicture paint(int width, int height, int noise, const ColourAt& colourAt) {
    PaintedPicture picture{width, height, {}};
    std::minstd_rand random(7);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (const int value : colourAt(x, y)) {
                const int shift = static_cast<int>(random() % static_cast<unsigned>(2 * noise + 1)) - noise;
                picture.pixels.push_back(static_cast<std::uint8_t>(std::clamp(value + shift, 0, 255)));
            }
        }
    }
    return picture;
}

/// A disc in a picture of any size: centre and radius as fractions of the picture's width.
struct Disc {
    double x = 0.5;
    double y = 0.4;
    double radius = 0.2;

    bool covers(int column, int row, int width) const {
        return std::hypot(column + 0.5 - x * width, row + 0.5 - y * width) < radius * width;
    }
};

/// The share of the pixels in either the mask (above one half) or the disc that are in both.
inline double overlap(const std::vector<std::uint8_t>& mask, const PaintedPicture& picture,
                      const Disc& disc) {
    double both = 0;
    double either = 0;
    for (std::size_t i = 0; i < mask.size(); ++i) {
        const int index = static_cast<int>(i);
        const bool in = disc.covers(index % picture.width, index / picture.width, picture.width);
        both += in && mask[i] > 127 ? 1 : 0;
        either += in || mask[i] > 127 ? 1 : 0;
    }
    return both / either;
}

}  // namespace tamble
