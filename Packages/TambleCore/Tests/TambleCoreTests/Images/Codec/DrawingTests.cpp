#include <TambleCore/Images/Metadata/ReadMetadata.h>
#include <TambleCore/Support/Json/Described.h>

#include "TestPictures.h"
#include <gtest/gtest.h>

namespace tamble::test {
namespace {

using vips::VImage;

Raster drawing(int width, int height, int channels) {
    const VImage fields = fourFields(width, height);
    const VImage image = channels == 1 ? fields.colourspace(VIPS_INTERPRETATION_B_W) : fields;
    std::size_t size = 0;
    auto* const samples = static_cast<std::uint8_t*>(image.write_to_memory(&size));
    const std::unique_ptr<std::uint8_t, decltype(&g_free)> owner(samples, g_free);
    return {.width = width, .height = height, .channels = channels, .samples = {samples, samples + size}};
}

ImageConverter::Memory encoded(const Raster& picture, const ImageConverter::Drawn& how) {
    ImageConverter::Memory file;
    ImageConverter().encode(picture, how, std::ref(file));
    return file;
}

TEST(DrawingTests, EveryFormatHoldsThePictureAndItsResolution) {
    for (const ImageFormat format : ImageCapabilities::writableFormats()) {
        const auto file = encoded(drawing(90, 60, 3), {.format = format, .factor = 0.94, .dotsPerInch = 150});
        const VImage image = VImage::new_from_buffer(file.data(), file.size(), "");
        EXPECT_EQ(fieldsOf(shown(file)), "RGBW") << displayName(format);
        EXPECT_EQ(image.width(), 90) << displayName(format);
        if (format == ImageFormat::gif) continue;
        if (format == ImageFormat::heic || format == ImageFormat::avif || format == ImageFormat::webp) {
            // EXIF in little-endian order: three entries, and then 15000/100.
            const auto exif = readMetadata(file).exif;
            ASSERT_TRUE(exif) << displayName(format);
            ASSERT_EQ(exif->size(), 58U) << displayName(format);
            EXPECT_EQ(std::to_integer<int>((*exif)[50]) + 256 * std::to_integer<int>((*exif)[51]), 15'000);
        } else {
            EXPECT_NEAR(image.xres() * 25.4, 150, 0.1) << displayName(format);
            EXPECT_NEAR(image.yres() * 25.4, 150, 0.1) << displayName(format);
        }
    }
}

TEST(DrawingTests, GreyStaysGreyWhereTheFormatCan) {
    Raster picture = drawing(64, 64, 1);
    for (const ImageFormat format : ImageCapabilities::writableFormats()) {
        const auto file = encoded(picture, {.format = format});
        const bool isGrey = VImage::new_from_buffer(file.data(), file.size(), "").bands() == 1;
        EXPECT_EQ(isGrey,
                  format == ImageFormat::png || format == ImageFormat::jpeg || format == ImageFormat::tiff)
            << displayName(format);
    }
}

TEST(DrawingTests, OnlyPicturesOfGreysLoseTheirColourChannels) {
    Raster colourful = drawing(200, 200, 3);
    dropUnusedColour(colourful);
    EXPECT_EQ(colourful.channels, 3);
    Raster grey{.width = 300, .height = 200, .channels = 3, .samples = std::vector<std::uint8_t>(180'000, 7)};
    Raster almost = grey;
    almost.samples.back() = 8;
    dropUnusedColour(grey);
    EXPECT_EQ(grey.channels, 1);
    EXPECT_EQ(grey.samples, std::vector<std::uint8_t>(60'000, 7));
    dropUnusedColour(almost);
    EXPECT_EQ(almost.channels, 3);
}

}  // namespace
}  // namespace tamble::test
