#include <TambleCore/Images/Codec/AppleIconRuns.h>
#include <TambleCore/Images/Codec/CameraRaw.h>
#include <TambleCore/Images/Codec/Decoded.h>
#include <TambleCore/Images/Codec/Geometry.h>
#include <TambleCore/Images/Codec/IconFile.h>
#include <TambleCore/Images/Codec/Loaders.h>
#include <TambleCore/Images/Codec/PictureCount.h>
#include <TambleCore/Images/Codec/PictureLimits.h>

namespace tamble {
namespace {

PictureSize sizeOf(const vips::VImage& image) {
    return {image.width(), image.height()};
}

int pagesOf(const vips::VImage& image) {
    return vips_image_get_n_pages(image.get_image());
}

struct Stored {
    vips::VImage image;
    /// The sides wanted, as stored.
    PictureSize size;
};

Stored loaded(ByteView file, Container container, int page, std::optional<int> maxPixelSize,
              SeveralPictures several) {
    const vips::VImage image = opened(file, container, {.page = page});
    refuseOversized(image.width(), image.height());
    if (several == SeveralPictures::refused) refuseSeveralPictures(container, pagesOf(image));
    const PictureSize size = fitted(sizeOf(image), maxPixelSize);
    const int shrink = container == Container::jpeg ? decoderShrink(sizeOf(image), size) : 1;
    return {shrink == 1 ? image : opened(file, container, {.shrink = shrink}), size};
}

Stored loadedFromAny(ByteView file, Container container, std::optional<int> maxPixelSize,
                     SeveralPictures several, const WorkContext& context) {
    switch (container) {
        case Container::ico:
        case Container::icns: {
            const IconPicture icon = largestPicture(file, container);
            if (icon.file.empty()) {
                const vips::VImage image = runLengthCodedIcon(file);
                return {image, fitted(sizeOf(image), maxPixelSize)};
            }
            return loaded(icon.file, icon.container, icon.page, maxPixelSize, several);
        }
        case Container::cameraRaw: {
            const DevelopedRaw raw = developed(file, maxPixelSize, context);
            return {raw.image, fitted(raw.fullSize, maxPixelSize)};
        }
        default:
            return loaded(file, container, 0, maxPixelSize, several);
    }
}

}  // namespace

vips::VImage decoded(ByteView file, Container container, std::optional<int> maxPixelSize,
                     ImageJobSettings::Rotation rotation, Watch& watch, SeveralPictures several) {
    const Stored stored = loadedFromAny(file, container, maxPixelSize, several, watch.context());
    const int orientation = vips_image_get_orientation(stored.image.get_image());
    const vips::VImage image = scaled(watch.over(stored.image), stored.size);
    return turned(image, Turn::upright(orientation).then(Turn::rotation(rotation)));
}

}  // namespace tamble
