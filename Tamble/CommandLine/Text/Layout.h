#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tamble {

/// The words of the text in lines of at most `width` cells; a longer word has a line of its own. Line breaks
/// in the text are kept.
std::vector<std::string> wrappedLines(std::string_view text, std::size_t width);

/// The wrapped text, every line after `indent` blanks and ended with a line break; `width` holds the blanks
/// too.
std::string paragraph(std::string_view text, std::size_t width, std::size_t indent = 0);

/// The text with as many blanks after it as make it fill `width` cells.
std::string padded(std::string_view text, std::size_t width);

}  // namespace tamble
