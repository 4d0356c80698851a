#include <TambleCore/Images/Codec/Colour.h>
#include <TambleCore/Images/Codec/CutOut.h>
#include <TambleCore/Images/Codec/Geometry.h>
#include <TambleCore/Images/Codec/Pixels.h>
#include <TambleCore/Images/ConversionError.h>
#include <TambleCore/Images/SubjectMask.h>

namespace tamble {
namespace {

/// What the finder of subjects looks at: JPEG's opaque pixels, always three channels of sRGB.
vips::VImage plainColours(const vips::VImage& picture) {
    const vips::VImage opaque = colouredFor(picture, ImageFormat::webp, false).image;
    return held(opaque.has_alpha()
                    ? opaque.flatten(vips::VImage::option()->set("background", std::vector{255.0}))
                    : opaque);
}

}  // namespace

vips::VImage cutOut(const vips::VImage& picture, const WorkContext& context) {
    const vips::VImage source = held(picture);
    const vips::VImage plain = plainColours(source);
    const auto size = 3 * static_cast<std::size_t>(plain.width()) * static_cast<std::size_t>(plain.height());
    const SubjectPicture seen{.pixels = {static_cast<const std::uint8_t*>(plain.data()), size},
                              .width = plain.width(),
                              .height = plain.height()};
    const auto mask = subjectMask().find(seen, context);
    if (!mask) throw ConversionError(ConversionError::Case::noSubjectFound);
    if (mask->size() != size / 3)
        throw ConversionError(ConversionError::Case::backgroundRemovalFailed, "Mask size");
    vips::VImage alpha = pictureOf(*mask, plain.width(), plain.height(), 1);
    // Alpha goes as deep as the colours: 255 · 257 is 65535.
    if (source.format() == VIPS_FORMAT_USHORT) alpha = (alpha * 257).cast(VIPS_FORMAT_USHORT);
    if (!source.has_alpha()) return source.bandjoin(alpha);
    const int colours = source.bands() - 1;
    const double most = source.format() == VIPS_FORMAT_USHORT ? 65535 : 255;
    const vips::VImage both = (source[colours] * alpha / most).cast(source.format());
    return source.extract_band(0, vips::VImage::option()->set("n", colours)).bandjoin(both);
}

}  // namespace tamble
