#pragma once

#include <TambleCore/Images/ImageFormat.h>
#include <TambleCore/Images/Metadata/Metadata.h>

#include <vips/vips8>

namespace tamble {

/// Pixels as a format takes them, and the profile that says how their colours look (sRGB when absent).
struct ColouredPicture {
    vips::VImage image;
    std::optional<Bytes> profile;
};

/// The picture with the channels, depth and colours that the format can carry, looking the same. A profile is
/// kept where the format carries it and applied where not. CMYK stays only when the format is the picture's
/// own.
ColouredPicture colouredFor(vips::VImage image, ImageFormat format, bool isOwnFormat);

}  // namespace tamble
