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

char loweredASCII(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string withASCIILowered(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), loweredASCII);
    return result;
}

}  // namespace

bool isASCII(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string precomposed(std::string_view text) {
    if (isASCII(text) || !isUTF8(text)) return std::string(text);
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* nfc = icu::Normalizer2::getNFCInstance(status);
    if (U_FAILURE(status)) return std::string(text);
    std::string result;
    icu::StringByteSink<std::string> sink(&result);
    nfc->normalizeUTF8(0, icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())), sink,
                       nullptr, status);
    return U_SUCCESS(status) ? result : std::string(text);
}

std::string lowercased(std::string_view text) {
    if (isASCII(text) || !isUTF8(text)) return withASCIILowered(text);
    UErrorCode status = U_ZERO_ERROR;
    std::string result;
    icu::StringByteSink<std::string> sink(&result);
    icu::CaseMap::utf8ToLower("", 0, icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())),
                              sink, nullptr, status);
    return U_SUCCESS(status) ? result : withASCIILowered(text);
}

std::string printable(std::string_view bytes) {
    if (isASCII(bytes) || isUTF8(bytes)) return std::string(bytes);
    std::string result;
    icu::UnicodeString::fromUTF8(icu::StringPiece(bytes.data(), static_cast<std::int32_t>(bytes.size())))
        .toUTF8String(result);
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
