#include <TambleCore/Images/Metadata/Containers/Deflate.h>
#include <TambleCore/Images/Metadata/Containers/PngChunks.h>

#include <charconv>

#include <fmt/format.h>
#include <zlib.h>

namespace tamble::png {
namespace {

using namespace std::string_view_literals;

/// The bytes before and after the first zero.
std::optional<std::pair<std::string_view, ByteView>> splitAtZero(ByteView data) {
    const std::size_t zero = asText(data).find('\0');
    if (zero == std::string_view::npos) return std::nullopt;
    return std::pair(asText(data.first(zero)), data.subspan(zero + 1));
}

std::optional<Text> internationalText(std::string_view keyword, ByteView rest) {
    if (rest.size() < 2) return std::nullopt;
    const bool compressed = rest[0] == std::byte{1};
    const auto language = splitAtZero(rest.subspan(2));
    const auto translated = language ? splitAtZero(language->second) : std::nullopt;
    if (!translated) return std::nullopt;
    if (!compressed) return Text{std::string(keyword), copied(translated->second)};
    auto value = inflated(translated->second, largestBlock);
    if (!value) return std::nullopt;
    return Text{std::string(keyword), std::move(*value)};
}

}  // namespace

std::optional<Layout> layout(ByteView file) {
    if (!startsWith(file, signature)) return std::nullopt;
    Layout result;
    std::size_t at = signature.size();
    while (const auto length = numberAt<std::uint32_t>(file, at, ByteOrder::big)) {
        const auto whole = slice(file, at, std::size_t{*length} + 12);
        if (!whole) return std::nullopt;
        const Chunk chunk{asText(whole->subspan(4, 4)), whole->subspan(8, *length), *whole};
        at += whole->size();
        result.chunks.push_back(chunk);
        if (chunk.type == "IEND") {
            result.end = at;
            return result.chunks.front().type == "IHDR" ? std::optional(std::move(result)) : std::nullopt;
        }
    }
    return std::nullopt;
}

void appendChunk(Bytes& file, std::string_view type, ByteView data) {
    appendNumber(file, static_cast<std::uint32_t>(data.size()), ByteOrder::big);
    const std::size_t checked = file.size();
    append(file, asBytes(type));
    append(file, data);
    const auto* from = reinterpret_cast<const Bytef*>(file.data() + checked);
    appendNumber(file, static_cast<std::uint32_t>(crc32_z(0, from, file.size() - checked)), ByteOrder::big);
}

std::optional<Text> text(const Chunk& chunk) {
    if (chunk.type != "tEXt" && chunk.type != "zTXt" && chunk.type != "iTXt") return std::nullopt;
    const auto split = splitAtZero(chunk.data);
    if (!split) return std::nullopt;
    const auto [keyword, rest] = *split;
    if (chunk.type == "iTXt") return internationalText(keyword, rest);
    if (chunk.type == "tEXt") return Text{std::string(keyword), copied(rest)};
    if (rest.empty()) return std::nullopt;
    auto value = inflated(rest.subspan(1), largestBlock);
    if (!value) return std::nullopt;
    return Text{std::string(keyword), std::move(*value)};
}

void appendXmp(Bytes& file, ByteView packet) {
    Bytes data = copied(asBytes(xmpKeyword));
    append(data, asBytes("\0\0\0\0\0"sv));  // not compressed, no language, no translated keyword
    append(data, packet);
    appendChunk(file, "iTXt", data);
}

std::optional<Bytes> rawProfile(const Text& text) {
    if (!text.keyword.starts_with(rawProfileKeyword)) return std::nullopt;
    std::string_view rest = asText(text.value);
    const auto nextWord = [&rest] {
        rest.remove_prefix(std::min(rest.find_first_not_of(" \n"), rest.size()));
        const std::string_view word = rest.substr(0, rest.find_first_of(" \n"));
        rest.remove_prefix(word.size());
        return word;
    };
    nextWord();
    const std::string_view length = nextWord();
    std::size_t size = 0;
    if (std::from_chars(length.data(), length.data() + length.size(), size).ec != std::errc{})
        return std::nullopt;
    if (size > rest.size() / 2) return std::nullopt;
    Bytes result;
    result.reserve(size);
    int high = -1;
    for (const char c : rest) {
        if (result.size() == size) break;
        int digit = 0;
        if (c >= '0' && c <= '9') {
            digit = c - '0';
        } else if (c >= 'a' && c <= 'f') {
            digit = c - 'a' + 10;
        } else if (c >= 'A' && c <= 'F') {
            digit = c - 'A' + 10;
        } else if (c == '\n' || c == ' ') {
            continue;
        } else {
            return std::nullopt;
        }
        if (high < 0) {
            high = digit;
        } else {
            result.push_back(static_cast<std::byte>(high * 16 + digit));
            high = -1;
        }
    }
    if (result.size() != size) return std::nullopt;
    return result;
}

void appendRawProfile(Bytes& file, std::string_view name, ByteView block) {
    std::string value = fmt::format("{}{}{}\n{}\n{:8}", rawProfileKeyword, name, '\0', name, block.size());
    for (std::size_t i = 0; i < block.size(); ++i) {
        if (i % 36 == 0) value += '\n';
        fmt::format_to(std::back_inserter(value), "{:02x}", std::to_integer<unsigned>(block[i]));
    }
    value += '\n';
    appendChunk(file, "tEXt", asBytes(value));
}

std::optional<Profile> profile(const Chunk& chunk) {
    const auto split = splitAtZero(chunk.data);
    if (!split || split->second.empty()) return std::nullopt;
    return Profile{std::string(split->first), split->second.subspan(1)};
}

}  // namespace tamble::png
