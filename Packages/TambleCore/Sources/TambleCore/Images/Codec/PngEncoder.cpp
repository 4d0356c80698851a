#include <TambleCore/Images/Codec/Encoders.h>
#include <TambleCore/Images/Codec/SavedByVips.h>

namespace tamble {

Bytes encodedPng(const vips::VImage& image, const Encoding& encoding) {
    // The last of deflate's fast levels; the next takes half as long again for pages that are 3 % smaller.
    constexpr int fast = 3;
    return savedByVips(
        image, "pngsave_buffer",
        vips::VImage::option()
            ->set("compression", encoding.smallest ? 9
                                 : encoding.flat   ? fast
                                                   : 6)
            ->set("filter", encoding.flat ? VIPS_FOREIGN_PNG_FILTER_NONE : VIPS_FOREIGN_PNG_FILTER_ALL)
            ->set("strip", true));
}

}  // namespace tamble
