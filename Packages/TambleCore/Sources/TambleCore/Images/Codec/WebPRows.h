#pragma once

#include <TambleCore/Images/Codec/WebPPictureEncoder.h>

#include <cstdint>
#include <vector>

namespace tamble {

/// A picture in libwebp's own planes, filled piece by piece from RGB or RGBA rows: exactly what its simple
/// encoding calls make of the whole picture at once, without the whole picture ever being there.
class WebPRows {
  public:
    /// `bands` is 3 or 4. Throws as WebPPlanes does.
    WebPRows(PictureSize size, int bands, bool lossless);

    /// The next rows, in order from the top.
    void take(int top, int height, const std::uint8_t* pixels, std::size_t stride);

    WebPPicture& picture() { return planes_.picture(); }

  private:
    void import(int top, int height, const std::uint8_t* pixels, std::size_t stride);

    WebPPlanes planes_;
    int bands_;
    /// Two rows: the last of a piece with an odd number of them waits for its neighbour, since colour is
    /// shared in blocks of two by two pixels.
    std::vector<std::uint8_t> pair_;
    bool oneWaits_ = false;
};

}  // namespace tamble
