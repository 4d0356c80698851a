#pragma once

#include <TambleCore/Images/Codec/Encoders.h>
#include <TambleCore/Images/Codec/Geometry.h>

#include <webp/encode.h>

namespace tamble {

/// A picture in libwebp's own planes.
class WebPPlanes {
  public:
    struct Kind {
        bool lossless = false;
        bool hasAlpha = false;
    };
    /// Throws ConversionError::tooLargeForWebP for a side above 16383 pixels; encodeFailed without enough
    /// memory.
    WebPPlanes(PictureSize size, Kind kind);
    ~WebPPlanes() { WebPPictureFree(&picture_); }
    WebPPlanes(const WebPPlanes&) = delete;
    WebPPlanes& operator=(const WebPPlanes&) = delete;

    WebPPicture& picture() { return picture_; }

  private:
    WebPPicture picture_;
};

/// What libwebp makes of the picture with the settings of its simple encoding calls, which can neither report
/// progress nor be stopped. Throws ConversionError::encodeFailed; Cancelled.
Bytes encodedPicture(WebPPicture& picture, const Encoding& encoding, const Watch& watch);

}  // namespace tamble
