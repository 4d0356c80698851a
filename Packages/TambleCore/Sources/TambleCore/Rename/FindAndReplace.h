#pragma once

#include <string>
#include <string_view>

namespace tamble {

enum class LetterMatching { exact, ignoringCase };

/// The text with each occurrence of `find`, from left to right, replaced; nothing is replaced when `find` is
/// empty. Spellings of the same text match each other (an accented letter in one or two code points), and
/// ignoring case those that Unicode's case folding makes equal (ß, ẞ and SS). What is found begins and ends
/// between two characters as people count them: no "e" is found in "é", and no half of a flag. In a text that
/// is not UTF-8 bytes are compared, ignoring the case of ASCII letters at most.
std::string withReplaced(std::string_view text, std::string_view find, std::string_view replacement,
                         LetterMatching matching);

}  // namespace tamble
