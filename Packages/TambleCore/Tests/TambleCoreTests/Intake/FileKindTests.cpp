#include <TambleCore/Intake/FileTypes.h>
#include <TambleCore/Intake/KindCounts.h>
#include <TambleCore/Intake/MediaTypes.h>

namespace tamble {
namespace {

KindCounts countsOf(std::initializer_list<std::string_view> extensions) {
    std::vector<InputFile> files;
    for (const auto extension : extensions) {
        files.push_back({.url = "/f", .contentType = ContentType::forExtension(extension)});
    }
    return KindCounts::of(files);
}

TEST(FileKinds, everyFileCountsAsOneKindAtMost) {
    EXPECT_EQ(
        countsOf({"jpg", "heic", "heif", "avif", "jxl", "jp2", "bmp", "ico", "icns", "cr3", "nef", "gif"}),
        (KindCounts{.images = 12}));
    EXPECT_EQ(countsOf({"mp4", "mov", "mkv", "webm", "avi", "mts"}), (KindCounts{.videos = 6}));
    EXPECT_EQ(countsOf({"mp3", "m4a", "wav", "flac", "aiff", "opus", "ogg"}), (KindCounts{.audio = 7}));
    EXPECT_EQ(countsOf({"pdf"}), (KindCounts{.pdfs = 1}));
    EXPECT_EQ(countsOf({"txt", "md", "csv", "html", "xhtml", "rtf", "docx", "odt", "srt", "vtt"}),
              (KindCounts{.documents = 10}));
    EXPECT_EQ(countsOf({"svg", "psd", "zip", "app", "", "unheard-of"}), KindCounts{});
}

TEST(FileKinds, readableImageTypesAreImagesOfTheTable) {
    for (const auto identifier : FileTypes::readableImageTypes()) {
        const auto type = ContentType::withIdentifier(identifier);
        ASSERT_TRUE(type) << identifier;
        EXPECT_TRUE(FileTypes::isReadableImage(type)) << identifier;
    }
    EXPECT_FALSE(FileTypes::isReadableImage(std::nullopt));
    EXPECT_FALSE(FileTypes::isReadableImage(ContentType::withIdentifier("public.image")));
    EXPECT_TRUE(FileTypes::isRawImage(ContentType::forExtension("raf")));
    EXPECT_FALSE(FileTypes::isDocument(ContentType::forExtension("srt")));
    EXPECT_TRUE(MediaTypes::needsFFmpegToRead(ContentType::forExtension("mov")));
    EXPECT_FALSE(MediaTypes::needsFFmpegToRead(ContentType::forExtension("gif")));
}

}  // namespace
}  // namespace tamble
