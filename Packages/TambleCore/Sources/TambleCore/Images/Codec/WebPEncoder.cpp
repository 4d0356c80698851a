#include <TambleCore/Images/Codec/Encoders.h>
#include <TambleCore/Images/Codec/RowSink.h>
#include <TambleCore/Images/Codec/WebPRows.h>

namespace tamble {

Bytes encodedWebP(vips::VImage image, const Encoding& encoding, const Watch& watch) {
    WebPRows rows({image.width(), image.height()}, image.bands(), encoding.lossless);
    forEachRow(image, [&](int top, int height, const std::uint8_t* pixels, std::size_t stride) {
        rows.take(top, height, pixels, stride);
    });
    image = {};
    return encodedPicture(rows.picture(), encoding, watch);
}

}  // namespace tamble
