#pragma once

#include <TambleCore/Images/ImageJobSettings.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tamble {

using Bytes = std::vector<std::byte>;
using ByteView = std::span<const std::byte>;

/// What must not be in a picture's file any more.
enum class MetadataRemoval { nothing, location, everything };

MetadataRemoval metadataRemoval(const ImageJobSettings& settings);

/// The metadata of one picture as its containers carry it.
struct MetadataBlocks {
    /// A TIFF structure, without the "Exif\0\0" that JPEG puts before it.
    std::optional<Bytes> exif;
    /// A serialized XMP packet.
    std::optional<Bytes> xmp;
    /// IPTC-IIM records, without the image resource block that JPEG and TIFF put around them.
    std::optional<Bytes> iptc;
    std::optional<Bytes> icc;
};

/// The blocks of a picture that has been turned upright and perhaps scaled: what `removal` names is gone
/// (everything keeps at most the ICC profile), orientation says upright, EXIF pixel dimensions are the new
/// ones, and the embedded thumbnail, which shows the old picture, is gone.
MetadataBlocks carriedOver(MetadataBlocks source, MetadataRemoval removal, int width, int height);

/// The encoded picture with the blocks put in; `encoded` holds no such blocks yet. For JPEG, PNG, WebP and
/// TIFF; other formats come back unchanged. The ICC block is written only where `encoded` has no profile.
Bytes withMetadata(Bytes encoded, ImageFormat format, const MetadataBlocks& blocks);

/// What could be found in the file that `removal` should have taken away, one short phrase each, as "GPS
/// position in EXIF". Empty when nothing is left. Works on every format that pictures can be saved in.
std::vector<std::string> remainingTraces(ByteView file, ImageFormat format, MetadataRemoval removal);

}  // namespace tamble
