#include <TambleCore/Support/Base64.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace tamble {
namespace {

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t noDigit = 0xFF;

constexpr std::array<std::uint8_t, 256> digits = [] {
    std::array<std::uint8_t, 256> table{};
    table.fill(noDigit);
    for (std::size_t i = 0; i < alphabet.size(); ++i)
        table[static_cast<unsigned char>(alphabet[i])] = static_cast<std::uint8_t>(i);
    return table;
}();

}  // namespace

std::string base64(std::span<const std::byte> bytes) {
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
        std::uint32_t group = 0;
        for (std::size_t k = 0; k < 3; ++k)
            group = group << 8U | (k < count ? std::to_integer<std::uint32_t>(bytes[i + k]) : 0U);
        for (std::size_t k = 0; k < 4; ++k)
            text += k <= count ? alphabet[group >> (18U - 6U * k) & 0x3FU] : '=';
    }
    return text;
}

std::optional<std::vector<std::byte>> bytesFromBase64(std::string_view text) {
    if (text.size() % 4 != 0) return std::nullopt;
    std::size_t padding = 0;
    while (padding < 2 && text.ends_with('=')) {
        text.remove_suffix(1);
        ++padding;
    }
    std::vector<std::byte> bytes;
    bytes.reserve(text.size() * 3 / 4);
    std::uint32_t held = 0;
    unsigned count = 0;
    for (const char letter : text) {
        const std::uint8_t digit = digits[static_cast<unsigned char>(letter)];
        if (digit == noDigit) return std::nullopt;
        held = held << 6U | digit;
        count += 6;
        if (count < 8) continue;
        count -= 8;
        bytes.push_back(static_cast<std::byte>(held >> count & 0xFFU));
    }
    return bytes;
}

}  // namespace tamble
