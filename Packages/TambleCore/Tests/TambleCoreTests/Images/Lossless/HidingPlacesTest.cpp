#include <TambleCore/Images/Lossless/LosslessEdit.h>
#include <TambleCore/Images/Metadata/Containers/JpegSegments.h>
#include <TambleCore/Images/Metadata/Containers/PngChunks.h>
#include <TambleCore/Images/Metadata/Exif/TiffTree.h>
#include <TambleCore/Images/Metadata/Text/Xmp.h>

#include "../Metadata/ExifTool.h"

namespace tamble::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using namespace std::string_view_literals;

constexpr std::uint16_t ascii = 2;
constexpr std::uint16_t undefined = 7;

Bytes bytes(std::string_view text) {
    return copied(asBytes(text));
}

tiff::Tree::Value value(std::uint16_t tag, std::uint16_t type, Bytes content) {
    return {tag,
            type,
            static_cast<std::uint32_t>(content.size() / tiff::sizeOfType(type)),
            std::move(content),
            {}};
}

tiff::Tree::Value pointer(std::uint16_t tag, tiff::Tree child) {
    return {tag, 4, 1, {}, {std::move(child)}};
}

tiff::Tree gpsTree() {
    tiff::Tree gps;
    gps.set(value(0x001C, undefined, bytes("Placeville, by the sea")));
    return gps;
}

/// A main directory with a maker and an orientation.
tiff::Tree mainTree() {
    tiff::Tree tree;
    tree.set(value(0x010F, ascii, bytes("Kameramann\0"sv)));
    tree.set(value(tiff::tag::orientation, 3, bytes("\0\x06"sv)));
    return tree;
}

Bytes exifWithGps() {
    tiff::Tree tree = mainTree();
    tree.set(pointer(tiff::tag::gpsDirectory, gpsTree()));
    return tiff::block(tree, ByteOrder::big);
}

class HidingPlaces : public testing::Test {
  protected:
    /// A JPEG with a segment of any kind before its tables.
    Bytes jpegWith(const std::vector<std::pair<std::uint8_t, Bytes>>& segments) const {
        const Bytes picture = bytesOf(folder_.picture("a.jpg[strip]", fourFields(32, 32)));
        Bytes result;
        jpeg::appendStart(result);
        for (const auto& [marker, payload] : segments) {
            append(result, bytes("\xFF"));
            result.push_back(std::byte{marker});
            appendNumber(result, static_cast<std::uint16_t>(payload.size() + 2), ByteOrder::big);
            append(result, payload);
        }
        append(result, ByteView(picture).subspan(2));
        return result;
    }

    static Bytes signedWith(std::string_view signature, ByteView content) {
        Bytes result = bytes(signature);
        append(result, content);
        return result;
    }

    /// Cleans the location out, shows that the file held it and holds it no more.
    Bytes cleaned(const Bytes& source, ImageFormat format) const {
        EXPECT_THAT(remainingTraces(source, format, MetadataRemoval::location), Not(IsEmpty()));
        auto result = losslesslyCleaned(source, format, MetadataRemoval::location);
        if (!result) throw std::runtime_error("refused");
        EXPECT_THAT(remainingTraces(*result, format, MetadataRemoval::location), IsEmpty());
        EXPECT_EQ(asText(*result).find("Placeville"), std::string_view::npos);
        return *result;
    }

    PictureFolder folder_;
};

TEST_F(HidingPlaces, ApplicationDataThatNobodyUnderstands) {
    const Bytes result = cleaned(jpegWith({{0xE6, bytes("GoPro\0Placeville"sv)},
                                           {0xE2, bytes("MPF\0Placeville"sv)},
                                           {0xE1, bytes("FLIR\0Placeville"sv)},
                                           {0xFE, bytes("a remark that stays")}}),
                                 ImageFormat::jpeg);
    EXPECT_NE(asText(result).find("a remark that stays"), std::string_view::npos);
}

TEST_F(HidingPlaces, AThumbnailWithExifOfItsOwn) {
    const Bytes inner = jpegWith({{0xE1, signedWith("Exif\0\0"sv, exifWithGps())}});
    // A second directory by hand: the offset after the first directory's entries points to it.
    Bytes block = tiff::block(mainTree(), ByteOrder::big);
    const std::size_t second = block.size() + block.size() % 2;
    putNumber(std::span(block), 8 + 2 + 2 * 12, static_cast<std::uint32_t>(second), ByteOrder::big);
    block.resize(second);
    const auto entry = [&block](std::uint16_t tag, std::size_t number) {
        appendNumber(block, tag, ByteOrder::big);
        appendNumber(block, std::uint16_t{4}, ByteOrder::big);
        appendNumber(block, std::uint32_t{1}, ByteOrder::big);
        appendNumber(block, static_cast<std::uint32_t>(number), ByteOrder::big);
    };
    appendNumber(block, std::uint16_t{2}, ByteOrder::big);
    entry(tiff::tag::thumbnailOffset, second + 30);
    entry(tiff::tag::thumbnailLength, inner.size());
    appendNumber(block, std::uint32_t{0}, ByteOrder::big);
    append(block, inner);
    const Bytes result = cleaned(jpegWith({{0xE1, signedWith("Exif\0\0"sv, block)}}), ImageFormat::jpeg);
    EXPECT_NE(asText(result).find("Kameramann"), std::string_view::npos);
    EXPECT_EQ(asText(result).find("\xFF\xD8", 2), std::string_view::npos);
}

TEST_F(HidingPlaces, PlaceNamesInAMakerNote) {
    const std::string city = "Placeville" + std::string(62, '\0');
    Bytes note = bytes("Panasonic\0\0\0"sv);
    appendNumber(note, std::uint16_t{2}, ByteOrder::big);
    for (const auto& [tag, at] : {std::pair<std::uint16_t, std::uint32_t>(0x0025, 0), {0x006D, 72}}) {
        appendNumber(note, tag, ByteOrder::big);
        appendNumber(note, undefined, ByteOrder::big);
        appendNumber(note, std::uint32_t{72}, ByteOrder::big);
        appendNumber(note, at, ByteOrder::big);
    }
    appendNumber(note, std::uint32_t{0}, ByteOrder::big);
    const std::size_t textAt = note.size();
    append(note, asBytes("A serial number that stays" + std::string(72 - 26, '\0') + city));
    tiff::Tree exif;
    exif.set(value(tiff::tag::makerNote, undefined, note));
    tiff::Tree tree = mainTree();
    tree.set(pointer(tiff::tag::exifDirectory, exif));
    Bytes block = tiff::block(tree, ByteOrder::big);
    // The maker counts from the block's beginning.
    const std::size_t noteAt = asText(block).find("Panasonic");
    for (const std::size_t entryAt : {noteAt + 14, noteAt + 26}) {
        const auto relative = *numberAt<std::uint32_t>(block, entryAt + 8, ByteOrder::big);
        putNumber(std::span(block), entryAt + 8, static_cast<std::uint32_t>(noteAt + textAt + relative),
                  ByteOrder::big);
    }
    const auto result = losslesslyCleaned(jpegWith({{0xE1, signedWith("Exif\0\0"sv, block)}}),
                                          ImageFormat::jpeg, MetadataRemoval::location);
    ASSERT_TRUE(result);
    EXPECT_EQ(asText(*result).find("Placeville"), std::string_view::npos);
    EXPECT_NE(asText(*result).find("A serial number that stays"), std::string_view::npos);
}

TEST_F(HidingPlaces, AnExtendedXmpPacket) {
    const auto packet = [](const std::string& properties) {
        return "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
               "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description rdf:about='' "
               "xmlns:exif='http://ns.adobe.com/exif/1.0/' xmlns:xmpNote='http://ns.adobe.com/xmp/note/' "
               "xmlns:xmp='http://ns.adobe.com/xap/1.0/' " +
               properties + "/></rdf:RDF></x:xmpmeta>";
    };
    const std::string digest = "0123456789ABCDEF0123456789ABCDEF";
    const std::string extension = packet("exif:GPSLatitude='48,51N' xmp:Nickname='" +
                                         std::string(70'000, 'n') + "' xmp:Label='Placeville'");
    std::vector<std::pair<std::uint8_t, Bytes>> segments{
        {0xE1, signedWith("http://ns.adobe.com/xap/1.0/\0"sv,
                          asBytes(packet("xmp:Rating='4' xmpNote:HasExtendedXMP='" + digest + "'")))}};
    for (std::size_t at = 0; at < extension.size(); at += 40'000) {
        Bytes part = bytes(digest);
        appendNumber(part, static_cast<std::uint32_t>(extension.size()), ByteOrder::big);
        appendNumber(part, static_cast<std::uint32_t>(at), ByteOrder::big);
        append(part, asBytes(std::string_view(extension).substr(at, 40'000)));
        segments.emplace_back(0xE1, signedWith("http://ns.adobe.com/xmp/extension/\0"sv, part));
    }
    const auto result = losslesslyCleaned(jpegWith(segments), ImageFormat::jpeg, MetadataRemoval::location);
    ASSERT_TRUE(result);
    EXPECT_THAT(remainingTraces(jpegWith(segments), ImageFormat::jpeg, MetadataRemoval::location),
                Not(IsEmpty()));
    EXPECT_THAT(remainingTraces(*result, ImageFormat::jpeg, MetadataRemoval::location), IsEmpty());
    if (!hasExifTool()) GTEST_SKIP() << "exiftool is not installed";
    const std::string tags = tagsOf(folder_.file("result.jpg", *result));
    EXPECT_THAT(tags, HasSubstr("Nickname"));
    EXPECT_THAT(tags, HasSubstr("Rating"));
    EXPECT_THAT(tags, Not(HasSubstr("GPS")));
    EXPECT_THAT(tags, Not(HasSubstr("Warning")));
    // A part is missing: the reference goes too.
    segments.pop_back();
    const auto torn = losslesslyCleaned(jpegWith(segments), ImageFormat::jpeg, MetadataRemoval::location);
    ASSERT_TRUE(torn);
    EXPECT_EQ(asText(*torn).find("HasExtendedXMP"), std::string_view::npos);
}

TEST_F(HidingPlaces, OlderTextsOfPng) {
    const Bytes picture = bytesOf(folder_.picture("a.png[strip]", fourFields(32, 32)));
    const std::size_t afterHeader = 8 + 25;
    Bytes source = copied(ByteView(picture).first(afterHeader));
    png::appendRawProfile(source, "exif", signedWith("Exif\0\0"sv, exifWithGps()));
    png::appendChunk(source, "tEXt",
                     asBytes("exif:GPSLatitude\0"
                             "48/1, 51/1"sv));
    png::appendChunk(source, "tEXt", asBytes("Comment\0a remark that stays"sv));
    append(source, ByteView(picture).subspan(afterHeader));
    const Bytes result = cleaned(source, ImageFormat::png);
    EXPECT_NE(asText(result).find("Kameramann"), std::string_view::npos);
    EXPECT_NE(asText(result).find("a remark that stays"), std::string_view::npos);
    EXPECT_EQ(asText(result).find("48/1"), std::string_view::npos);
}

// Structures that point in circles, or whose GPS data claim to lie where the tables are.
TEST_F(HidingPlaces, ExifThatCannotBeUnderstoodGoesWholeButTheOrientation) {
    Bytes claims = exifWithGps();
    const std::size_t text = asText(claims).find("Placeville");
    const std::size_t gpsEntry = text - 4 - 12;
    putNumber(std::span(claims), gpsEntry + 4, static_cast<std::uint32_t>(claims.size()), ByteOrder::big);
    putNumber(std::span(claims), gpsEntry + 8, std::uint32_t{0}, ByteOrder::big);
    Bytes circle = exifWithGps();
    const std::size_t pointerAt = 8 + 2 + 2 * 12 + 8;
    putNumber(std::span(circle), pointerAt, std::uint32_t{8}, ByteOrder::big);
    for (const Bytes& block : {claims, circle}) {
        const Bytes source = jpegWith({{0xE1, signedWith("Exif\0\0"sv, block)}});
        const Bytes result = cleaned(source, ImageFormat::jpeg);
        EXPECT_EQ(fieldsOf(shown(result).autorot()), fieldsOf(shown(source).autorot()));
    }
}

/// A block of directories that all point to one thumbnail, which holds such a block again, and so on.
Bytes nested(int levels) {
    constexpr std::uint32_t directories = 20;
    constexpr std::uint32_t directorySize = 2 + 2 * 12 + 4;
    Bytes inner = bytes("\xFF\xD8");
    if (levels > 0) {
        const Bytes below = nested(levels - 1);
        jpeg::appendSegment(inner, jpeg::Kind::exif, below);
    }
    append(inner, asBytes("\xFF\xDA\0\x02\0\xFF\xD9"sv));
    Bytes block = bytes("MM\0*\0\0\0\x08"sv);
    for (std::uint32_t i = 0; i < directories; ++i) {
        appendNumber(block, std::uint16_t{2}, ByteOrder::big);
        for (const auto& [tag, number] :
             {std::pair(tiff::tag::thumbnailOffset, 8 + directories * directorySize),
              std::pair(tiff::tag::thumbnailLength, static_cast<std::uint32_t>(inner.size()))}) {
            appendNumber(block, tag, ByteOrder::big);
            appendNumber(block, std::uint16_t{4}, ByteOrder::big);
            appendNumber(block, std::uint32_t{1}, ByteOrder::big);
            appendNumber(block, number, ByteOrder::big);
        }
        const bool isLast = i + 1 == directories;
        appendNumber(block, isLast ? 0U : 8 + (i + 1) * directorySize, ByteOrder::big);
    }
    append(block, inner);
    return block;
}

// Twenty ways at each of sixty levels would take longer than there is time.
TEST_F(HidingPlaces, ThumbnailsWithinThumbnailsComeToAnEnd) {
    const Bytes source = jpegWith({{0xE1, signedWith("Exif\0\0"sv, nested(60))}});
    EXPECT_THAT(remainingTraces(source, ImageFormat::jpeg, MetadataRemoval::location), Not(IsEmpty()));
    const auto result = losslesslyCleaned(source, ImageFormat::jpeg, MetadataRemoval::location);
    if (!result) return;
    EXPECT_THAT(remainingTraces(*result, ImageFormat::jpeg, MetadataRemoval::location), IsEmpty());
}

}  // namespace
}  // namespace tamble::test
