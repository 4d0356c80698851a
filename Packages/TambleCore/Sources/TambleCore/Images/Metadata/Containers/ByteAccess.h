#pragma once

#include <TambleCore/Images/Metadata/Metadata.h>

#include <algorithm>
#include <concepts>
#include <cstring>
#include <string_view>

namespace tamble {

enum class ByteOrder { little, big };

/// `length` bytes from `at`; empty when they reach past the end.
inline std::optional<ByteView> slice(ByteView bytes, std::size_t at, std::size_t length) {
    if (at > bytes.size() || length > bytes.size() - at) return std::nullopt;
    return bytes.subspan(at, length);
}

/// The number stored at `at`; empty when it reaches past the end.
template <std::unsigned_integral Number>
std::optional<Number> numberAt(ByteView bytes, std::size_t at, ByteOrder order) {
    const auto stored = slice(bytes, at, sizeof(Number));
    if (!stored) return std::nullopt;
    std::uint64_t result = 0;
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
        const std::size_t from = order == ByteOrder::big ? i : sizeof(Number) - 1 - i;
        result = result << 8 | std::to_integer<std::uint64_t>((*stored)[from]);
    }
    return static_cast<Number>(result);
}

/// Stores the number at `at`, which must lie inside.
template <std::unsigned_integral Number>
void putNumber(std::span<std::byte> bytes, std::size_t at, Number number, ByteOrder order) {
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
        const std::size_t shift = 8 * (order == ByteOrder::big ? sizeof(Number) - 1 - i : i);
        bytes[at + i] = static_cast<std::byte>(static_cast<std::uint64_t>(number) >> shift);
    }
}

template <std::unsigned_integral Number>
void appendNumber(Bytes& bytes, Number number, ByteOrder order) {
    bytes.resize(bytes.size() + sizeof(Number));
    putNumber(std::span(bytes), bytes.size() - sizeof(Number), number, order);
}

void append(Bytes& bytes, ByteView more);

inline ByteView asBytes(std::string_view text) {
    return std::as_bytes(std::span(text));
}

inline std::string_view asText(ByteView bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

inline Bytes copied(ByteView bytes) {
    return {bytes.begin(), bytes.end()};
}

inline bool startsWith(ByteView bytes, std::string_view signature) {
    return asText(bytes).starts_with(signature);
}

/// No block of metadata bigger than this is read: real ones stay far below.
inline constexpr std::size_t largestBlock = 16 << 20;

}  // namespace tamble
