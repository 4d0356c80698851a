#include <TambleCore/Support/FileURL.h>
#include <TambleCore/Support/PathKey.h>

#include <charconv>
#include <cstdint>

namespace tamble {
namespace {

constexpr std::string_view scheme = "file://";

bool isUnreserved(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("-._~/").find(c) != std::string_view::npos;
}

}  // namespace

std::string percentEncoded(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    result.reserve(bytes.size());
    for (const char c : bytes) {
        if (isUnreserved(c)) {
            result += c;
            continue;
        }
        const auto byte = static_cast<std::uint8_t>(c);
        result += {'%', digits[byte >> 4U], digits[byte & 0xFU]};
    }
    return result;
}

std::optional<std::string> percentDecoded(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            result += text[i];
            continue;
        }
        std::uint8_t byte = 0;
        const std::string_view pair = text.substr(i + 1, 2);
        const auto [end, error] = std::from_chars(pair.data(), pair.data() + pair.size(), byte, 16);
        if (error != std::errc() || pair.size() != 2 || end != pair.data() + 2) return std::nullopt;
        result += static_cast<char>(byte);
        i += 2;
    }
    return result;
}

std::string fileURL(const FilePath& path) {
    std::string url(scheme);
    const std::string& bytes = path.native();
    if (isPlainAbsolute(bytes)) return url += percentEncoded(bytes);
    std::string absolute = standardized(path).native();
    if (bytes.ends_with('/') && !absolute.ends_with('/')) absolute += '/';
    return url += percentEncoded(absolute);
}

std::optional<std::filesystem::path> pathFromFileURL(std::string_view url) {
    if (!url.starts_with(scheme)) return std::nullopt;
    url.remove_prefix(scheme.size());
    if (url.starts_with("localhost/")) url.remove_prefix(std::string_view("localhost").size());
    auto decoded = percentDecoded(url);
    if (!decoded || !decoded->starts_with('/') || decoded->find('\0') != std::string::npos)
        return std::nullopt;
    return std::filesystem::path(std::move(*decoded));
}

}  // namespace tamble
