#pragma once

#include <string_view>

namespace tamble {

/// How well what was typed fits a word, the best first.
enum class WordMatch {
    same,
    anotherForm,  ///< the same but for its ending: "photos", "cropping"
    beginning,    ///< a word that is still being typed
    inside,       ///< a part of a compound
    mistyped,
    mistypedMore,  ///< two mistakes, or a mistake in a word that is still being typed
    none,
};

/// Without typing mistakes. Both as searchWords() gives them.
WordMatch literalMatch(std::u32string_view typed, std::u32string_view word);
/// With them: one in 4…7 letters, two in more; of three letters two may have changed places.
WordMatch forgivingMatch(std::u32string_view typed, std::u32string_view word);

}  // namespace tamble
