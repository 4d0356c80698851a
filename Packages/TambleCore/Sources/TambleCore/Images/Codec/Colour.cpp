#include <TambleCore/Images/Codec/Colour.h>
#include <TambleCore/Images/Codec/ColourProfile.h>
#include <TambleCore/Images/Codec/ColourTransform.h>

namespace tamble {
namespace {

bool isDeep(const vips::VImage& image) {
    return image.format() != VIPS_FORMAT_UCHAR;
}

bool isCmyk(const vips::VImage& image) {
    return image.interpretation() == VIPS_INTERPRETATION_CMYK;
}

int colourBands(const vips::VImage& image) {
    return image.bands() - (image.has_alpha() ? 1 : 0);
}

/// Whether pixels can stay as they are: grey, RGB or CMYK in 8 or 16 bits.
bool isCommon(const vips::VImage& image) {
    if (image.format() != VIPS_FORMAT_UCHAR && image.format() != VIPS_FORMAT_USHORT) return false;
    switch (image.interpretation()) {
        case VIPS_INTERPRETATION_sRGB:
        case VIPS_INTERPRETATION_B_W:
        case VIPS_INTERPRETATION_CMYK:
            return !isDeep(image) || isCmyk(image);
        case VIPS_INTERPRETATION_RGB16:
        case VIPS_INTERPRETATION_GREY16:
            return isDeep(image);
        default:
            return false;
    }
}

bool carriesDepth(ImageFormat format) {
    return format == ImageFormat::png || format == ImageFormat::tiff;
}

bool carriesGrey(ImageFormat format) {
    return carriesDepth(format) || format == ImageFormat::jpeg;
}

/// WebP could, but its writer here is given sRGB.
bool carriesProfile(ImageFormat format, int channels) {
    if (format == ImageFormat::webp || format == ImageFormat::gif) return false;
    return channels == 3 || carriesGrey(format);
}

std::optional<Bytes> usableProfile(const vips::VImage& image) {
    if (image.get_typeof(VIPS_META_ICC_NAME) == 0) return std::nullopt;
    std::size_t size = 0;
    const auto* const data = static_cast<const std::byte*>(image.get_blob(VIPS_META_ICC_NAME, &size));
    const ByteView profile(data, size);
    if (channels(profile) != colourBands(image)) return std::nullopt;
    return Bytes(profile.begin(), profile.end());
}

vips::VImage shallow(const vips::VImage& image) {
    return image.colourspace(colourBands(image) == 1 ? VIPS_INTERPRETATION_B_W : VIPS_INTERPRETATION_sRGB);
}

vips::VImage onWhite(const vips::VImage& image) {
    const double white = isDeep(image) ? 65535 : 255;
    return image.flatten(vips::VImage::option()->set("background", std::vector<double>{white}));
}

}  // namespace

ColouredPicture colouredFor(vips::VImage image, ImageFormat format, bool isOwnFormat) {
    if (!isCommon(image)) image = image.colourspace(VIPS_INTERPRETATION_sRGB);
    std::optional<Bytes> profile = usableProfile(image);
    if (image.has_alpha() && !supportsTransparency(format)) image = onWhite(image);

    if (isCmyk(image)) {
        const bool stays = isOwnFormat && (format == ImageFormat::jpeg || format == ImageFormat::tiff);
        if (!stays) {
            image = profile ? toSRGB(image, *profile) : image.colourspace(VIPS_INTERPRETATION_sRGB);
            profile.reset();
        }
    } else if (profile && !carriesProfile(format, colourBands(image))) {
        if (!isSRGB(*profile)) image = toSRGB(image, *profile);
        profile.reset();
    }
    if (isDeep(image) && !isCmyk(image) && !carriesDepth(format)) image = shallow(image);
    if (colourBands(image) == 1 && !carriesGrey(format)) image = image.colourspace(VIPS_INTERPRETATION_sRGB);
    return {image, std::move(profile)};
}

}  // namespace tamble
