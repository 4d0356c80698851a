#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tamble {

/// The longest name of a file in bytes (NAME_MAX of Linux's file systems).
inline constexpr std::size_t maximumNameLength = 255;

/// `stem` + `tail`, the stem cut between two characters as people count them so that the name is no longer
/// than `limit` bytes. A tail that leaves no room is cut as well.
std::string fittedName(std::string_view stem, std::string_view tail, std::size_t limit = maximumNameLength);

/// Where the extension with its dot begins in a file's name; the name's length when there is none, as in
/// ".hidden" and "name.".
std::size_t extensionStart(std::string_view name);

}  // namespace tamble
