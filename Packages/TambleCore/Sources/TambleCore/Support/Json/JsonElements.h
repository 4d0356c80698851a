#pragma once

#include <string_view>
#include <vector>

namespace tamble {

/// The texts of the elements of a JSON array, found by its brackets and strings alone: much faster than
/// parsing, for documents of which most is not looked at. What stands inside an element is not checked.
/// Throws DecodeError when the text is no array, or is cut off.
std::vector<std::string_view> jsonElements(std::string_view array);

}  // namespace tamble
