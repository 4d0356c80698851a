#pragma once

#include <TambleCore/Images/Codec/Geometry.h>
#include <TambleCore/Images/Metadata/Metadata.h>
#include <TambleCore/Support/WorkContext.h>

namespace tamble {

struct DevelopedRaw {
    vips::VImage image;
    /// The sides without halving.
    PictureSize fullSize;
};

/// A camera raw file developed with the camera's white balance: upright 8-bit sRGB. It is developed at half
/// its size, four times as fast, where that is still no smaller than `maxPixelSize`. Throws
/// ConversionError::unreadable for other files, cannotDecode for damaged ones; Cancelled.
DevelopedRaw developed(ByteView file, std::optional<int> maxPixelSize, const WorkContext& context);

}  // namespace tamble
