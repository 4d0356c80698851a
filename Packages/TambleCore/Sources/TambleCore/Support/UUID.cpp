#include <TambleCore/Support/UUID.h>

#include <array>
#include <cctype>
#include <cstdint>
#include <random>

#include <fmt/format.h>

namespace tamble {

std::string newUUID() {
    std::random_device device;
    std::array<std::uint32_t, 4> words{};
    for (auto& word : words) word = device();
    words[1] = (words[1] & 0xFFFF0FFFU) | 0x00004000U;  // version 4
    words[2] = (words[2] & 0x3FFFFFFFU) | 0x80000000U;  // variant 10
    return fmt::format("{:08X}-{:04X}-{:04X}-{:04X}-{:04X}{:08X}", words[0], words[1] >> 16U,
                       words[1] & 0xFFFFU, words[2] >> 16U, words[2] & 0xFFFFU, words[3]);
}

bool isUUID(const std::string& text) {
    if (text.size() != 36) return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool dash = i == 8 || i == 13 || i == 18 || i == 23;
        if (dash ? text[i] != '-' : std::isxdigit(static_cast<unsigned char>(text[i])) == 0) return false;
    }
    return true;
}

}  // namespace tamble
