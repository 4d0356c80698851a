#include <Tamble/CommandLine/Text/SafeText.h>

#include <TambleCore/Support/Text.h>

#include <cstdint>
#include <vector>

#include <fmt/format.h>
#include <unicode/uchar.h>
#include <unicode/utf8.h>

namespace tamble {
namespace {

struct Character {
    UChar32 code = 0;
    std::string_view bytes;
};

std::vector<Character> characters(std::string_view text) {
    std::vector<Character> result;
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int32_t>(text.size());
    for (std::int32_t next = 0; next < length;) {
        const std::int32_t begin = next;
        UChar32 code = 0;
        U8_NEXT(bytes, next, length, code);
        result.push_back(
            {code, text.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(next - begin))});
    }
    return result;
}

bool steersTerminal(UChar32 code) {
    switch (u_charType(code)) {
        case U_CONTROL_CHAR:
        case U_LINE_SEPARATOR:
        case U_PARAGRAPH_SEPARATOR:
            return true;
        default:
            break;
    }
    // Marks, embeddings, overrides and isolates of text direction would reorder what stands around them.
    return u_hasBinaryProperty(code, UCHAR_BIDI_CONTROL) != 0;
}

std::string writtenOut(UChar32 code) {
    switch (code) {
        case '\n':
            return "\\n";
        case '\r':
            return "\\r";
        case '\t':
            return "\\t";
        default:
            return fmt::format("\\u{{{:X}}}", static_cast<std::uint32_t>(code));
    }
}

std::size_t cells(UChar32 code) {
    constexpr UChar32 emojiPresentation = 0xFE0F;
    // It widens the character before it from one cell to two.
    if (code == emojiPresentation) return 1;
    switch (u_charType(code)) {
        case U_NON_SPACING_MARK:
        case U_ENCLOSING_MARK:
        case U_FORMAT_CHAR:
            return 0;
        default:
            break;
    }
    const auto width = u_getIntPropertyValue(code, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

}  // namespace

std::string safeText(std::string_view bytes) {
    const std::string text = printable(bytes);
    std::string result;
    result.reserve(text.size());
    for (const auto& character : characters(text)) {
        if (steersTerminal(character.code)) {
            result += writtenOut(character.code);
        } else {
            result += character.bytes;
        }
    }
    return result;
}

std::size_t displayWidth(std::string_view text) {
    std::size_t width = 0;
    for (const auto& character : characters(text)) width += cells(character.code);
    return width;
}

std::string shortened(std::string_view text, std::size_t width) {
    if (displayWidth(text) <= width) return std::string(text);
    if (width == 0) return {};
    const auto all = characters(text);
    // The end of a name says most (number, extension), so it gets its half first.
    std::size_t left = width - 1;
    std::size_t tailBegin = all.size();
    for (std::size_t tail = left / 2; tailBegin > 0; --tailBegin) {
        const std::size_t needed = cells(all[tailBegin - 1].code);
        if (needed > tail) break;
        tail -= needed;
        left -= needed;
    }
    std::string result;
    for (std::size_t i = 0; i < tailBegin; ++i) {
        const std::size_t needed = cells(all[i].code);
        if (needed > left) break;
        left -= needed;
        result += all[i].bytes;
    }
    result += "…";
    for (std::size_t i = tailBegin; i < all.size(); ++i) result += all[i].bytes;
    return result;
}

}  // namespace tamble
