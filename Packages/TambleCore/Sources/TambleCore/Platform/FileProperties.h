#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace tamble {

/// Whether anything stands at the path itself, links not followed.
bool isThere(const std::filesystem::path& path);

/// The number of the file or folder on its volume, whatever its name: a rename keeps it, a copy does not.
/// Links are not followed; empty when nothing stands at the path.
std::optional<std::uint64_t> inodeOf(const std::filesystem::path& path);

/// Whether a folder that belongs to the user stands at the path; links are not followed.
bool isOwnFolder(const std::filesystem::path& folder);

}  // namespace tamble
