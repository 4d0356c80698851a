#pragma once

#include <string>
#include <string_view>

namespace tamble {

bool isASCII(std::string_view text);
bool isUTF8(std::string_view text);

/// Canonical precomposed Unicode (NFC). Bytes that are not UTF-8 come back unchanged, so that any file name
/// can be a key.
std::string precomposed(std::string_view text);

/// Lower case by Unicode's default mapping, independent of the language in use; bytes that are not UTF-8 come
/// back with only their ASCII letters lowered.
std::string lowercased(std::string_view text);

/// Upper case in the same way ("Straße" → "STRASSE").
std::string uppercased(std::string_view text);

/// Every word with its first letter as a capital and the rest in lower case, in the same way. Words are
/// Unicode's (UAX #29), and "_" and "." part them as well, as they do in names of files.
std::string titlecased(std::string_view text);

/// The text with every byte sequence that is not UTF-8 replaced by U+FFFD: for people to read, never to open
/// a file.
std::string printable(std::string_view bytes);

/// The text without white space and line breaks (Unicode White_Space) at both ends.
std::string_view trimmed(std::string_view text);

/// How many characters as people count them (Unicode's grapheme clusters). Bytes that are not UTF-8 count one
/// each.
std::size_t characterCount(std::string_view text);

/// "removeAllMetadata" → "remove-all-metadata".
std::string kebabCase(std::string_view camelCase);

/// The word among `candidates` with the smallest edit distance to `word`, or an empty string when none is
/// near enough to be meant (more than a third of the letters differ).
template <typename Words>
std::string nearestWord(std::string_view word, const Words& candidates);

/// Number of single-character insertions, removals, replacements and swaps of neighbours that turn `a` into
/// `b`.
std::size_t editDistance(std::string_view a, std::string_view b);

template <typename Words>
std::string nearestWord(std::string_view word, const Words& candidates) {
    std::string best;
    std::size_t bestDistance = word.size() / 3 + 2;
    for (const auto& candidate : candidates) {
        const std::size_t distance = editDistance(word, candidate);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = candidate;
        }
    }
    return best;
}

}  // namespace tamble
