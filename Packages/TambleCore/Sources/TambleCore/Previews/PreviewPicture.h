#pragma once

#include <cstdint>
#include <vector>

namespace tamble {

/// A picture to be shown: rows from the top without gaps between them, one byte a sample, sRGB.
struct PreviewPicture {
    int width = 0;
    int height = 0;
    /// 3, or 4 with straight alpha.
    int channels = 3;
    /// width · height · channels.
    std::vector<std::uint8_t> samples;

    friend bool operator==(const PreviewPicture&, const PreviewPicture&) = default;
};

/// A page's size in points (1/72 inch) as it is shown: cropped and turned.
struct PreviewPage {
    double width = 0;
    double height = 0;

    friend bool operator==(const PreviewPage&, const PreviewPage&) = default;
};

/// The longest side that is drawn for a preview, in pixels.
inline constexpr int longestPreviewSide = 8192;

}  // namespace tamble
