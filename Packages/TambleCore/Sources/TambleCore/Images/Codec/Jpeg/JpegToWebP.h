#pragma once

#include <TambleCore/Images/Codec/Encoders.h>

namespace tamble {

/// A lossy WebP made of a whole JPEG in sRGB, turned: its luma and colour differences become WebP's own, with
/// no RGB and no second picture in between. Empty when its channels are not such, or when it is larger than
/// `maxPixelSize`. Throws ConversionError; Cancelled.
std::optional<EncodedPicture> webPOfJpeg(ByteView file, std::optional<int> maxPixelSize, const Turn& turn,
                                         const Encoding& encoding, const Watch& watch);

}  // namespace tamble
