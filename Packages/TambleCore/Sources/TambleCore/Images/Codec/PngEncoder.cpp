#include <TambleCore/Images/Codec/Encoders.h>
#include <TambleCore/Images/Codec/SavedByVips.h>

namespace tamble {
namespace {

struct Way {
    int compression;
    VipsForeignPngFilter filter;
};

Way wayFor(const Encoding& encoding) {
    switch (encoding.png) {
        // Each the last level before the next takes half as long again: of 50 pages of text the next would
        // save 3 %, of photographs as much.
        case PngEffort::quickFlat:
            return {3, VIPS_FOREIGN_PNG_FILTER_NONE};
        case PngEffort::quick:
            return {4, VIPS_FOREIGN_PNG_FILTER_SUB};
        case PngEffort::thorough:
            break;
    }
    return {encoding.smallest ? 9 : 6, VIPS_FOREIGN_PNG_FILTER_ALL};
}

}  // namespace

Bytes encodedPng(const vips::VImage& image, const Encoding& encoding) {
    const auto [compression, filter] = wayFor(encoding);
    return savedByVips(
        image, "pngsave_buffer",
        vips::VImage::option()->set("compression", compression)->set("filter", filter)->set("strip", true));
}

}  // namespace tamble
