#include <TambleCore/Images/Metadata/Exif/MakerNotePlaces.h>

#include <array>
#include <initializer_list>

namespace tamble::tiff {
namespace {

using namespace std::string_view_literals;

/// What the offsets in a note's directory count from.
enum class Base { structure, note, innerHeader };

struct Maker {
    std::string_view signature;
    std::size_t directoryAt;
    Base base;
    std::initializer_list<std::uint16_t> tags;
};

// Layouts and tag numbers as published by the people who studied the cameras' files.
constexpr std::initializer_list<std::uint16_t> panasonicTags{0x0067, 0x0069, 0x006B, 0x006D, 0x006F, 0x0080};
constexpr std::initializer_list<std::uint16_t> nikonTags{0x0039};
constexpr std::initializer_list<std::uint16_t> pentaxTags{0x0023, 0x0024};
constexpr std::initializer_list<std::uint16_t> casioTags{0x2089, 0x3006};
constexpr std::array<Maker, 6> makers{{
    {"Panasonic\0\0\0"sv, 12, Base::structure, panasonicTags},
    {"LEICA\0\0\0"sv, 8, Base::structure, panasonicTags},
    {"Nikon\0\x02"sv, 18, Base::innerHeader, nikonTags},
    {"AOC\0"sv, 6, Base::structure, pentaxTags},
    {"PENTAX \0"sv, 10, Base::note, pentaxTags},
    {"QVC\0"sv, 6, Base::structure, casioTags},
}};
constexpr std::size_t nikonHeaderAt = 10;

constexpr Maker samsung{{}, 0, Base::note, {}};
constexpr std::array<std::uint16_t, 2> samsungTags{0x0030, 0x0031};

std::optional<ByteOrder> orderMark(ByteView bytes, std::size_t at) {
    const auto mark = slice(bytes, at, 2);
    if (!mark) return std::nullopt;
    if (asText(*mark) == "II") return ByteOrder::little;
    if (asText(*mark) == "MM") return ByteOrder::big;
    return std::nullopt;
}

/// A Samsung note has no signature: a directory whose first entry is the version "0100".
bool isSamsung(ByteView note) {
    return note.size() >= 14 && asText(note.subspan(10, 4)) == "0100";
}

class PlaceFinder {
  public:
    PlaceFinder(const Structure& structure, Range note) : structure_(structure), note_(note) {}

    template <typename Tags>
    std::vector<Range> find(const Maker& maker, const Tags& tags) const {
        const ByteView bytes = structure_.bytes;
        ByteOrder order = structure_.order;
        std::size_t base = 0;
        if (maker.base == Base::note) base = note_.at;
        if (maker.base == Base::innerHeader) base = note_.at + nikonHeaderAt;
        if (maker.base != Base::structure || maker.signature.starts_with("AOC")) {
            const std::size_t markAt =
                maker.base == Base::innerHeader ? base : note_.at + maker.directoryAt - 2;
            if (maker.directoryAt >= 2) order = orderMark(bytes, markAt).value_or(order);
        }
        std::vector<Range> result;
        const std::size_t directory = note_.at + maker.directoryAt;
        const auto count = numberAt<std::uint16_t>(bytes, directory, order);
        for (std::size_t i = 0; count && i < *count; ++i) {
            const std::size_t at = directory + 2 + 12 * i;
            if (!slice(bytes, at, 12)) break;
            if (std::ranges::find(tags, *numberAt<std::uint16_t>(bytes, at, order)) == tags.end()) continue;
            const auto type = *numberAt<std::uint16_t>(bytes, at + 2, order);
            const std::size_t size = *numberAt<std::uint32_t>(bytes, at + 4, order) * sizeOfType(type);
            const std::size_t valueAt =
                size <= 4 ? at + 8 : base + *numberAt<std::uint32_t>(bytes, at + 8, order);
            if (slice(bytes, valueAt, size)) result.push_back({valueAt, size});
        }
        return result;
    }

  private:
    const Structure& structure_;
    Range note_;
};

}  // namespace

std::vector<Range> placesInMakerNote(const Structure& structure, const Entry& note) {
    const ByteView value = structure.value(note);
    const PlaceFinder finder(structure, {note.valueAt, note.size});
    for (const Maker& maker : makers) {
        if (startsWith(value, maker.signature)) return finder.find(maker, maker.tags);
    }
    return isSamsung(value) ? finder.find(samsung, samsungTags) : std::vector<Range>{};
}

}  // namespace tamble::tiff
