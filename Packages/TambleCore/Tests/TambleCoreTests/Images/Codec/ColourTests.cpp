#include <TambleCore/Support/Json/Described.h>

#include "TestPictures.h"

namespace tamble::test {
namespace {

using vips::VImage;
using Settings = ImageJobSettings;

VImage inProfile(const VImage& image, const char* profile) {
    return image.icc_transform(profile, VImage::option()->set("input_profile", "srgb"));
}

/// What a reader that knows profiles shows.
VImage asSRGB(const VImage& image) {
    return image
        .icc_transform("srgb", VImage::option()->set("embedded", true)->set("black_point_compensation", true))
        .extract_band(0, VImage::option()->set("n", 3));
}

bool hasProfile(const VImage& image) {
    return image.get_typeof(VIPS_META_ICC_NAME) != 0;
}

TEST(ColourTests, WideGamutLooksTheSameInEveryFormat) {
    const PictureFolder folder;
    const VImage picture = fourFields(64, 48);
    for (const char* name : {"a.png", "a.tiff", "a.jpg[Q=97,subsample-mode=off]"}) {
        const auto source = folder.picture(name, inProfile(picture, "p3"));
        for (const ImageFormat format : ImageCapabilities::writableFormats()) {
            for (const std::optional<int> size : {std::optional<int>(), std::optional(32)}) {
                const auto bytes =
                    converted(source, format, {.quality = Settings::Quality::best, .maxPixelSize = size});
                const VImage result = shown(bytes);
                const bool carries = format != ImageFormat::webp && format != ImageFormat::gif;
                EXPECT_EQ(hasProfile(result), carries) << displayName(format);
                // The middle of a field, away from edges where coding rings.
                const auto colour = (hasProfile(result) ? asSRGB(result) : result)
                                        .getpoint(result.width() / 4, result.height() / 4);
                EXPECT_NEAR(colour[0], 220, 6) << displayName(format) << " of " << name;
                EXPECT_NEAR(colour[1], 30, 8) << displayName(format) << " of " << name;
                EXPECT_NEAR(colour[2], 30, 8) << displayName(format) << " of " << name;
            }
        }
    }
}

TEST(ColourTests, CmykStaysInItsOwnFormatAndLooksTheSameInOthers) {
    const PictureFolder folder;
    const VImage cmyk = inProfile(fourFields(64, 48), "cmyk");
    const VImage expected = asSRGB(cmyk);
    for (const char* name : {"a.jpg[Q=97]", "a.tiff"}) {
        const auto source = folder.picture(name, cmyk);
        const auto kept =
            converted(source, source.extension() == ".jpg" ? ImageFormat::jpeg : ImageFormat::tiff,
                      {.quality = Settings::Quality::best, .maxPixelSize = 32});
        EXPECT_EQ(shown(kept).interpretation(), VIPS_INTERPRETATION_CMYK) << name;
        EXPECT_EQ(fieldsOf(asSRGB(shown(kept))), "RGBW") << name;
        for (const ImageFormat format :
             {ImageFormat::png, ImageFormat::webp, ImageFormat::gif, ImageFormat::heic}) {
            if (!ImageCapabilities::canWrite(format)) continue;
            const auto bytes = converted(source, format, {.quality = Settings::Quality::best});
            const VImage result = shown(bytes);
            EXPECT_EQ(result.interpretation(), VIPS_INTERPRETATION_sRGB) << displayName(format);
            EXPECT_FALSE(hasProfile(result)) << displayName(format);
            for (const int x : {16, 48}) {
                const auto colour = result.getpoint(x, 12);
                const auto wanted = expected.getpoint(x, 12);
                for (std::size_t band = 0; band < 3; ++band)
                    EXPECT_NEAR(colour[band], wanted[band], 12) << displayName(format) << " of " << name;
            }
        }
    }
}

TEST(ColourTests, SixteenBitsStayWhereTheFormatIsKept) {
    const PictureFolder folder;
    // Steps that 8 bits cannot tell apart.
    const VImage ramp = (VImage::xyz(256, 64)[0] + 30'000).cast(VIPS_FORMAT_USHORT);
    const VImage deep = ramp.bandjoin(ramp).bandjoin(ramp).copy(
        VImage::option()->set("interpretation", VIPS_INTERPRETATION_RGB16));
    for (const char* name : {"a.png", "a.tiff"}) {
        const auto source = folder.picture(name, deep);
        const ImageFormat own = source.extension() == ".png" ? ImageFormat::png : ImageFormat::tiff;
        for (const Settings& settings :
             {Settings{}, Settings{.maxPixelSize = 128}, Settings{.rotation = Settings::Rotation::upsideDown},
              Settings{.removeAllMetadata = true}, Settings{.skipIfNotSmaller = true}}) {
            const auto bytes = converted(source, own, settings);
            const VImage result = shown(bytes);
            EXPECT_EQ(result.format(), VIPS_FORMAT_USHORT) << name;
            const double step = result.getpoint(101, 5)[0] - result.getpoint(100, 5)[0];
            EXPECT_EQ(std::abs(step), settings.maxPixelSize ? 2 : 1) << name;
        }
        const auto shallow = converted(source, ImageFormat::jpeg);
        EXPECT_EQ(shown(shallow).format(), VIPS_FORMAT_UCHAR);
        EXPECT_NEAR(shown(shallow).avg(), 30'128.0 / 257, 2) << name;
    }
}

TEST(ColourTests, AlphaIsKeptOrLaidOnWhite) {
    const PictureFolder folder;
    const VImage colours = fourFields(64, 48);
    const VImage alpha = (VImage::xyz(64, 48)[0] >= 32).cast(VIPS_FORMAT_UCHAR);
    const auto source = folder.picture("a.png", colours.bandjoin(alpha).copy_memory());
    for (const ImageFormat format : ImageCapabilities::writableFormats()) {
        const auto bytes =
            converted(source, format, {.quality = Settings::Quality::best, .maxPixelSize = 32});
        const VImage result = shown(bytes);
        EXPECT_EQ(result.has_alpha(), supportsTransparency(format)) << displayName(format);
        const auto hidden = result.getpoint(8, 6);
        if (supportsTransparency(format)) {
            EXPECT_EQ(hidden.back(), 0) << displayName(format);
            EXPECT_EQ(result.getpoint(24, 6).back(), 255) << displayName(format);
        } else {
            EXPECT_GT(hidden[1], 250) << displayName(format);
        }
        // The hidden red does not bleed into the green beside it.
        EXPECT_LT(result.getpoint(18, 6)[0], 60) << displayName(format);
    }
}

}  // namespace
}  // namespace tamble::test
