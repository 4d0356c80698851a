#include <TambleCore/Platform/ContentType.h>
#include <TambleCore/Platform/ContentTypeTable.h>

#include <set>

#include <TambleCoreTests/TemporaryFolder.h>
#include <sys/stat.h>

namespace tamble {
namespace {

using namespace std::string_view_literals;
using testing::TemporaryFolder;

std::string_view identifier(const std::optional<ContentType>& type) {
    return type ? type->identifier() : "none";
}

TEST(ContentType, theTableGivesEachIdentifierAndExtensionOnce) {
    std::set<std::string_view> identifiers;
    std::set<std::string> extensions;
    for (const auto& facts : contentTypeTable()) {
        EXPECT_TRUE(identifiers.insert(facts.identifier).second) << facts.identifier;
        std::string extension;
        for (std::istringstream words{std::string(facts.extensions)}; words >> extension;) {
            EXPECT_TRUE(extensions.insert(extension).second) << extension;
            EXPECT_EQ(identifier(ContentType::forExtension(extension)), facts.identifier);
        }
    }
}

TEST(ContentType, conformsToItsKindsAndToNothingElse) {
    const auto jpeg = ContentType::forExtension("JPeG");
    ASSERT_EQ(identifier(jpeg), "public.jpeg");
    EXPECT_TRUE(jpeg->conformsTo("public.jpeg"));
    EXPECT_TRUE(jpeg->conformsTo("public.image"));
    EXPECT_FALSE(jpeg->conformsTo("public.png"));
    EXPECT_FALSE(ContentType::withIdentifier("public.image")->conformsTo("public.jpeg"));
    EXPECT_EQ(jpeg, ContentType::withIdentifier("public.jpeg"));

    const auto raw = ContentType::forExtension("dng");
    EXPECT_TRUE(raw->conformsTo("public.camera-raw-image"));
    EXPECT_FALSE(raw->conformsTo("public.tiff"));
    EXPECT_TRUE(ContentType::forExtension("m4a")->conformsTo("public.audio"));
    EXPECT_FALSE(ContentType::forExtension("m4a")->conformsTo("public.movie"));
    EXPECT_EQ(ContentType::forExtension("nonsense"), std::nullopt);
    EXPECT_EQ(ContentType::withIdentifier("public.nonsense"), std::nullopt);
}

TEST(ContentType, onlyTheLastExtensionOfANameCounts) {
    EXPECT_EQ(extensionOf("a.tar.JPG"), "JPG");
    for (const auto name : {"name", "name.", ".jpg", ""}) EXPECT_EQ(extensionOf(name), "") << name;
}

TEST(ContentType, nameGoesBeforeContent) {
    const TemporaryFolder folder;
    constexpr auto png = "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"sv;
    EXPECT_EQ(identifier(ContentType::of(folder.file("wrong.jpg", png))), "public.jpeg");
    EXPECT_EQ(identifier(ContentType::of(folder.file("picture", png))), "public.png");
    EXPECT_EQ(identifier(ContentType::of(folder.file("picture.backup", png))), "none");
    EXPECT_EQ(identifier(ContentType::of(folder.file("a.folder/picture", png))), "public.png");
    EXPECT_EQ(identifier(ContentType::of(folder.file("empty", ""))), "none");
    EXPECT_EQ(identifier(ContentType::of(folder.path() / "missing")), "none");
    EXPECT_EQ(identifier(ContentType::of("absent.jpg")), "public.jpeg");
}

TEST(ContentType, neverWaitsForAPipe) {
    const TemporaryFolder folder;
    const auto pipe = folder.path() / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(ContentType::of(pipe), std::nullopt);
}

TEST(ContentType, tellsContentBySignature) {
    const struct {
        std::string_view content;
        std::string_view expected;
    } cases[] = {
        {"\xFF\xD8\xFF\xE0"sv, "public.jpeg"},
        {"II*\0\x10\0\0\0CR\x02\0"sv, "com.canon.cr2-raw-image"},
        {"II*\0\x08\0\0\0\x01\0\x02\0"sv, "public.tiff"},
        {"RIFF\x10\0\0\0WEBPVP8 "sv, "org.webmproject.webp"},
        {"RIFF\x10\0\0\0WAVEfmt "sv, "com.microsoft.waveform-audio"},
        {"\0\0\0\x18"
         "ftypheic\0\0\0\0mif1heic"sv,
         "public.heic"},
        {"\0\0\0\x1C"
         "ftypmif1\0\0\0\0mif1miafavif"sv,
         "public.avif"},
        // The brand lies outside the box of 16 bytes.
        {"\0\0\0\x10"
         "ftypmif1\0\0\0\0avif"sv,
         "public.heif-standard"},
        {"\0\0\0\x14"
         "ftypisom\0\0\0\0mp41"sv,
         "public.mpeg-4"},
        {"\xFF\x0A\x00\x10"sv, "public.jpeg-xl"},
        {"\xFF\xFB\x90\x64"sv, "public.mp3"},
        {"\xFF\xF1\x50\x80"sv, "public.aac-audio"},
        {"OggS\0\x02\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x01\x13OpusHead"sv, "org.xiph.opus"},
        {"\x1A\x45\xDF\xA3\x9F\x42\x82\x84webm"sv, "org.webmproject.webm"},
        {"BM\x36\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0"sv, "com.microsoft.bmp"},
        {"BMW is a maker of cars"sv, "none"},
        {"\xEF\xBB\xBF <!DOCTYPE HTML><title>"sv, "public.html"},
        {"<?xml version='1.0'?><svg/>"sv, "public.svg-image"},
        {"%PDF-1.7"sv, "com.adobe.pdf"},
        {"plain words"sv, "none"},
        {"\xFF"sv, "none"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(identifier(ContentType::ofContent(each.content)), each.expected);
        // No shorter beginning is read past its end.
        for (std::size_t length = 0; length < each.content.size(); ++length) {
            const std::string beginning(each.content.substr(0, length));
            ContentType::ofContent(beginning);
        }
    }
}

}  // namespace
}  // namespace tamble
