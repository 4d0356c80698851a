#include <TambleCore/Images/Metadata/Text/Iptc.h>

#include <array>

namespace tamble::iptc {
namespace {

constexpr std::byte tagMarker{0x1C};
constexpr std::size_t headerSize = 5;
constexpr unsigned applicationRecord = 2;

/// Length of the dataset at the beginning of `records`; empty when it is damaged. A length with the highest
/// bit set counts the bytes in which the real length follows.
std::optional<std::size_t> lengthOfFirst(ByteView records) {
    const auto stored = numberAt<std::uint16_t>(records, 3, ByteOrder::big);
    if (!stored || records[0] != tagMarker) return std::nullopt;
    std::size_t header = headerSize;
    std::size_t length = *stored;
    if ((length & 0x8000U) != 0) {
        if (length != 0x8004U) return std::nullopt;
        const auto extended = numberAt<std::uint32_t>(records, headerSize, ByteOrder::big);
        if (!extended) return std::nullopt;
        header += sizeof(std::uint32_t);
        length = *extended;
    }
    return length <= records.size() - header ? std::optional(header + length) : std::nullopt;
}

/// Whether a place's dataset begins inside another one's value: lengths that lie, or one hidden in the other.
bool hidesLocation(ByteView value) {
    for (std::size_t at = 0; at + 3 <= value.size(); ++at) {
        const bool begins = value[at] == tagMarker && value[at + 1] == std::byte{applicationRecord};
        if (begins && isLocation(std::to_integer<unsigned>(value[at + 2]))) return true;
    }
    return false;
}

}  // namespace

bool isLocation(unsigned dataset) {
    constexpr std::array<unsigned, 7> places{26, 27, 90, 92, 95, 100, 101};
    return std::ranges::find(places, dataset) != places.end();
}

std::vector<Dataset> datasets(ByteView records) {
    std::vector<Dataset> result;
    while (const auto length = lengthOfFirst(records)) {
        result.push_back({std::to_integer<unsigned>(records[1]), std::to_integer<unsigned>(records[2]),
                          records.first(*length)});
        records = records.subspan(*length);
    }
    return result;
}

Bytes withoutLocation(ByteView records) {
    Bytes result;
    for (const Dataset& dataset : datasets(records)) {
        if (!hidesLocation(dataset.whole)) append(result, dataset.whole);
    }
    return result;
}

}  // namespace tamble::iptc
