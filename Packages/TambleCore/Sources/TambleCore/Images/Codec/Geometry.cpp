#include <TambleCore/Images/Codec/Geometry.h>

#include <cmath>

namespace tamble {
namespace {

/// Pictures above this many bytes are held in a file.
constexpr std::uint64_t mostHeldInMemory = 512ULL << 20;

vips::VImage resampled(const vips::VImage& image, PictureSize size) {
    return image.resize(double{1} * size.width / image.width(),
                        vips::VImage::option()->set("vscale", double{1} * size.height / image.height()));
}

}  // namespace

PictureSize fitted(PictureSize size, std::optional<int> maxPixelSize) {
    const int longest = size.longestSide();
    if (!maxPixelSize || *maxPixelSize >= longest) return size;
    const auto side = [&](int length) {
        return std::max(1, static_cast<int>(std::lround(double{1} * length * *maxPixelSize / longest)));
    };
    return {side(size.width), side(size.height)};
}

int decoderShrink(PictureSize from, PictureSize to) {
    for (const int shrink : {8, 4, 2}) {
        if (from.width / shrink >= to.width && from.height / shrink >= to.height) return shrink;
    }
    return 1;
}

vips::VImage scaled(const vips::VImage& image, PictureSize size) {
    if (image.width() == size.width && image.height() == size.height) return image;
    if (!image.has_alpha()) return resampled(image, size);
    return resampled(image.premultiply(), size).unpremultiply().cast(image.format());
}

vips::VImage held(const vips::VImage& image) {
    if (VIPS_IMAGE_SIZEOF_IMAGE(image.get_image()) <= mostHeldInMemory) return image.copy_memory();
    vips::VImage file = vips::VImage::new_temp_file();
    image.write(file);
    return file;
}

vips::VImage turned(const vips::VImage& image, const Turn& turn) {
    if (turn == Turn{}) return image;
    if (turn == Turn{.mirrorsX = true}) return image.fliphor();
    const vips::VImage pixels = held(image);
    if (!turn.transposes) {
        return turn.mirrorsX ? pixels.rot180() : pixels.flipver();
    }
    // A quarter turn exchanges the sides and mirrors once; whether another mirroring is due depends on the
    // other axis.
    const vips::VImage quarter = turn.mirrorsY ? pixels.rot270() : pixels.rot90();
    return turn.mirrorsX == turn.mirrorsY ? quarter.fliphor() : quarter;
}

}  // namespace tamble
