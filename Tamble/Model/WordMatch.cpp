#include <Tamble/Model/WordMatch.h>

#include <TambleCore/Support/SearchWords.h>

#include <algorithm>
#include <array>
#include <string>

namespace tamble {
namespace {

/// Scripts whose words are not parted by spaces, or are short, begin here.
constexpr char32_t firstOfShortWords = U'\u0E00';

constexpr std::array<std::u32string_view, 5> endings{U"s", U"es", U"ed", U"er", U"ing"};

/// Whether the word is the stem or the stem with its silent "e".
bool isOfStem(std::u32string_view stem, std::u32string_view word) {
    return word == stem || (word.size() == stem.size() + 1 && word.starts_with(stem) && word.ends_with(U'e'));
}

bool isAnotherForm(std::u32string_view typed, std::u32string_view word) {
    return std::ranges::any_of(endings, [&](std::u32string_view ending) {
        if (!typed.ends_with(ending) || typed.size() < ending.size() + 3) return false;
        const auto stem = typed.substr(0, typed.size() - ending.size());
        if (isOfStem(stem, word)) return true;
        // "cropping"
        const bool isDoubled = stem.size() > 3 && stem.back() == stem[stem.size() - 2];
        return isDoubled && word == stem.substr(0, stem.size() - 1);
    });
}

/// Few letters in the middle of a word mean nothing.
bool isInside(std::u32string_view typed, std::u32string_view word) {
    const bool isLong = typed.size() >= 5 || typed.front() >= firstOfShortWords;
    return isLong && word.find(typed) != std::u32string_view::npos;
}

std::size_t forgivenMistakes(std::size_t letters) {
    return letters < 4 ? 0 : letters < 8 ? 1 : 2;
}

bool isSwapOfThree(std::u32string_view typed, std::u32string_view word) {
    return typed.size() == 3 && word.size() == 3 && std::ranges::is_permutation(typed, word) &&
           typingMistakes(typed, word).inWord == 1;
}

}  // namespace

WordMatch literalMatch(std::u32string_view typed, std::u32string_view word) {
    if (typed == word) return WordMatch::same;
    if (isAnotherForm(typed, word)) return WordMatch::anotherForm;
    if (word.starts_with(typed)) return WordMatch::beginning;
    return isInside(typed, word) ? WordMatch::inside : WordMatch::none;
}

WordMatch forgivingMatch(std::u32string_view typed, std::u32string_view word) {
    if (isSwapOfThree(typed, word)) return WordMatch::mistyped;
    const std::size_t most = forgivenMistakes(typed.size());
    if (most == 0 || word.size() + most < typed.size()) return WordMatch::none;
    const auto [inWord, inBeginning] = typingMistakes(typed, word);
    if (inWord <= most) return inWord < 2 ? WordMatch::mistyped : WordMatch::mistypedMore;
    return inBeginning <= most ? WordMatch::mistypedMore : WordMatch::none;
}

}  // namespace tamble
