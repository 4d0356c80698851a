#pragma once

#include <TambleCore/Images/Metadata/Metadata.h>

#include <vips/vips8>

namespace tamble {

/// The picture (grey, RGB or CMYK in 8 or 16 bits, perhaps with alpha) converted from its profile to 8-bit
/// sRGB, in one step and relative to white, with black points matched. Throws vips::VError when the profile
/// does not fit.
vips::VImage toSRGB(const vips::VImage& image, ByteView profile);

}  // namespace tamble
