#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tamble {

/// The words of a text in the form in which they are looked for: caseless, without accents, "ß" as "ss", "²"
/// as "2"; parted at everything that is neither letter nor digit, apostrophes excepted.
std::vector<std::u32string> searchWords(std::string_view text);

/// How many insertions, removals, replacements and swaps of neighbours turn what was typed into the word…
struct TypingMistakes {
    std::size_t inWord = 0;  ///< …and into its nearest beginning.
    std::size_t inBeginning = 0;
};
TypingMistakes typingMistakes(std::u32string_view typed, std::u32string_view word);

}  // namespace tamble
