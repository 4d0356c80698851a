#include <TambleCore/Images/Codec/AppleIconRuns.h>
#include <TambleCore/Images/Codec/CameraRaw.h>
#include <TambleCore/Images/Codec/Decoded.h>
#include <TambleCore/Images/Codec/Geometry.h>
#include <TambleCore/Images/Codec/IconFile.h>
#include <TambleCore/Images/Codec/Loaders.h>
#include <TambleCore/Images/Codec/PictureCount.h>
#include <TambleCore/Images/Codec/PictureLimits.h>
#include <TambleCore/Images/ConversionError.h>

namespace tamble {
namespace {

PictureSize sizeOf(const vips::VImage& image) {
    return {image.width(), image.height()};
}

int pagesOf(const vips::VImage& image) {
    return vips_image_get_n_pages(image.get_image());
}

bool hasProfile(const vips::VImage& image) {
    return image.get_typeof(VIPS_META_ICC_NAME) != 0;
}

struct Stored {
    vips::VImage image;
    /// The sides wanted, as stored.
    PictureSize size;
};

/// The small picture of an HEIF photo, as cameras store it, if it can stand for the whole in that size.
std::optional<vips::VImage> thumbnailOf(const vips::VImage& whole, ByteView file, Container container,
                                        PictureSize size) {
    if (container != Container::heic && container != Container::avif) return std::nullopt;
    try {
        // Without one this is the whole again.
        const vips::VImage small = opened(file, container, {.thumbnail = true});
        const auto [width, height] = sizeOf(small);
        const bool isSmaller = width < whole.width() && height < whole.height();
        if (!isSmaller || width < size.width || height < size.height) return std::nullopt;
        // Of another shape, beyond sides made even, or with other colours it shows something else.
        const auto skew =
            std::abs(std::int64_t{width} * whole.height() - std::int64_t{height} * whole.width());
        const bool looksAlike = skew <= 2 * sizeOf(whole).longestSide() && small.bands() == whole.bands() &&
                                hasProfile(small) == hasProfile(whole);
        return looksAlike ? std::optional(small) : std::nullopt;
    } catch (const ConversionError&) {
        return std::nullopt;
    }
}

Stored loaded(ByteView file, Container container, int page, std::optional<int> maxPixelSize, DecodedFor use) {
    const vips::VImage image = opened(file, container, {.page = page});
    refuseOversized(image.width(), image.height());
    if (use == DecodedFor::newFile) refuseSeveralPictures(container, pagesOf(image));
    const PictureSize size = fitted(sizeOf(image), maxPixelSize);
    if (use == DecodedFor::screen) {
        if (auto thumbnail = thumbnailOf(image, file, container, size)) return {*thumbnail, size};
    }
    const int shrink = container == Container::jpeg ? decoderShrink(sizeOf(image), size) : 1;
    return {shrink == 1 ? image : opened(file, container, {.shrink = shrink}), size};
}

Stored loadedFromAny(ByteView file, Container container, std::optional<int> maxPixelSize, DecodedFor use,
                     const WorkContext& context) {
    switch (container) {
        case Container::ico:
        case Container::icns: {
            const IconPicture icon = largestPicture(file, container);
            if (icon.file.empty()) {
                const vips::VImage image = runLengthCodedIcon(file);
                return {image, fitted(sizeOf(image), maxPixelSize)};
            }
            return loaded(icon.file, icon.container, icon.page, maxPixelSize, use);
        }
        case Container::cameraRaw: {
            const DevelopedRaw raw = developed(file, maxPixelSize, context);
            return {raw.image, fitted(raw.fullSize, maxPixelSize)};
        }
        default:
            return loaded(file, container, 0, maxPixelSize, use);
    }
}

}  // namespace

vips::VImage decoded(ByteView file, Container container, std::optional<int> maxPixelSize,
                     ImageJobSettings::Rotation rotation, Watch& watch, DecodedFor use) {
    const Stored stored = loadedFromAny(file, container, maxPixelSize, use, watch.context());
    const int orientation = vips_image_get_orientation(stored.image.get_image());
    const vips::VImage image = scaled(watch.over(stored.image), stored.size);
    return turned(image, Turn::upright(orientation).then(Turn::rotation(rotation)));
}

}  // namespace tamble
