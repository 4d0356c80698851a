#include <TambleCore/Images/Codec/Encoders.h>
#include <TambleCore/Images/Codec/SavedByVips.h>

namespace tamble {

Bytes encodedPng(const vips::VImage& image, const Encoding& encoding) {
    return savedByVips(image, "pngsave_buffer",
                       vips::VImage::option()
                           ->set("compression", encoding.smallest ? 9 : 6)
                           ->set("filter", VIPS_FOREIGN_PNG_FILTER_ALL)
                           ->set("strip", true));
}

}  // namespace tamble
