#include <TambleCore/Images/Lossless/LosslessEdit.h>
#include <TambleCore/Images/Metadata/Containers/JpegSegments.h>
#include <TambleCore/Images/Metadata/Exif/EditStructure.h>
#include <TambleCore/Images/Metadata/Exif/TiffTree.h>
#include <TambleCore/Images/Metadata/ReadMetadata.h>

#include "../Metadata/ExifTool.h"

namespace tamble::test {
namespace {

using namespace std::string_view_literals;

enum class Base { structure, note, innerHeader };

/// How a maker lays its note out.
struct Maker {
    std::string name;
    /// What stands before the directory, byte order and header included.
    std::string head;
    ByteOrder order;
    Base base;
    std::uint16_t placeTag;
    std::uint16_t otherTag;
};

const std::vector<Maker> makers{
    {"Panasonic", std::string("Panasonic\0\0\0"sv), ByteOrder::little, Base::structure, 0x006D, 0x0025},
    {"Leica", std::string("LEICA\0\0\0"sv), ByteOrder::little, Base::structure, 0x0069, 0x0025},
    {"NikonBig", std::string("Nikon\0\x02\x10\0\0MM\0*\0\0\0\x08"sv), ByteOrder::big, Base::innerHeader,
     0x0039, 0x001D},
    {"NikonLittle", std::string("Nikon\0\x02\x10\0\0II*\0\x08\0\0\0"sv), ByteOrder::little, Base::innerHeader,
     0x0039, 0x001D},
    {"OlderPentax", std::string("AOC\0MM"sv), ByteOrder::big, Base::structure, 0x0023, 0x0229},
    {"NewerPentax", std::string("PENTAX \0II"sv), ByteOrder::little, Base::note, 0x0024, 0x0229},
    {"Casio", std::string("QVC\0\0\0"sv), ByteOrder::little, Base::structure, 0x3006, 0x2001},
    {"Samsung", "", ByteOrder::little, Base::note, 0x0031, 0x0021},
};

constexpr std::string_view place = "Placeville, by the sea";
constexpr std::string_view serial = "A serial number, 0001.";

void appendEntry(Bytes& note, ByteOrder order, std::uint16_t tag, std::uint32_t count, std::uint32_t value) {
    constexpr std::uint16_t undefined = 7;
    appendNumber(note, tag, order);
    appendNumber(note, undefined, order);
    appendNumber(note, count, order);
    appendNumber(note, value, order);
}

/// A note of two texts out of line, counted from where its maker counts; `noteAt` is where it lies in the
/// block.
Bytes noteOf(const Maker& maker, std::uint32_t noteAt) {
    Bytes note = copied(asBytes(maker.head));
    const bool hasVersion = maker.name == "Samsung";
    const std::uint16_t count = hasVersion ? 3 : 2;
    const auto textAt = static_cast<std::uint32_t>(note.size() + 2 + 12 * std::size_t{count} + 4);
    const std::uint32_t base = maker.base == Base::structure ? noteAt : maker.base == Base::note ? 0 : -10U;
    appendNumber(note, count, maker.order);
    if (hasVersion) appendEntry(note, maker.order, 1, 4, 0x30303130);  // "0100"
    const auto length = static_cast<std::uint32_t>(place.size());
    appendEntry(note, maker.order, maker.otherTag, length, base + textAt);
    appendEntry(note, maker.order, maker.placeTag, length, base + textAt + length);
    appendNumber(note, std::uint32_t{0}, maker.order);
    append(note, asBytes(serial));
    append(note, asBytes(place));
    return note;
}

/// A little-endian block with nothing but the note, and a GPS directory so that there is something else to
/// take out.
Bytes blockOf(const Maker& maker) {
    constexpr std::uint16_t undefined = 7;
    const auto made = [](const Bytes& note) {
        tiff::Tree gps;
        gps.set({0x001D, 2, 11, copied(asBytes("2020:01:02\0"sv)), {}});
        tiff::Tree exif;
        exif.set({tiff::tag::makerNote, undefined, static_cast<std::uint32_t>(note.size()), note, {}});
        tiff::Tree tree;
        tree.set({tiff::tag::exifDirectory, 4, 1, {}, {exif}});
        tree.set({tiff::tag::gpsDirectory, 4, 1, {}, {gps}});
        return tiff::block(tree, ByteOrder::little);
    };
    const Bytes first = made(noteOf(maker, 0));
    const auto noteAt = asText(first).find(asText(noteOf(maker, 0)));
    return made(noteOf(maker, static_cast<std::uint32_t>(noteAt)));
}

class MakerNote : public testing::TestWithParam<Maker> {};

// Other offsets in the note count from anywhere, so whatever stays must stay where it is.
TEST_P(MakerNote, LosesItsPlacesAndNothingElse) {
    const Bytes block = blockOf(GetParam());
    ASSERT_NE(asText(block).find(place), std::string_view::npos);
    const auto edited = tiff::edited(block, {.withoutLocation = true});
    ASSERT_TRUE(edited);
    EXPECT_EQ(asText(*edited).find("Placeville"), std::string_view::npos);
    EXPECT_EQ(asText(*edited).find("2020:01:02"), std::string_view::npos);
    EXPECT_EQ(asText(*edited).find(serial), asText(block).find(serial));
    const std::string& head = GetParam().head;
    EXPECT_EQ(asText(*edited).find(head), asText(block).find(head));
    // The text is gone, its entry is not: its place is filled with zeros.
    const std::size_t placeAt = asText(block).find(place);
    ASSERT_LE(placeAt + place.size(), edited->size());
    EXPECT_TRUE(std::ranges::all_of(ByteView(*edited).subspan(placeAt, place.size()),
                                    [](std::byte b) { return b == std::byte{0}; }));
}

TEST_P(MakerNote, BearsLiesAboutLengths) {
    const Bytes block = blockOf(GetParam());
    const std::size_t noteAt = asText(block).find(asText(noteOf(GetParam(), 0)).substr(0, 12));
    const std::size_t begin = noteAt == std::string_view::npos ? 8 : noteAt;
    for (std::size_t at = begin; at + 4 <= block.size(); ++at) {
        Bytes damaged = block;
        putNumber(std::span(damaged), at, std::uint32_t{0xFFFFFFF0}, ByteOrder::little);
        const auto edited = tiff::edited(damaged, {.withoutLocation = true});
        EXPECT_LE(edited.value_or(Bytes()).size(), block.size());
    }
}

INSTANTIATE_TEST_SUITE_P(Makers, MakerNote, testing::ValuesIn(makers),
                         [](const auto& parameter) { return parameter.param.name; });

TEST(MakerNotes, OfOthersStayByteForByte) {
    for (const auto head :
         {"Apple iOS\0\0\1MM"sv, "OLYMPUS\0II\3\0"sv, "FUJIFILM\x0C\0\0\0"sv, "SONY DSC \0\0\0"sv}) {
        const Maker maker{"Other", std::string(head), ByteOrder::big, Base::note, 0x0001, 0x0002};
        const Bytes block = blockOf(maker);
        const auto edited = tiff::edited(block, {.withoutLocation = true});
        ASSERT_TRUE(edited);
        const auto noteAt = asText(block).find(head);
        const auto length = noteOf(maker, 0).size();
        EXPECT_EQ(asText(*edited).substr(noteAt, length), asText(block).substr(noteAt, length));
    }
}

}  // namespace
}  // namespace tamble::test
