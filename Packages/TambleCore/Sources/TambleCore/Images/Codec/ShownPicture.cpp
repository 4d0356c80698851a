#include <TambleCore/Images/Codec/Colour.h>
#include <TambleCore/Images/Codec/Decoded.h>
#include <TambleCore/Images/Codec/ShownPicture.h>
#include <TambleCore/Images/ConversionError.h>

namespace tamble {
namespace {

Raster rasterOf(const vips::VImage& image) {
    std::size_t size = 0;
    const std::unique_ptr<void, decltype(&::g_free)> memory(image.write_to_memory(&size), &::g_free);
    const std::span samples(static_cast<const std::uint8_t*>(memory.get()), size);
    return {.width = image.width(),
            .height = image.height(),
            .channels = image.bands(),
            .samples = {samples.begin(), samples.end()}};
}

}  // namespace

Raster shownPicture(ByteView file, Container container, int maxPixelSize, const WorkContext& context) {
    Watch watch(context, 1);
    try {
        const vips::VImage picture = decoded(file, container, maxPixelSize, ImageJobSettings::Rotation::none,
                                             watch, DecodedFor::screen);
        // WebP takes what a screen does: sRGB of eight bits, see-through or not.
        const vips::VImage shown =
            colouredFor(picture, ImageFormat::webp, false).image.cast(VIPS_FORMAT_UCHAR);
        if (shown.bands() != 3 && shown.bands() != 4)
            throw ConversionError(ConversionError::Case::cannotDecode, "Unexpected channels");
        return rasterOf(shown);
    } catch (const vips::VError& error) {
        context.throwIfStopped();
        throw ConversionError(ConversionError::Case::cannotDecode, error.what());
    }
}

}  // namespace tamble
