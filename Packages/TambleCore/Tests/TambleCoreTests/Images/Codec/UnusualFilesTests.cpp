#include <TambleCore/Images/Metadata/Containers/PngChunks.h>
#include <TambleCore/Images/Metadata/Containers/WebPChunks.h>

#include <random>

#include "../Metadata/ExifTool.h"

namespace tamble::test {
namespace {

using namespace std::string_view_literals;
using vips::VImage;
using Settings = ImageJobSettings;

void appendBlock(Bytes& icons, std::string_view type, ByteView data) {
    append(icons, asBytes(type));
    appendNumber(icons, static_cast<std::uint32_t>(data.size() + 8), ByteOrder::big);
    append(icons, data);
}

Bytes icns(const std::vector<std::pair<std::string_view, Bytes>>& blocks) {
    Bytes inner;
    for (const auto& [type, data] : blocks) appendBlock(inner, type, data);
    Bytes file;
    appendBlock(file, "icns", inner);
    return file;
}

/// A set of pictures as PNG files, each with its side in pixels.
Bytes ico(const std::vector<std::pair<int, Bytes>>& pictures) {
    Bytes file;
    for (const std::size_t number : {std::size_t{0}, std::size_t{1}, pictures.size()})
        appendNumber(file, static_cast<std::uint16_t>(number), ByteOrder::little);
    std::size_t at = file.size() + 16 * pictures.size();
    for (const auto& [side, data] : pictures) {
        append(file, Bytes{static_cast<std::byte>(side), static_cast<std::byte>(side), {}, {}});
        appendNumber(file, std::uint16_t{1}, ByteOrder::little);
        appendNumber(file, std::uint16_t{32}, ByteOrder::little);
        appendNumber(file, static_cast<std::uint32_t>(data.size()), ByteOrder::little);
        appendNumber(file, static_cast<std::uint32_t>(at), ByteOrder::little);
        at += data.size();
    }
    for (const auto& [side, data] : pictures) append(file, data);
    return file;
}

/// One file of every kind that can be made here, by name.
std::vector<std::filesystem::path> everyKind(const PictureFolder& folder) {
    const VImage picture = photograph(96, 64);
    std::vector<std::filesystem::path> files;
    for (const char* name : {"a.jpg", "progressive.jpg[interlace]", "a.png", "interlaced.png[interlace]",
                             "a.webp", "lossless.webp[lossless]", "a.tiff[compression=deflate]",
                             "tiled.tiff[tile]", "a.gif", "a.heic", "a.avif", "a.jxl", "a.jp2"}) {
        files.push_back(folder.picture(name, picture));
    }
    const Bytes small = bytesOf(folder.picture("16.png", fourFields(16, 16)));
    const Bytes large = bytesOf(folder.picture("64.png", photograph(64, 64)));
    files.push_back(folder.file("a.ico", ico({{16, small}, {64, large}})));
    files.push_back(folder.file("a.icns", icns({{"icp4", small}, {"ic12", large}})));
    files.push_back(folder.file("jp2.icns", icns({{"ic08", bytesOf(folder / "a.jp2")}})));
    return files;
}

TEST(UnusualFilesTests, TruncatedOnesNeverGiveHalfAPicture) {
    const PictureFolder folder;
    for (const auto& file : everyKind(folder)) {
        ASSERT_EQ(failureOf(file, ImageFormat::png), "") << file.filename();
        const Bytes whole = bytesOf(file);
        for (const double share : {0.0, 0.01, 0.1, 0.3, 0.5, 0.7, 0.9}) {
            const auto size = static_cast<std::size_t>(share * static_cast<double>(whole.size()));
            const auto torn = folder.file("torn" + file.extension().string(), ByteView(whole).first(size));
            for (const ImageFormat format : {ImageFormat::png, ImageFormat::jpeg, ImageFormat::webp}) {
                EXPECT_THAT(failureOf(torn, format), testing::AnyOf("unreadable", "cannotDecode"))
                    << file.filename() << " cut at " << share << " to " << displayName(format);
            }
        }
    }
}

TEST(UnusualFilesTests, DamagedOnesFailAsWhatTheyAre) {
    const PictureFolder folder;
    std::mt19937 random(11);
    for (const auto& file : everyKind(folder)) {
        const Bytes whole = bytesOf(file);
        for (int round = 0; round < 25; ++round) {
            Bytes damaged = whole;
            for (int i = 0; i < 6; ++i) damaged[random() % damaged.size()] = static_cast<std::byte>(random());
            const auto broken = folder.file("broken" + file.extension().string(), damaged);
            // What still opens may be turned into a picture; what does not blames the input.
            EXPECT_THAT(failureOf(broken, ImageFormat::jpeg),
                        testing::AnyOf("", "unreadable", "cannotDecode", "animatedNotSupported",
                                       "multiPageNotSupported"))
                << file.filename() << " round " << round;
        }
    }
}

TEST(UnusualFilesTests, SeveralPicturesAreRefusedWithTheirSentence) {
    const PictureFolder folder;
    VImage frames = fourFields(32, 32).join(fourFields(32, 32).rot180(), VIPS_DIRECTION_VERTICAL);
    frames.set("page-height", 32);
    for (const char* name : {"a.gif", "a.webp", "lossless.webp[lossless]"})
        EXPECT_EQ(failureOf(folder.picture(name, frames), ImageFormat::png), "animatedNotSupported") << name;
    EXPECT_EQ(failureOf(folder.picture("a.tiff", frames), ImageFormat::png), "multiPageNotSupported");

    // An animation's control chunk, after the header of 25 bytes.
    const Bytes still = bytesOf(folder.picture("a.png", fourFields(32, 32)));
    Bytes animated = copied(ByteView(still).first(8 + 25));
    png::appendChunk(animated, "acTL", asBytes("\0\0\0\2\0\0\0\0"sv));
    append(animated, ByteView(still).subspan(8 + 25));
    const auto file = folder.file("animated.png", animated);
    EXPECT_EQ(failureOf(file, ImageFormat::png), "animatedNotSupported");
    // Also where the picture would not be decoded.
    EXPECT_EQ(failureOf(file, std::nullopt, {.removeLocation = true, .preferLosslessMetadataEdit = true}),
              "animatedNotSupported");
}

TEST(UnusualFilesTests, TheLargestPictureOfAnIconIsTaken) {
    const PictureFolder folder;
    const auto file = [&](const char* name, int side) {
        return bytesOf(folder.picture(fmt::format("{}-{}", side, name), fourFields(side, side)));
    };
    const auto sizeOf = [&](const Bytes& content, const char* name) {
        const auto bytes = converted(folder.file(name, content), ImageFormat::png);
        EXPECT_EQ(fieldsOf(shown(bytes)), "RGBW") << name;
        return shown(bytes).width();
    };
    EXPECT_EQ(
        sizeOf(ico({{16, file("a.png", 16)}, {48, file("a.png", 48)}, {32, file("a.png", 32)}}), "a.ico"),
        48);
    EXPECT_EQ(sizeOf(ico({{32, file("a.png", 32)}, {0, file("a.png", 256)}}), "b.ico"), 256);
    EXPECT_EQ(sizeOf(icns({{"icp4", file("a.png", 16)}, {"ic09", file("a.png", 512)}}), "a.icns"), 512);
    EXPECT_EQ(sizeOf(icns({{"ic08", file("a.jp2", 256)}, {"TOC ", Bytes(16)}}), "b.icns"), 256);
}

// Icons of before PNG: a red upper half by repeating, a row of blue by listing, then whatever a mask shows of
// it.
TEST(UnusualFilesTests, RunLengthCodedIconsAreRead) {
    const PictureFolder folder;
    Bytes runs;
    const auto repeat = [&runs](std::size_t count, int value) {
        for (; count > 0; count -= std::min<std::size_t>(count, 128)) {
            runs.push_back(static_cast<std::byte>(std::min<std::size_t>(count, 128) + 125));
            runs.push_back(static_cast<std::byte>(value));
        }
    };
    repeat(128, 220);
    repeat(128, 10);
    repeat(256, 20);
    repeat(240, 30);
    runs.push_back(std::byte{15});
    for (int i = 0; i < 16; ++i) runs.push_back(static_cast<std::byte>(100 + i));
    Bytes mask(256, std::byte{255});
    mask[0] = std::byte{0};
    const auto image = [&](const Bytes& content) {
        return converted(folder.file("a.icns", content), ImageFormat::png);
    };

    const auto masked = image(icns({{"is32", runs}, {"s8mk", mask}}));
    EXPECT_EQ(shown(masked).width(), 16);
    EXPECT_EQ(shown(masked).getpoint(0, 0), (std::vector<double>{220, 20, 30, 0}));
    EXPECT_EQ(shown(masked).getpoint(5, 15), (std::vector<double>{10, 20, 105, 255}));
    const auto bare = image(icns({{"is32", runs}}));
    EXPECT_EQ(shown(bare).getpoint(5, 15), (std::vector<double>{10, 20, 105}));
    runs.pop_back();
    EXPECT_EQ(failureOf(folder.file("b.icns", icns({{"is32", runs}, {"s8mk", mask}})), ImageFormat::png),
              "cannotDecode");
}

TEST(UnusualFilesTests, DamagedIconsFailWithTheRightSentence) {
    const PictureFolder folder;
    const Bytes picture = bytesOf(folder.picture("a.png", fourFields(16, 16)));
    const auto failure = [&](const Bytes& content, const char* name) {
        return failureOf(folder.file(name, content), ImageFormat::png);
    };
    EXPECT_EQ(failure(icns({}), "a.icns"), "cannotDecode");
    EXPECT_EQ(failure(icns({{"ic08", copied(asBytes("neither PNG nor JPEG 2000"))}}), "a.icns"),
              "cannotDecode");
    Bytes lies = icns({{"ic08", picture}});
    putNumber(std::span(lies), 12, std::uint32_t{0x7FFFFFFF}, ByteOrder::big);
    EXPECT_EQ(failure(lies, "a.icns"), "unreadable");
    putNumber(std::span(lies), 12, std::uint32_t{4}, ByteOrder::big);
    EXPECT_EQ(failure(lies, "a.icns"), "unreadable");

    EXPECT_EQ(failure(ico({}), "a.ico"), "unreadable");
    Bytes outside = ico({{16, picture}});
    putNumber(std::span(outside), 6 + 12, std::uint32_t{0xFFFFFFFF}, ByteOrder::little);
    EXPECT_EQ(failure(outside, "a.ico"), "unreadable");
}

}  // namespace
}  // namespace tamble::test
