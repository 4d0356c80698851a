#include "Scenes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>

#include "Noise.h"

namespace tamble::samples {

namespace {

/// Colours one after the other at equal distances, from 0 to 1.
Colour gradient(std::span<const Colour> colours, double position) {
    const double scaled = std::clamp(position, 0.0, 1.0) * static_cast<double>(colours.size() - 1);
    const auto index = std::min(static_cast<std::size_t>(scaled), colours.size() - 2);
    return mix(colours[index], colours[index + 1], scaled - static_cast<double>(index));
}

double distance(const Place& place, double x, double y) {
    return std::hypot(place.x - x, place.y - y);
}

constexpr double sunsetHorizon = 0.64;

Colour sunsetSky(double x, double y, double sunX) {
    static constexpr std::array colours{Colour{0.13, 0.15, 0.36}, Colour{0.36, 0.25, 0.50},
                                        Colour{0.78, 0.38, 0.44}, Colour{0.98, 0.62, 0.33},
                                        Colour{1.00, 0.86, 0.56}};
    Colour sky = gradient(colours, y / sunsetHorizon);
    const double fromSun = std::hypot(x - sunX, y - 0.56);
    sky = lit(sky, {1.0, 0.62, 0.28}, 0.55 * std::exp(-fromSun * 7));
    const double cloud = smoothStep(0.52, 0.78, layeredNoise(x * 1.7 + 3, y * 9, 6, 11));
    const Colour cloudColour = mix({0.30, 0.20, 0.38}, {1.0, 0.60, 0.42}, std::exp(-fromSun * 1.6));
    sky = mix(sky, cloudColour, 0.75 * cloud * smoothStep(0.62, 0.40, y));
    return mix(sky, {1.0, 0.97, 0.82}, smoothStep(0.058, 0.052, fromSun));
}

}  // namespace

Colour sunset(const Place& place) {
    const double sunX = place.aspect * 0.6;
    if (place.y < sunsetHorizon) return sunsetSky(place.x, place.y, sunX);

    const double depth = (place.y - sunsetHorizon) / (1 - sunsetHorizon);
    // Ripples grow towards the viewer.
    const double reach = 0.04 + depth;
    const double ripple = layeredNoise(place.x * 10 / reach, 60 * std::log(reach), 4, 23) - 0.5;
    const double mirrored = sunsetHorizon - (place.y - sunsetHorizon) * 1.5 + ripple * 0.22 * reach;
    Colour sea = sunsetSky(place.x + ripple * 0.05, std::clamp(mirrored, 0.02, sunsetHorizon - 0.01), sunX);
    sea = mix(sea, {0.07, 0.10, 0.24}, 0.25 + 0.45 * depth);
    const double path = std::exp(-std::pow((place.x - sunX) / (0.05 + 0.16 * depth), 2));
    return lit(sea, {1.0, 0.72, 0.40}, 0.9 * path * smoothStep(0.02, 0.22, ripple));
}

Colour hills(const Place& place) {
    constexpr int ridges = 7;
    for (int ridge = ridges - 1; ridge >= 0; --ridge) {
        const double near = ridge / (ridges - 1.0);
        const auto seed = static_cast<std::uint32_t>(100 + ridge * 10);
        const double broad = layeredNoise(place.x * (2.6 - 1.2 * near) + 5 * ridge, 0, 3, seed);
        const double trees = layeredNoise(place.x * 60 / (0.4 + near), 0, 3, seed + 5);
        const double top = 0.34 + 0.48 * near * near + 0.20 * (0.5 - broad) + 0.012 * near * (0.5 - trees);
        if (place.y < top) continue;
        const double texture = layeredNoise(place.x * 40, place.y * 70, 4, seed + 7);
        const Colour grass = mix({0.10, 0.24, 0.12}, {0.36, 0.48, 0.18}, texture);
        const Colour hill = mix({0.66, 0.76, 0.84}, grass, 0.12 + 0.88 * near);
        // Mist lies at the foot of every ridge but the nearest.
        return mix(hill, {0.90, 0.91, 0.88}, (1 - near) * smoothStep(0.0, 0.22, place.y - top) * 0.7);
    }
    static constexpr std::array sky{Colour{0.42, 0.62, 0.84}, Colour{0.70, 0.82, 0.90},
                                    Colour{0.96, 0.91, 0.82}};
    const double cloud = smoothStep(0.5, 0.8, layeredNoise(place.x * 2.2, place.y * 6, 6, 31));
    return mix(gradient(sky, place.y / 0.6), {1, 1, 1}, 0.8 * cloud * smoothStep(0.5, 0.1, place.y));
}

Colour waves(const Place& place) {
    static constexpr std::array colours{Colour{0.98, 0.90, 0.74}, Colour{0.62, 0.84, 0.80},
                                        Colour{0.16, 0.60, 0.66}, Colour{0.05, 0.38, 0.54},
                                        Colour{0.04, 0.16, 0.32}};
    constexpr int layers = 9;
    double shadow = 0;
    for (int layer = layers - 1; layer >= 0; --layer) {
        const double swing = std::sin(place.x * (3.1 + 0.4 * layer) + layer * 1.9) +
                             0.4 * std::sin(place.x * 8.3 - layer * 2.3);
        const double below = place.y - (0.06 + 0.92 * layer / layers + 0.045 * swing);
        if (below < 0) {
            // Each layer throws a soft shadow on the one above it.
            shadow = std::max(shadow, 0.38 * smoothStep(-0.04, 0.0, below));
            continue;
        }
        const double paper = 0.05 * (layeredNoise(place.x * 90, place.y * 90, 3, 47) - 0.5);
        const Colour sheet = gradient(colours, (layer + 1.0) / layers);
        return mix(lit(sheet, {1, 1, 1}, paper + 0.10 * std::exp(-below * 60)), {0.02, 0.06, 0.12}, shadow);
    }
    return mix(colours.front(), {0.02, 0.06, 0.12}, shadow);
}

namespace {

/// Two rows of pines over `behind`: narrow triangles of different heights, with ragged sides.
Colour pines(const Place& place, const Colour& behind) {
    static constexpr std::array shades{Colour{0.01, 0.02, 0.05}, Colour{0.04, 0.07, 0.13}};
    static constexpr std::array spacings{0.055, 0.030};
    static constexpr std::array grounds{0.99, 0.90};
    if (place.y < 0.6) return behind;
    for (std::size_t row = 0; row < shades.size(); ++row) {
        const double spacing = spacings[row];
        const double ground = grounds[row] + 0.03 * std::sin(place.x * 2.1);
        if (place.y > ground) return shades[row];
        const auto tree = static_cast<std::int64_t>(place.x / spacing);
        for (auto candidate = tree - 1; candidate <= tree + 1; ++candidate) {
            const double height =
                spacing * (2.2 + 2.4 * hashed(candidate, 0, static_cast<std::uint32_t>(80 + row)));
            const double middle = (static_cast<double>(candidate) + 0.5) * spacing;
            const double fromTop = place.y - (ground - height);
            const double ragged = 0.75 + 0.5 * std::fmod(fromTop * 2.75 / spacing, 1.0);
            if (fromTop > 0 && std::abs(place.x - middle) < fromTop * 0.24 * ragged) return shades[row];
        }
    }
    return behind;
}

}  // namespace

Colour night(const Place& place) {
    static constexpr std::array sky{Colour{0.02, 0.03, 0.10}, Colour{0.05, 0.09, 0.24},
                                    Colour{0.16, 0.26, 0.44}};
    Colour colour = gradient(sky, place.y / 0.9);
    const double moonX = place.aspect * 0.28;
    const double fromMoon = distance(place, moonX, 0.27);

    // One star at most in each cell of a grid, few of them bright.
    constexpr double cells = 130;
    const auto column = static_cast<std::int64_t>(place.x * cells);
    const auto row = static_cast<std::int64_t>(place.y * cells);
    const double starX = (static_cast<double>(column) + 0.2 + 0.6 * hashed(column, row, 61)) / cells;
    const double starY = (static_cast<double>(row) + 0.2 + 0.6 * hashed(column, row, 62)) / cells;
    const double brightness = std::pow(hashed(column, row, 63), 9);
    const double glow = std::exp(-std::pow(distance(place, starX, starY) * 1500 / (0.7 + brightness), 2));
    colour = lit(colour, {1.0, 0.96, 0.90}, brightness * glow * smoothStep(0.15, 0.5, fromMoon));

    const double band = std::exp(-std::pow((place.x * 0.5 + place.y - 0.95) / 0.16, 2));
    colour = lit(colour, {0.30, 0.30, 0.42}, band * 0.55 * layeredNoise(place.x * 7, place.y * 7, 6, 67));

    colour = lit(colour, {0.75, 0.80, 0.92}, 0.35 * std::exp(-fromMoon * 5));
    const double craters = layeredNoise(place.x * 26, place.y * 26, 4, 71);
    colour = mix(colour, mix({0.72, 0.73, 0.75}, {0.98, 0.97, 0.92}, smoothStep(0.35, 0.6, craters)),
                 smoothStep(0.091, 0.089, fromMoon));

    return pines(place, colour);
}

Colour dunes(const Place& place) {
    constexpr int ridges = 5;
    for (int ridge = ridges - 1; ridge >= 0; --ridge) {
        const double near = ridge / (ridges - 1.0);
        const double shape = std::sin(place.x * (5.2 - 2.4 * near) + 2.1 * ridge) +
                             0.5 * std::sin(place.x * 9.7 * (1 - 0.5 * near) + ridge);
        const double crest = 0.40 + 0.42 * near - 0.05 * (0.5 + near) * shape;
        if (place.y < crest) continue;
        const double below = place.y - crest;
        // The side away from the light begins at a line that winds down from the crest.
        const double line = std::sin(place.x * (6 - 2 * near) + ridge * 3 + below * 9) + below * 4 - 0.5;
        const double bend = layeredNoise(place.x * 3, place.y * 6, 3, 91) * 10;
        const double ripples = std::sin((place.y * 240 + place.x * 60) / (0.5 + near) + bend * 3);
        const double grain = layeredNoise(place.x * 400, place.y * 400, 2, 97) - 0.5;
        const Colour sand = mix({0.97, 0.76, 0.48}, {0.62, 0.36, 0.24}, smoothStep(-0.08, 0.08, line));
        return mix(lit(sand, {1.0, 0.85, 0.65}, 0.035 * near * ripples + 0.05 * grain), {0.95, 0.86, 0.74},
                   0.55 * (1 - near));
    }
    static constexpr std::array sky{Colour{0.24, 0.50, 0.78}, Colour{0.56, 0.76, 0.88},
                                    Colour{0.95, 0.88, 0.76}};
    return gradient(sky, place.y / 0.5);
}

Colour balloon(const Place& place) {
    static constexpr std::array gores{Colour{0.86, 0.22, 0.20}, Colour{0.97, 0.72, 0.24},
                                      Colour{0.98, 0.94, 0.86}, Colour{0.16, 0.50, 0.62}};
    const double x = place.x - place.aspect / 2;
    Colour colour{0, 0, 0, 0};
    const auto cover = [&colour](const Colour& paint, double edge) {
        const double amount = smoothStep(0.0015, -0.0015, edge);
        const double opacity = amount + colour.opacity * (1 - amount);
        if (opacity <= 0) return;
        Colour mixed = mix(colour, paint, amount / opacity);
        mixed.opacity = opacity;
        colour = mixed;
    };

    // The envelope: round above, drawn in below to the width of the mouth.
    constexpr double middle = 0.37;
    constexpr double radius = 0.33;
    constexpr double mouth = 0.79;
    const double narrowing = std::clamp((place.y - middle) / (mouth - middle), 0.0, 1.0);
    const double half = place.y < middle
                            ? std::sqrt(std::max(0.0, radius * radius - std::pow(place.y - middle, 2)))
                            : between(radius, 0.055, narrowing * narrowing * (1.9 - 0.9 * narrowing));
    for (const double side : {-1.0, 1.0}) {
        const double rope = side * between(0.050, 0.036, (place.y - mouth) / 0.08);
        if (place.y > mouth && place.y < mouth + 0.09) cover({0.25, 0.18, 0.12}, std::abs(x - rope) - 0.0025);
    }
    const double basketEdge = std::max(std::abs(x) - 0.045, std::abs(place.y - 0.915) - 0.045);
    const double weave = 0.5 + 0.5 * std::sin(place.y * 420) * std::sin(x * 420);
    cover(mix({0.42, 0.26, 0.13}, {0.66, 0.45, 0.24}, weave), basketEdge);

    if (place.y > mouth || half <= 0) return colour;
    const double across = std::clamp(x / half, -1.0, 1.0);
    const double angle = std::asin(across) / std::numbers::pi + 0.5;
    Colour cloth = gores[static_cast<std::size_t>(angle * 11.999) % gores.size()];
    const double seam = std::abs(std::fmod(angle * 12, 1.0) - 0.5);
    cloth = mix(cloth, {0.1, 0.05, 0.08}, 0.25 * smoothStep(0.44, 0.5, seam));
    cloth = mix(cloth, {0.12, 0.06, 0.16}, 0.55 * smoothStep(-0.1, 1.2, across));
    cloth = lit(cloth, {1, 1, 0.95}, 0.35 * std::exp(-distance(place, place.aspect / 2 - 0.13, 0.22) * 9));
    cover(cloth, std::abs(x) - half);
    return colour;
}

}  // namespace tamble::samples
