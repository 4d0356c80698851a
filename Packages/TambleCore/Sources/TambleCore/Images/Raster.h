#pragma once

#include <cstdint>
#include <vector>

namespace tamble {

/// A picture in memory: rows from the top without gaps between them, one byte a sample.
struct Raster {
    int width = 0;
    int height = 0;
    /// 1 for grey, 3 for sRGB, 4 for sRGB with straight alpha.
    int channels = 3;
    /// width · height · channels.
    std::vector<std::uint8_t> samples;
};

/// Drops the colour channels of a picture whose pixels are all grey.
void dropUnusedColour(Raster& picture);

}  // namespace tamble
