#pragma once

#include <cstdint>
#include <span>

#include <vips/vips8>

namespace tamble {

/// A picture of its own with these 8-bit samples: width · height · bands of them, one, three or four bands of
/// grey or sRGB.
vips::VImage pictureOf(std::span<const std::uint8_t> samples, int width, int height, int bands);

}  // namespace tamble
