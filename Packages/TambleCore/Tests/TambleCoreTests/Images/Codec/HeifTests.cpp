#include "../Metadata/ExifTool.h"

namespace tamble::test {
namespace {

using testing::HasSubstr;
using testing::Not;
using Settings = ImageJobSettings;

class HeifTests : public testing::TestWithParam<ImageFormat> {
  protected:
    void SetUp() override {
        if (!ImageCapabilities::canWrite(GetParam())) GTEST_SKIP() << "no coder for it";
        if (!hasExifTool()) GTEST_SKIP() << "exiftool is not installed";
    }

    std::string tagsAfter(const std::filesystem::path& source, const Settings& settings) const {
        return tagsOf(folder_.file("result", converted(source, GetParam(), settings)));
    }

    PictureFolder folder_;
};

TEST_P(HeifTests, MetadataGoesAsItWasPromised) {
    const auto source = folder_.file(fmt::format("a.{}", fileExtension(GetParam())),
                                     converted(folder_.picture("a.png", fourFields(64, 64)), GetParam()));
    std::vector<std::string> words = photographTags();
    words.emplace_back(source);
    EXPECT_THAT(exifTool(words), Not(HasSubstr("Error")));
    ASSERT_THAT(tagsOf(source), HasSubstr("GPSLatitude"));

    const std::string withoutPlace = tagsAfter(source, {.removeLocation = true});
    for (const std::string& word : placeWords()) EXPECT_THAT(withoutPlace, Not(HasSubstr(word)));
    for (const char* kept : {"Kameramann", "2020:01:02", "seaside"})
        EXPECT_THAT(withoutPlace, HasSubstr(kept));

    const std::string bare = tagsAfter(source, {.removeAllMetadata = true});
    for (const char* group : {"IFD0", "ExifIFD", "GPS", "XMP", "IPTC", "Kameramann", "2020:"})
        EXPECT_THAT(bare, Not(HasSubstr(group)));

    const std::string resized = tagsAfter(source, {.maxPixelSize = 32});
    EXPECT_THAT(resized, HasSubstr("Kameramann"));
    EXPECT_THAT(resized, HasSubstr("GPSLatitude"));
}

// Turning goes by way of memory, which outlives the picture that the loader made.
TEST_P(HeifTests, AProfileSurvivesTurning) {
    const auto wide =
        fourFields(64, 48).icc_transform("p3", vips::VImage::option()->set("input_profile", "srgb"));
    const auto source = folder_.file(fmt::format("a.{}", fileExtension(GetParam())),
                                     converted(folder_.picture("a.png", wide), GetParam()));
    const auto profile = [](const vips::VImage& image) {
        std::size_t size = 0;
        const void* data = image.get_blob(VIPS_META_ICC_NAME, &size);
        return std::string(static_cast<const char*>(data), size);
    };
    const std::string expected = profile(wide);
    for (const auto rotation : {Settings::Rotation::right, Settings::Rotation::upsideDown}) {
        const auto bytes = converted(source, ImageFormat::png, {.rotation = rotation});
        EXPECT_EQ(profile(shown(bytes)), expected);
        const auto again = converted(source, GetParam(), {.rotation = rotation});
        EXPECT_EQ(profile(shown(again)), expected);
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, HeifTests, testing::Values(ImageFormat::heic, ImageFormat::avif),
                         [](const auto& parameter) { return std::string(displayName(parameter.param)); });

}  // namespace
}  // namespace tamble::test
