#pragma once

#include <TambleCore/Images/Codec/Geometry.h>
#include <TambleCore/Images/Codec/Watch.h>
#include <TambleCore/Images/Metadata/Metadata.h>

namespace tamble {

/// How long to look for a small PNG.
enum class PngEffort {
    thorough,
    quick,      ///< takes half the time for a tenth more bytes
    quickFlat,  ///< the same where most pixels look like their neighbours, as on pages of text
};

/// How a picture is to be encoded.
struct Encoding {
    /// The lossy formats' compression factor, 0…1.
    double factor = 0.8;
    /// Take more time for a smaller file.
    bool smallest = false;
    /// JPEG only: take as little memory as the picture itself has, for a file that is a little larger.
    bool lean = false;
    /// WebP only: keep every pixel as it is.
    bool lossless = false;
    /// PNG only.
    PngEffort png = PngEffort::thorough;
};

/// An encoded picture without any metadata or profile, and its sides.
struct EncodedPicture {
    Bytes bytes;
    PictureSize size;
};

// Each answers the encoded picture without any metadata or profile, or throws vips::VError when the pixels
// cannot be computed and ConversionError when they cannot be encoded.

Bytes encodedJpeg(const vips::VImage& image, const Encoding& encoding);
Bytes encodedPng(const vips::VImage& image, const Encoding& encoding);
Bytes encodedTiff(const vips::VImage& image);
Bytes encodedGif(const vips::VImage& image);
/// `image` is 8-bit RGB or RGBA in sRGB. ConversionError::tooLargeForWebP for a side above 16383 pixels.
/// Hand over the only reference to a large picture, so that it makes room for the encoder.
Bytes encodedWebP(vips::VImage image, const Encoding& encoding, const Watch& watch);

/// HEIC or AVIF with EXIF, XMP and profile, which only their own writer can put in. `image` is 8-bit RGB or
/// RGBA.
Bytes encodedHeif(const vips::VImage& image, ImageFormat format, const Encoding& encoding,
                  const MetadataBlocks& blocks);
/// Whether the machine has a coder for HEIC or AVIF.
bool canEncodeHeif(ImageFormat format);

}  // namespace tamble
