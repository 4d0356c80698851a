#include <TambleCore/Images/Metadata/Exif/TiffStructure.h>
#include <TambleCore/Support/Json/Described.h>

#include "../Metadata/ExifTool.h"

namespace tamble::test {
namespace {

using vips::VImage;
using Settings = ImageJobSettings;

/// A file of it; the library that writes them puts no orientation into PNG.
std::filesystem::path fileOf(const VImage& image, const std::string& name, const PictureFolder& folder) {
    const auto file = folder.picture(name, image);
    if (file.extension() != ".png") return file;
    const MetadataBlocks blocks{
        .exif = tiff::blockWithOrientation(vips_image_get_orientation(image.get_image()))};
    return folder.file("oriented.png", withMetadata(bytesOf(folder.picture("a.png[strip]", image)),
                                                    ImageFormat::png, blocks));
}

VImage rotated(const VImage& upright, Settings::Rotation rotation) {
    using enum Settings::Rotation;
    switch (rotation) {
        case right:
            return upright.rot90();
        case left:
            return upright.rot270();
        case upsideDown:
            return upright.rot180();
        case flipHorizontal:
            return upright.fliphor();
        case flipVertical:
            return upright.flipver();
        case none:
            break;
    }
    return upright;
}

// Each way through the converter: without decoding, by a JPEG's channels, and by pixels.
TEST(OrientationTests, GoWithRotationAndResizing) {
    const PictureFolder folder;
    const VImage upright = fourFields(64, 48);
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const VImage image = storedAs(upright, orientation);
        for (const auto* name : {"a.jpg[Q=95]", "a.png", "a.tiff", "a.webp[lossless]"}) {
            const auto source = fileOf(image, name, folder);
            for (const auto rotation : allCases<Settings::Rotation>()) {
                const VImage expected = rotated(upright, rotation);
                for (const std::optional<int> size : {std::optional<int>(), std::optional(32)}) {
                    for (const ImageFormat format :
                         {ImageFormat::jpeg, ImageFormat::webp, ImageFormat::png}) {
                        const auto bytes =
                            converted(source, format, {.maxPixelSize = size, .rotation = rotation});
                        const VImage result = shown(bytes);
                        const std::string what = fmt::format("{} {} {} {}", orientation, name,
                                                             caseName(rotation), caseName(format));
                        EXPECT_EQ(result.width(), expected.width() / (size ? 2 : 1)) << what;
                        EXPECT_EQ(result.height(), expected.height() / (size ? 2 : 1)) << what;
                        EXPECT_EQ(fieldsOf(result), fieldsOf(expected)) << what;
                        EXPECT_EQ(vips_image_get_orientation(result.get_image()), 1) << what;
                    }
                }
            }
        }
    }
}

TEST(OrientationTests, NonsenseIsUpright) {
    const PictureFolder folder;
    for (const int orientation : {0, 9, 65535}) {
        const auto source = folder.picture("a.jpg[Q=95]", withOrientation(fourFields(64, 48), orientation));
        const auto bytes = converted(source, ImageFormat::png);
        EXPECT_EQ(fieldsOf(shown(bytes)), "RGBW") << orientation;
    }
}

}  // namespace
}  // namespace tamble::test
