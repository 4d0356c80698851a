#pragma once

#include <filesystem>
#include <optional>
#include <system_error>

/// The desktop's Bin by the freedesktop Trash specification 1.0: one in the user's home for the files of its
/// volume, and one at the top of each other volume.
namespace tamble::trash {

/// The code of the error that says that a volume has no Bin and none can be made on it.
std::error_code noBin() noexcept;

/// Moves the file or folder to the Bin of its volume and answers where it is now, so that any desktop can
/// restore it. Throws std::filesystem::filesystem_error; the item is then where it was.
std::filesystem::path put(const std::filesystem::path& item);

/// The note beside an item in a Bin that says where it came from; empty when the path is no place in a Bin.
std::optional<std::filesystem::path> noteOf(const std::filesystem::path& item);

}  // namespace tamble::trash
