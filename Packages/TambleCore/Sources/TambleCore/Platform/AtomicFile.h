#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace tamble {

/// Puts a new private file with this content in the place of whatever file is there: readers see the old or
/// the new one whole, also after a power cut. Missing folders are made. Throws
/// std::filesystem::filesystem_error; the old file is then untouched.
void writeFileAtomically(const std::filesystem::path& file, std::string_view content);
/// The content is all the parts, one after the other.
void writeFileAtomically(const std::filesystem::path& file, std::span<const std::string_view> parts);

/// Writes all of it to the open file, which stands at the path. Throws std::filesystem::filesystem_error; a
/// part may be written then.
void writeAll(int file, std::string_view content, const std::filesystem::path& path);

/// Makes the names in the folder survive a power cut, as far as its file system can.
void syncFolder(const std::filesystem::path& folder);

/// The whole file. Throws std::filesystem::filesystem_error.
std::string readWholeFile(const std::filesystem::path& file);

}  // namespace tamble
