#pragma once

#include <TambleCore/Images/Codec/Encoders.h>

namespace tamble {

/// A JPEG made of a JPEG, turned and no larger than `maxPixelSize`, without ever leaving its own colours: its
/// channels are decoded, scaled and encoded one by one, half the work of going through RGB. Empty when the
/// file's channels are not grey or luma and colour differences. Throws ConversionError; Cancelled.
std::optional<EncodedPicture> rescaledJpeg(ByteView file, std::optional<int> maxPixelSize, const Turn& turn,
                                           const Encoding& encoding, const WorkContext& context);

}  // namespace tamble
