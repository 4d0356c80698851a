#include <TambleCore/Images/ImageProcessor.h>

#include <gtest/gtest.h>

namespace tamble {
namespace {

InputFile photo(const std::string& name, const char* extension) {
    return {.url = "/photos/" + name, .byteSize = 1000, .contentType = ContentType::forExtension(extension)};
}

ImageJobSettings converting(ImageFormat format) {
    ImageJobSettings settings = ImageJobSettings::defaults(ImageTool::convert);
    settings.output = image_output::Convert{format};
    return settings;
}

TEST(ImageProcessor, NamesOutputs) {
    const ImageProcessor toJPEG(converting(ImageFormat::jpeg));
    EXPECT_EQ(toJPEG.outputName(photo("beach.day.png", "png")), "beach.day.jpg");
    EXPECT_EQ(toJPEG.outputName(photo("Beach.JPEG", "jpeg")), "Beach.JPEG");
    const ImageProcessor keeping(ImageJobSettings::defaults(ImageTool::compress));
    EXPECT_EQ(keeping.outputName(photo("a.TIF", "tif")), "a.TIF");
    EXPECT_EQ(keeping.outputName(photo("raw.CR2", "cr2")), "raw.jpg");
    EXPECT_EQ(keeping.outputName(photo("icon.ico", "ico")), "icon.png");
    EXPECT_EQ(keeping.outputName({.url = "/photos/scan", .contentType = ContentType::forExtension("png")}), "scan");
}

TEST(ImageProcessor, GivesCutOutsAFormatThatIsSeeThrough) {
    ImageJobSettings settings = ImageJobSettings::defaults(ImageTool::removeBackground);
    settings.output = image_output::KeepFormat{};
    EXPECT_EQ(ImageProcessor(settings).outputName(photo("cat.jpg", "jpg")), "cat.png");
    settings.output = image_output::Convert{ImageFormat::webp};
    EXPECT_EQ(ImageProcessor(settings).outputName(photo("cat.jpg", "jpg")), "cat.webp");
}

TEST(ImageProcessor, LeavesAPhotoAloneOnlyWhenNothingElseIsAsked) {
    ImageJobSettings settings = converting(ImageFormat::jpeg);
    EXPECT_EQ(ImageProcessor(settings).skipReason(photo("a.jpg", "jpg")), SkipReason(skip::AlreadyInFormat{"JPEG"}));
    EXPECT_EQ(ImageProcessor(settings).skipReason(photo("a.png", "png")), std::nullopt);
    EXPECT_EQ(ImageProcessor(settings).skipReason({.url = "/a"}), std::nullopt);
    settings.maxPixelSize = 100;
    EXPECT_EQ(ImageProcessor(settings).skipReason(photo("a.jpg", "jpg")), std::nullopt);
    settings.maxPixelSize = std::nullopt;
    settings.skipIfAlreadyInFormat = false;
    EXPECT_EQ(ImageProcessor(settings).skipReason(photo("a.jpg", "jpg")), std::nullopt);
    settings = ImageJobSettings::defaults(ImageTool::compress);
    settings.skipIfAlreadyInFormat = true;
    EXPECT_EQ(ImageProcessor(settings).skipReason(photo("a.jpg", "jpg")), std::nullopt);
}

}  // namespace
}  // namespace tamble
