#include <TambleCore/Images/Lossless/LosslessEdit.h>
#include <TambleCore/Images/Metadata/Containers/ByteAccess.h>

#include "../Metadata/ExifTool.h"

namespace tamble::test {
namespace {

using testing::HasSubstr;
using testing::Not;
using Rotation = ImageJobSettings::Rotation;

vips::VImage turned(const vips::VImage& image, Rotation rotation) {
    switch (rotation) {
        case Rotation::none:
            break;
        case Rotation::right:
            return image.rot90();
        case Rotation::left:
            return image.rot270();
        case Rotation::upsideDown:
            return image.rot180();
        case Rotation::flipHorizontal:
            return image.flip(VIPS_DIRECTION_HORIZONTAL);
        case Rotation::flipVertical:
            return image.flip(VIPS_DIRECTION_VERTICAL);
    }
    return image;
}

TEST(LosslessRotate, TurnsEveryOrientationAsDecodingWould) {
    const PictureFolder folder;
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const auto file = folder.picture("a.jpg", withOrientation(fourFields(64, 32), orientation));
        const Bytes source = bytesOf(file);
        const auto upright = shown(source).autorot();
        for (const Rotation rotation : {Rotation::none, Rotation::right, Rotation::left, Rotation::upsideDown,
                                        Rotation::flipHorizontal, Rotation::flipVertical}) {
            const auto result = losslesslyRotated(source, rotation);
            ASSERT_TRUE(result);
            const auto expected = turned(upright, rotation);
            EXPECT_EQ(shown(*result).width(), expected.width());
            EXPECT_LE(largestDifference(shown(*result), expected), 2);
            EXPECT_EQ(shown(*result).autorot().width(), expected.width());
        }
    }
}

TEST(LosslessRotate, RefusesPartialBlocksAtAnEdge) {
    const PictureFolder folder;
    const Bytes source = bytesOf(folder.picture("a.jpg", fourFields(61, 32)));
    EXPECT_FALSE(losslesslyRotated(source, Rotation::flipHorizontal));
    EXPECT_TRUE(losslesslyRotated(source, Rotation::none));
    EXPECT_FALSE(losslesslyRotated(ByteView(source).first(source.size() / 2), Rotation::none));
}

TEST(LosslessRotate, CarriesMetadataWithoutWhatShowsTheOldPicture) {
    if (!hasExifTool()) GTEST_SKIP() << "exiftool is not installed";
    const PictureFolder folder;
    const auto file = folder.picture("a.jpg[interlace]", fourFields(64, 32));
    std::vector<std::string> words = photographTags();
    words.insert(
        words.end(),
        {"-Orientation#=6", "-XMP-tiff:Orientation#=6", "-ExifImageWidth=64", "-Comment=remark",
         "-ThumbnailImage<=" + folder.picture("t.jpg[strip]", fourFields(16, 16)).string(), file.string()});
    exifTool(words);
    Bytes source = bytesOf(file);
    append(source, asBytes("a film"));
    const auto result = losslesslyRotated(source, Rotation::none);
    ASSERT_TRUE(result);
    const std::string tags = tagsOf(folder.file("result.jpg", *result));
    for (const char* kept : {"Kameramann", "GPSLatitude", "Placeville", "seaside", "remark", "Progressive"}) {
        EXPECT_THAT(tags, HasSubstr(kept));
    }
    for (const char* gone : {"Rotate", "Thumbnail", "Warning"}) EXPECT_THAT(tags, Not(HasSubstr(gone)));
    EXPECT_THAT(exifTool({"-s3", "-ExifImageWidth", folder / "result.jpg"}), HasSubstr("32"));
    EXPECT_EQ(asText(*result).find("a film"), std::string_view::npos);
}

}  // namespace
}  // namespace tamble::test
