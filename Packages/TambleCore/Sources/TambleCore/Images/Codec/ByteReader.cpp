#include <TambleCore/Images/Codec/ByteReader.h>

namespace tamble {
namespace {

/// `Number`'s bytes at the offset, the one at `step · i` from the first weighing 256 to the power of i.
template <typename Number>
std::optional<Number> littleEndian(ByteView file, std::size_t offset) {
    if (offset > file.size() || file.size() - offset < sizeof(Number)) return std::nullopt;
    Number value = 0;
    for (std::size_t i = sizeof(Number); i-- > 0;) {
        value = static_cast<Number>(value << 8 | std::to_integer<Number>(file[offset + i]));
    }
    return value;
}

}  // namespace

std::string_view textAt(ByteView file, std::size_t offset, std::size_t length) {
    if (offset > file.size()) return {};
    const ByteView part = file.subspan(offset, std::min(length, file.size() - offset));
    return {reinterpret_cast<const char*>(part.data()), part.size()};
}

std::optional<std::uint32_t> bigEndian32(ByteView file, std::size_t offset) {
    const auto value = littleEndian32(file, offset);
    return value ? std::optional(__builtin_bswap32(*value)) : std::nullopt;
}

std::optional<std::uint32_t> littleEndian32(ByteView file, std::size_t offset) {
    return littleEndian<std::uint32_t>(file, offset);
}

std::optional<std::uint16_t> littleEndian16(ByteView file, std::size_t offset) {
    return littleEndian<std::uint16_t>(file, offset);
}

}  // namespace tamble
