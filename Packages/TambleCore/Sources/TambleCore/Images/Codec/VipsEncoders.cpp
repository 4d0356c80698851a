#include <TambleCore/Images/Codec/Encoders.h>
#include <TambleCore/Images/Codec/SavedByVips.h>

#include <cmath>

namespace tamble {

Bytes encodedJpeg(const vips::VImage& image, const Encoding& encoding) {
    return savedByVips(image, "jpegsave_buffer",
                       vips::VImage::option()
                           ->set("Q", static_cast<int>(std::lround(encoding.factor * 100)))
                           ->set("optimize_coding", !encoding.lean)
                           ->set("interlace", encoding.smallest)
                           ->set("strip", true));
}

Bytes encodedTiff(const vips::VImage& image) {
    return savedByVips(image, "tiffsave_buffer",
                       vips::VImage::option()
                           ->set("compression", VIPS_FOREIGN_TIFF_COMPRESSION_DEFLATE)
                           ->set("predictor", VIPS_FOREIGN_TIFF_PREDICTOR_HORIZONTAL)
                           ->set("strip", true));
}

Bytes encodedGif(const vips::VImage& image) {
    return savedByVips(image, "gifsave_buffer", vips::VImage::option()->set("strip", true));
}

}  // namespace tamble
