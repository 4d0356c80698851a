#pragma once

#include <TambleCore/Images/Codec/Turn.h>

#include <vips/vips8>

namespace tamble {

/// Sides in pixels.
struct PictureSize {
    int width = 0;
    int height = 0;

    int longestSide() const { return std::max(width, height); }
    friend bool operator==(const PictureSize&, const PictureSize&) = default;
};

/// The size whose longest side is at most `maxPixelSize`, in the same proportions; never larger, never below
/// one pixel.
PictureSize fitted(PictureSize size, std::optional<int> maxPixelSize);

/// The largest of 1, 2, 4, 8 by which a decoder can divide the sides without falling below the size wanted.
int decoderShrink(PictureSize from, PictureSize to);

/// The picture in exactly that size, see-through pixels weighed by their alpha.
vips::VImage scaled(const vips::VImage& image, PictureSize size);

/// The picture turned. All but mirroring left to right reads it in another order than it is decoded in, so it
/// is held in memory first, or in an unnamed temporary file when it is very large.
vips::VImage turned(const vips::VImage& image, const Turn& turn);

/// All pixels of the picture, computed once.
vips::VImage held(const vips::VImage& image);

}  // namespace tamble
