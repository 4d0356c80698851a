#include <TambleCore/Support/Text.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

#include <unicode/brkiter.h>
#include <unicode/casemap.h>
#include <unicode/normalizer2.h>
#include <unicode/stringoptions.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

namespace tamble {
namespace {

char loweredASCII(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

char capitalASCII(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::string withASCII(char (*mapping)(char), std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), mapping);
    return result;
}

bool isLetterOrDigit(char c) {
    return loweredASCII(c) != capitalASCII(c) || (c >= '0' && c <= '9');
}

/// Bytes that are not ASCII count as letters.
std::string withASCIICapitals(std::string_view text) {
    std::string result = withASCII(loweredASCII, text);
    bool isInWord = false;
    for (char& c : result) {
        if (!isInWord) c = capitalASCII(c);
        isInWord = isLetterOrDigit(c) || c == '\'' || static_cast<unsigned char>(c) >= 0x80;
    }
    return result;
}

icu::StringPiece piece(std::string_view text) {
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

/// What one of the library's mappings of UTF-8 in the root locale makes of the text.
template <typename Mapping>
std::string mapped(std::string_view text, std::string otherwise, const Mapping& mapping) {
    UErrorCode status = U_ZERO_ERROR;
    std::string result;
    icu::StringByteSink<std::string> sink(&result);
    mapping(piece(text), sink, status);
    return U_SUCCESS(status) ? result : std::move(otherwise);
}

}  // namespace

bool isASCII(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool isUTF8(std::string_view text) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int32_t>(text.size());
    for (std::int32_t i = 0; i < length;) {
        UChar32 character = 0;
        U8_NEXT(bytes, i, length, character);
        if (character < 0) return false;
    }
    return true;
}

std::string precomposed(std::string_view text) {
    if (isASCII(text) || !isUTF8(text)) return std::string(text);
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* nfc = icu::Normalizer2::getNFCInstance(status);
    if (U_FAILURE(status)) return std::string(text);
    std::string result;
    icu::StringByteSink<std::string> sink(&result);
    nfc->normalizeUTF8(0, piece(text), sink, nullptr, status);
    return U_SUCCESS(status) ? result : std::string(text);
}

std::string lowercased(std::string_view text) {
    std::string plain = withASCII(loweredASCII, text);
    if (isASCII(text) || !isUTF8(text)) return plain;
    return mapped(text, std::move(plain), [](auto source, auto& sink, UErrorCode& status) {
        icu::CaseMap::utf8ToLower("", 0, source, sink, nullptr, status);
    });
}

std::string uppercased(std::string_view text) {
    std::string plain = withASCII(capitalASCII, text);
    if (isASCII(text) || !isUTF8(text)) return plain;
    return mapped(text, std::move(plain), [](auto source, auto& sink, UErrorCode& status) {
        icu::CaseMap::utf8ToUpper("", 0, source, sink, nullptr, status);
    });
}

std::string titlecased(std::string_view text) {
    if (!isUTF8(text)) return withASCIICapitals(text);
    std::string result;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("_."), text.size());
        const std::string_view part = text.substr(0, end);
        result += mapped(part, std::string(part), [](auto source, auto& sink, UErrorCode& status) {
            icu::CaseMap::utf8ToTitle("", 0, nullptr, source, sink, nullptr, status);
        });
        if (end < text.size()) result += text[end];
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return result;
}

std::string printable(std::string_view bytes) {
    if (isASCII(bytes) || isUTF8(bytes)) return std::string(bytes);
    std::string result;
    icu::UnicodeString::fromUTF8(piece(bytes)).toUTF8String(result);
    return result;
}

std::string_view trimmed(std::string_view text) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int32_t>(text.size());
    std::int32_t begin = 0;
    for (std::int32_t next = 0; next < length; begin = next) {
        UChar32 character = 0;
        U8_NEXT(bytes, next, length, character);
        if (character < 0 || !u_isUWhiteSpace(character)) break;
    }
    std::int32_t end = length;
    for (std::int32_t previous = length; previous > begin; end = previous) {
        UChar32 character = 0;
        U8_PREV(bytes, 0, previous, character);
        if (character < 0 || !u_isUWhiteSpace(character)) break;
    }
    return text.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin));
}

std::size_t characterCount(std::string_view text) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> characters(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    if (U_FAILURE(status)) return text.size();
    characters->setText(icu::UnicodeString::fromUTF8(printable(text)));
    std::size_t count = 0;
    while (characters->next() != icu::BreakIterator::DONE) ++count;
    return count;
}

std::string kebabCase(std::string_view camelCase) {
    std::string result;
    for (const char c : camelCase) {
        if (c >= 'A' && c <= 'Z' && !result.empty()) result += '-';
        result += loweredASCII(c);
    }
    return result;
}

std::size_t editDistance(std::string_view a, std::string_view b) {
    // Optimal string alignment: three rows are enough, the one before the last for swapped neighbours.
    std::vector<std::size_t> beforeLast(b.size() + 1), last(b.size() + 1), current(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) last[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        current[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t replaced = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            current[j] = std::min({replaced, last[j] + 1, current[j - 1] + 1});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                current[j] = std::min(current[j], beforeLast[j - 2] + 1);
            }
        }
        beforeLast.swap(last);
        last.swap(current);
    }
    return last[b.size()];
}

}  // namespace tamble
