#include <TambleCore/Support/Json/Described.h>

#include "TestPictures.h"
#include <webp/encode.h>

namespace tamble::test {
namespace {

using vips::VImage;
using Settings = ImageJobSettings;

TEST(ConvertTests, EveryFormatIsWrittenAndShowsThePicture) {
    const PictureFolder folder;
    const auto source = folder.picture("a.png", fourFields(64, 48));
    for (const ImageFormat format : ImageCapabilities::writableFormats()) {
        const auto bytes = converted(source, format);
        const VImage result = shown(bytes);
        EXPECT_EQ(result.width(), 64) << displayName(format);
        EXPECT_EQ(fieldsOf(result), "RGBW") << displayName(format);
        // What was written is what the format's readers expect, and can be read again here.
        const auto again = folder.file(fmt::format("b.{}", fileExtension(format)), bytes);
        EXPECT_EQ(failureOf(again, std::nullopt), "") << displayName(format);
    }
}

TEST(ConvertTests, EveryOrientationComesOutUpright) {
    const PictureFolder folder;
    const VImage upright = fourFields(64, 48);
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const VImage image = storedAs(upright, orientation);
        const auto source = folder.picture(fmt::format("{}.jpg[Q=95]", orientation), image);
        for (const bool everythingGone : {false, true}) {
            for (const std::optional<int> size : {std::optional<int>(), std::optional(32)}) {
                const auto bytes = converted(source, ImageFormat::webp,
                                             {.maxPixelSize = size, .removeAllMetadata = everythingGone});
                const VImage result = shown(bytes);
                EXPECT_EQ(result.width(), size.value_or(64)) << orientation;
                EXPECT_EQ(fieldsOf(result), "RGBW") << orientation;
            }
        }
    }
}

TEST(ConvertTests, TurnedPicturesOfOddSidesKeepTheirColoursInPlace) {
    const PictureFolder folder;
    // Coloured tiles that lie on no grid of blocks: colours that move by a pixel are seen at their edges.
    const VImage upright = fourFields(35, 21).replicate(4, 3).extract_area(3, 2, 133, 61);
    // Full colour is as good whichever way it is turned. Halved colour is averaged once more across the
    // blocks, which costs less than a displaced pixel does.
    struct Case {
        const char* options;
        double mostDifference;
    };
    for (const auto& [options, mostDifference] :
         {Case{"[Q=98,subsample-mode=off]", 10.3}, Case{"[Q=98,subsample-mode=on]", 6}}) {
        for (int orientation = 1; orientation <= 8; ++orientation) {
            const VImage image = storedAs(upright, orientation);
            const auto source = folder.picture(fmt::format("{}.jpg{}", orientation, options), image);
            const auto bytes = converted(source, ImageFormat::webp, {.quality = Settings::Quality::best});
            const VImage decoded = VImage::new_from_file(source.c_str()).autorot();
            EXPECT_LT(averageDifference(shown(bytes), decoded), mostDifference) << orientation << options;
        }
    }
}

TEST(ConvertTests, RotationsTurnTheUprightPicture) {
    const PictureFolder folder;
    const auto source = folder.picture("a.jpg[Q=95]", withOrientation(fourFields(48, 64).rot90(), 8));
    const std::vector<std::pair<Settings::Rotation, std::string>> expected{
        {Settings::Rotation::right, "BRWG"},        {Settings::Rotation::left, "GWRB"},
        {Settings::Rotation::upsideDown, "WBGR"},   {Settings::Rotation::flipHorizontal, "GRWB"},
        {Settings::Rotation::flipVertical, "BWRG"},
    };
    for (const auto& [rotation, fields] : expected) {
        for (const ImageFormat format : {ImageFormat::png, ImageFormat::jpeg}) {
            const auto bytes = converted(source, format, {.rotation = rotation});
            EXPECT_EQ(fieldsOf(shown(bytes)), fields) << caseName(rotation);
        }
    }
}

TEST(ConvertTests, NewerFormatsAreSmallerThanJpeg) {
    const PictureFolder folder;
    // Without the noise, of which it has more than photographs.
    const auto source = folder.picture("a.png", photograph(600, 400).gaussblur(1.5));
    const std::size_t jpeg = converted(source, ImageFormat::jpeg).size();
    for (const ImageFormat format : {ImageFormat::webp, ImageFormat::heic, ImageFormat::avif}) {
        if (!ImageCapabilities::canWrite(format)) continue;
        EXPECT_LT(converted(source, format).size(), jpeg) << displayName(format);
    }
}

TEST(ConvertTests, PicturesShrinkButNeverGrow) {
    const PictureFolder folder;
    const auto wide = folder.picture("a.jpg", photograph(1000, 333));
    const auto size = [&](int longest) {
        const auto bytes = converted(wide, ImageFormat::jpeg, {.maxPixelSize = longest});
        const VImage result = shown(bytes);
        return std::pair(result.width(), result.height());
    };
    EXPECT_EQ(size(3840), std::pair(1000, 333));
    EXPECT_EQ(size(500), std::pair(500, 167));
    EXPECT_EQ(size(499), std::pair(499, 166));
    EXPECT_EQ(size(101), std::pair(101, 34));
    EXPECT_EQ(size(1), std::pair(1, 1));
}

TEST(ConvertTests, ShrunkPicturesKeepTheirLook) {
    const PictureFolder folder;
    const VImage image = photograph(1200, 800).gaussblur(6).copy_memory();
    const auto source = folder.picture("a.jpg[Q=98]", image);
    for (const int size : {1100, 600, 500, 290, 150}) {
        const auto bytes =
            converted(source, ImageFormat::jpeg, {.quality = Settings::Quality::best, .maxPixelSize = size});
        const VImage result = shown(bytes);
        EXPECT_LT(averageDifference(result, image.thumbnail_image(size)), 1.5) << size;
    }
}

TEST(ConvertTests, WebPIsWhatTheSimpleCallsOfItsLibraryMake) {
    const PictureFolder folder;
    const auto check = [&](const VImage& image, const std::string& name) {
        const auto source = folder.picture(name + ".png", image);
        const auto stride = image.width() * image.bands();
        std::uint8_t* expected = nullptr;
        const auto encode = image.bands() == 4 ? WebPEncodeRGBA : WebPEncodeRGB;
        const std::size_t size = encode(static_cast<const std::uint8_t*>(image.data()), image.width(),
                                        image.height(), stride, 80, &expected);
        const std::unique_ptr<std::uint8_t, void (*)(void*)> owner(expected, WebPFree);
        const auto bytes = converted(source, ImageFormat::webp, {.removeAllMetadata = true});
        ASSERT_EQ(bytes.size(), size) << name;
        EXPECT_EQ(std::memcmp(bytes.data(), expected, size), 0) << name;
    };
    check(photograph(301, 203), "odd sides");
    const VImage see = photograph(150, 101);
    check(see.bandjoin(see[0]).copy_memory(), "see-through");
    check(see.bandjoin_const({255}).copy_memory(), "opaque alpha");
}

TEST(ConvertTests, DrawingsBecomeLosslessWebP) {
    const PictureFolder folder;
    const VImage drawing = fourFields(120, 90);
    const auto exact = converted(folder.picture("a.png", drawing), ImageFormat::webp);
    EXPECT_EQ(largestDifference(shown(exact), drawing), 0);
    // The same as a photograph's format says nothing about exact pixels.
    const auto lossy = converted(folder.picture("a.jpg", drawing), ImageFormat::webp);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(lossy.data()) + 12, 4).substr(0, 3), "VP8");
    EXPECT_NE(std::to_integer<char>(lossy[15]), 'L');
}

TEST(ConvertTests, WebPSidesEndAt16383) {
    const PictureFolder folder;
    const auto fits = folder.picture("fits.png", fourFields(16383, 4));
    const auto tooWide = folder.picture("wide.png", fourFields(16384, 4));
    EXPECT_EQ(failureOf(fits, ImageFormat::webp), "");
    EXPECT_EQ(failureOf(tooWide, ImageFormat::webp), "tooLargeForWebP");
    EXPECT_EQ(failureOf(tooWide, ImageFormat::webp, {.maxPixelSize = 16383}), "");
}

TEST(ConvertTests, TheTargetMustBeNewAndNothingIsLeftOnFailure) {
    const PictureFolder folder;
    const auto source = folder.picture("a.png", fourFields(20, 20));
    const auto taken = folder.file("taken.jpg", {});
    EXPECT_THROW(ImageConverter{}.convert(source, taken, {}, ImageFormat::jpeg), ConversionError);
    EXPECT_EQ(std::filesystem::file_size(taken), 0);

    const auto broken = folder.file("broken.png", {});
    EXPECT_THROW(ImageConverter{}.convert(broken, folder / "new.jpg", {}, ImageFormat::jpeg),
                 ConversionError);
    EXPECT_FALSE(std::filesystem::exists(folder / "new.jpg"));
}

TEST(ConvertTests, NamesThatLookLikeOptionsAreNames) {
    const PictureFolder folder;
    const auto source = folder.picture("plain.png", fourFields(20, 20));
    const auto odd = folder / "-a[page=3].png[0]";
    std::filesystem::copy_file(source, odd);
    EXPECT_EQ(failureOf(odd, ImageFormat::jpeg), "");
}

TEST(ConvertTests, ProgressRisesAndAStopRequestEndsTheWork) {
    const PictureFolder folder;
    const auto source = folder.picture("a.jpg", photograph(1500, 1000));
    for (const ImageFormat format : {ImageFormat::webp, ImageFormat::png, ImageFormat::jpeg}) {
        std::vector<double> fractions;
        ImageConverter{}.encodedData(source, {}, format,
                                     {.progress = [&](double done) { fractions.push_back(done); }});
        EXPECT_GT(fractions.size(), 3U);
        EXPECT_TRUE(std::ranges::is_sorted(fractions));
        EXPECT_NEAR(fractions.back(), 1, 0.05);

        std::stop_source stop;
        const WorkContext context{.progress = [&](double) { stop.request_stop(); }, .stop = stop.get_token()};
        EXPECT_THROW(ImageConverter{}.convert(source, folder / "b", {}, format, context), Cancelled);
        EXPECT_FALSE(std::filesystem::exists(folder / "b"));
    }
}

}  // namespace
}  // namespace tamble::test
