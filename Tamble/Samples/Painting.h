#pragma once

#include <cstdint>
#include <vector>

namespace tamble::samples {

/// sRGB values and opacity, each 0…1; values beyond are clamped when painted.
struct Colour {
    double red = 0;
    double green = 0;
    double blue = 0;
    double opacity = 1;
};

/// From one colour (at 0 and below) to the other (at 1 and above).
Colour mix(const Colour& from, const Colour& to, double amount);
/// Adds light of a colour.
Colour lit(const Colour& colour, const Colour& light, double amount);
/// 0 up to `start`, 1 from `end` on, smooth between.
double smoothStep(double start, double end, double value);

/// A place in a picture: the height runs from 0 at the top to 1, the width from 0 to `aspect`.
struct Place {
    double x = 0;
    double y = 0;
    double aspect = 1;
};

/// A picture is a function of the place.
using Scene = Colour (*)(const Place&);

struct PictureSize {
    int width = 0;
    int height = 0;
};

enum class Bands : int { rgb = 3, rgba = 4 };

/// The scene as 8-bit pixels, row by row, the bands of a pixel side by side. Painted on all cores.
std::vector<std::uint8_t> painted(Scene scene, PictureSize size, Bands bands);

}  // namespace tamble::samples
