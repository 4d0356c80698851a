#include <TambleCore/Images/Metadata/Containers/JpegSegments.h>

#include <array>

namespace tamble::jpeg {
namespace {

using namespace std::string_view_literals;

// Marker codes: ITU-T T.81, table B.1.
constexpr std::uint8_t startOfImage = 0xD8;
constexpr std::uint8_t endOfImage = 0xD9;
constexpr std::uint8_t startOfScan = 0xDA;
constexpr std::uint8_t comment = 0xFE;
constexpr std::uint8_t app0 = 0xE0;

struct Signature {
    Kind kind;
    std::uint8_t marker;
    std::string_view text;
};

constexpr std::array<Signature, 7> signatures{{
    {Kind::jfif, app0, "JFIF\0"sv},
    {Kind::exif, app0 + 1, "Exif\0\0"sv},
    {Kind::xmp, app0 + 1, "http://ns.adobe.com/xap/1.0/\0"sv},
    {Kind::extendedXmp, app0 + 1, "http://ns.adobe.com/xmp/extension/\0"sv},
    {Kind::icc, app0 + 2, "ICC_PROFILE\0"sv},
    {Kind::photoshop, app0 + 13, "Photoshop 3.0\0"sv},
    {Kind::adobe, app0 + 14, "Adobe"sv},
}};

bool isRestart(std::uint8_t code) {
    return code >= 0xD0 && code <= 0xD7;
}

bool isCoding(std::uint8_t code) {
    return (code >= 0xC0 && code <= 0xCF) || (code >= startOfScan && code <= 0xDF);
}

Segment classified(std::uint8_t code, ByteView whole, ByteView payload) {
    if (isCoding(code)) return {Kind::coding, code, whole, payload};
    if (code == comment) return {Kind::comment, code, whole, payload};
    for (const Signature& known : signatures) {
        if (code == known.marker && startsWith(payload, known.text)) {
            return {known.kind, code, whole, payload.subspan(known.text.size())};
        }
    }
    return {Kind::other, code, whole, payload};
}

/// Where the coded data that begins at `at` meets the next marker.
std::optional<std::size_t> endOfCodedData(ByteView file, std::size_t at) {
    while (at + 1 < file.size()) {
        const void* found = std::memchr(file.data() + at, 0xFF, file.size() - 1 - at);
        if (found == nullptr) return std::nullopt;
        at = static_cast<std::size_t>(static_cast<const std::byte*>(found) - file.data());
        const auto next = std::to_integer<std::uint8_t>(file[at + 1]);
        if (next == 0xFF) {
            ++at;
        } else if (next == 0 || isRestart(next)) {
            at += 2;
        } else {
            return at;
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<Layout> layout(ByteView file, Extent extent) {
    if (!startsWith(file, "\xFF\xD8")) return std::nullopt;
    Layout result;
    std::size_t at = 2;
    while (at + 1 < file.size()) {
        if (file[at] != std::byte{0xFF}) return std::nullopt;
        const auto code = std::to_integer<std::uint8_t>(file[at + 1]);
        if (code == 0xFF) {
            ++at;
            continue;
        }
        if (code == endOfImage) {
            result.end = at + 2;
            return result;
        }
        if (code <= 1 || isRestart(code) || code == startOfImage) return std::nullopt;
        const auto length = numberAt<std::uint16_t>(file, at + 2, ByteOrder::big);
        if (!length || *length < 2) return std::nullopt;
        const auto payload = slice(file, at + 4, *length - 2U);
        if (!payload) return std::nullopt;
        std::size_t next = at + 2 + *length;
        if (code == startOfScan) {
            if (extent == Extent::untilFirstScan) return result;
            const auto codedEnd = endOfCodedData(file, next);
            if (!codedEnd) return std::nullopt;
            next = *codedEnd;
        }
        result.segments.push_back(classified(code, file.subspan(at, next - at), *payload));
        at = next;
    }
    return std::nullopt;
}

std::string_view signature(Kind kind) {
    const auto* found = std::ranges::find(signatures, kind, &Signature::kind);
    return found == signatures.end() ? ""sv : found->text;
}

std::uint8_t marker(Kind kind) {
    const auto* found = std::ranges::find(signatures, kind, &Signature::kind);
    return found == signatures.end() ? comment : found->marker;
}

std::size_t capacity(Kind kind) {
    return 0xFFFF - 2 - signature(kind).size();
}

void appendStart(Bytes& file) {
    append(file, asBytes("\xFF\xD8"sv));
}

void appendSegment(Bytes& file, Kind kind, ByteView payload) {
    const std::string_view begin = signature(kind);
    file.push_back(std::byte{0xFF});
    file.push_back(std::byte{marker(kind)});
    appendNumber(file, static_cast<std::uint16_t>(2 + begin.size() + payload.size()), ByteOrder::big);
    append(file, asBytes(begin));
    append(file, payload);
}

void appendSplit(Bytes& file, Kind kind, ByteView data) {
    while (!data.empty()) {
        const ByteView part = data.first(std::min(data.size(), capacity(kind)));
        appendSegment(file, kind, part);
        data = data.subspan(part.size());
    }
}

void appendProfile(Bytes& file, ByteView profile) {
    const std::size_t size = capacity(Kind::icc) - 2;
    const std::size_t count = (profile.size() + size - 1) / size;
    if (count > 255) return;
    for (std::size_t i = 0; i < count; ++i) {
        Bytes part{static_cast<std::byte>(i + 1), static_cast<std::byte>(count)};
        append(part, profile.subspan(i * size, std::min(size, profile.size() - i * size)));
        appendSegment(file, Kind::icc, part);
    }
}

Bytes joined(const std::vector<Segment>& segments, Kind kind) {
    Bytes result;
    for (const Segment& segment : segments) {
        if (segment.kind == kind) append(result, segment.payload);
    }
    return result;
}

std::optional<Bytes> profile(const std::vector<Segment>& segments) {
    std::array<ByteView, 256> parts{};
    std::size_t count = 0;
    for (const Segment& segment : segments) {
        if (segment.kind != Kind::icc || segment.payload.size() < 2) continue;
        parts[std::to_integer<std::size_t>(segment.payload[0])] = segment.payload.subspan(2);
        count = std::to_integer<std::size_t>(segment.payload[1]);
    }
    Bytes result;
    for (std::size_t i = 1; i <= count; ++i) {
        if (parts[i].empty()) return std::nullopt;
        append(result, parts[i]);
    }
    if (result.empty()) return std::nullopt;
    return result;
}

}  // namespace tamble::jpeg
