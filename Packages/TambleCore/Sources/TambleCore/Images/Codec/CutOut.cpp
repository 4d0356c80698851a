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

/// The highest value of a sample.
double most(const vips::VImage& image) {
    return image.format() == VIPS_FORMAT_USHORT ? 65535 : 255;
}

/// Whether most of the picture's edge is see-through: what it shows has been cut out before, and no other
/// subject is to be looked for in it.
bool isCutOut(const vips::VImage& picture) {
    if (!picture.has_alpha()) return false;
    const vips::VImage clear = picture[picture.bands() - 1] < most(picture) / 16;
    const int right = picture.width() - 1;
    const int bottom = picture.height() - 1;
    // Comparing answers 0 or 255.
    const double sides = clear.extract_area(0, 0, 1, picture.height()).avg() +
                         clear.extract_area(right, 0, 1, picture.height()).avg() +
                         clear.extract_area(0, 0, picture.width(), 1).avg() +
                         clear.extract_area(0, bottom, picture.width(), 1).avg();
    return sides / 4 > 127.5;
}

}  // namespace

vips::VImage cutOut(const vips::VImage& picture, const WorkContext& context) {
    const vips::VImage source = held(picture);
    if (isCutOut(source)) {
        if (source[source.bands() - 1].max() == 0)
            throw ConversionError(ConversionError::Case::noSubjectFound);
        return source;
    }
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
    const vips::VImage both = (source[colours] * alpha / most(source)).cast(source.format());
    return source.extract_band(0, vips::VImage::option()->set("n", colours)).bandjoin(both);
}

}  // namespace tamble
