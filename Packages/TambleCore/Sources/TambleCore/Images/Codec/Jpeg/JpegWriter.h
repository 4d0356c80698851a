#pragma once

#include <TambleCore/Images/Codec/Encoders.h>

namespace tamble {

/// Encodes channels that are luma alone, or luma and two colour differences of the same size or half its
/// sides (rounded up), as they are. Each is an 8-bit picture of one band, in memory. Throws
/// ConversionError::encodeFailed.
Bytes encodedJpeg(std::span<const vips::VImage> planes, const Encoding& encoding);

}  // namespace tamble
