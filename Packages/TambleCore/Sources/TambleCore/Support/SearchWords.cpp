#include <TambleCore/Support/SearchWords.h>
#include <TambleCore/Support/Text.h>

#include <algorithm>
#include <array>
#include <utility>

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace tamble {
namespace {

/// Letters that Unicode does not take apart, as they are typed without them.
struct PlainLetter {
    char32_t letter;
    std::u32string_view plain;
};
constexpr std::array<PlainLetter, 7> plainLetters{
    {{U'ø', U"o"}, {U'ł', U"l"}, {U'đ', U"d"}, {U'ð', U"d"}, {U'ı', U"i"}, {U'æ', U"ae"}, {U'œ', U"oe"}}};

icu::UnicodeString folded(std::string_view text) {
    auto unicode = icu::UnicodeString::fromUTF8(printable(text));
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* parted = icu::Normalizer2::getNFKDInstance(status);
    if (U_FAILURE(status)) return unicode.foldCase();
    auto form = parted->normalize(unicode, status).foldCase();
    form = parted->normalize(form, status);
    return U_SUCCESS(status) ? form : unicode.foldCase();
}

/// ASCII needs none of the library's tables, which take a while to be read in.
std::u32string foldedLetters(std::string_view text) {
    if (isASCII(text)) {
        const std::string lower = lowercased(text);
        return {lower.begin(), lower.end()};
    }
    const icu::UnicodeString form = folded(text);
    std::u32string letters;
    for (std::int32_t i = 0; i < form.length(); i = form.moveIndex32(i, 1)) {
        letters += static_cast<char32_t>(form.char32At(i));
    }
    return letters;
}

bool isLetterOrDigit(char32_t character) {
    const auto letter = static_cast<UChar32>(character);
    return u_isUAlphabetic(letter) || u_isalnum(letter);
}

bool isAccent(char32_t character) {
    const auto kind = u_charType(static_cast<UChar32>(character));
    return kind == U_NON_SPACING_MARK || kind == U_ENCLOSING_MARK;
}

void append(std::u32string& word, char32_t letter) {
    const auto plain = std::ranges::find(plainLetters, letter, &PlainLetter::letter);
    if (plain != plainLetters.end()) {
        word += plain->plain;
    } else {
        word += letter;
    }
}

}  // namespace

std::vector<std::u32string> searchWords(std::string_view text) {
    std::vector<std::u32string> words;
    bool isInWord = false;
    for (const char32_t character : foldedLetters(text)) {
        if (isLetterOrDigit(character)) {
            if (!std::exchange(isInWord, true)) words.emplace_back();
            append(words.back(), character);
        } else if (!isAccent(character) && character != U'\'' && character != U'’') {
            isInWord = false;
        }
    }
    return words;
}

TypingMistakes typingMistakes(std::u32string_view typed, std::u32string_view word) {
    // Optimal string alignment: three rows are enough, the one before the last for swapped neighbours.
    std::vector<std::size_t> beforeLast(word.size() + 1), last(word.size() + 1), current(word.size() + 1);
    for (std::size_t j = 0; j <= word.size(); ++j) last[j] = j;
    for (std::size_t i = 1; i <= typed.size(); ++i) {
        current[0] = i;
        for (std::size_t j = 1; j <= word.size(); ++j) {
            const std::size_t replaced = last[j - 1] + (typed[i - 1] == word[j - 1] ? 0 : 1);
            current[j] = std::min({replaced, last[j] + 1, current[j - 1] + 1});
            if (i > 1 && j > 1 && typed[i - 1] == word[j - 2] && typed[i - 2] == word[j - 1]) {
                current[j] = std::min(current[j], beforeLast[j - 2] + 1);
            }
        }
        beforeLast.swap(last);
        last.swap(current);
    }
    return {.inWord = last.back(), .inBeginning = *std::ranges::min_element(last)};
}

}  // namespace tamble
