#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tamble {

/// Puts a new private file with this content in the place of whatever file is there: readers see the old or
/// the new one whole, also after a power cut. Missing folders are made. Throws
/// std::filesystem::filesystem_error; the old file is then untouched.
void writeFileAtomically(const std::filesystem::path& file, std::string_view content);

/// The whole file. Throws std::filesystem::filesystem_error.
std::string readWholeFile(const std::filesystem::path& file);

}  // namespace tamble
