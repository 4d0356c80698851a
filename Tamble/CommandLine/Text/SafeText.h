#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tamble {

/// Any bytes as they may go to a terminal: what is not UTF-8 becomes U+FFFD, and characters that steer the
/// terminal or the direction of text are written out, as "\n" or "\u{1B}". For people to read, never to open
/// a file.
std::string safeText(std::string_view bytes);

/// The number of terminal cells that a safe text fills: two for East Asian wide characters and pictographs,
/// none for combining marks. Never less than what terminals show.
std::size_t displayWidth(std::string_view text);

/// The safe text in at most `width` cells, with "…" for what was taken out of its middle.
std::string shortened(std::string_view text, std::size_t width);

}  // namespace tamble
