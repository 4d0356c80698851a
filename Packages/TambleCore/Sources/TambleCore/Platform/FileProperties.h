#pragma once

#include <TambleCore/Support/PathKey.h>

#include <cstdint>
#include <filesystem>
#include <optional>

namespace tamble {

/// Whether anything stands at the path itself, links not followed.
bool isThere(const std::filesystem::path& path);
bool isThere(const std::same_as<FilePath> auto& path);

/// The number of the file or folder on its volume, whatever its name: a rename keeps it, a copy does not.
/// Links are not followed; empty when nothing stands at the path.
std::optional<std::uint64_t> inodeOf(const std::filesystem::path& path);
std::optional<std::uint64_t> inodeOf(const std::same_as<FilePath> auto& path);

/// Whether a folder that belongs to the user stands at the path; links are not followed.
bool isOwnFolder(const std::filesystem::path& folder);

/// Of a path that is standardized().
std::optional<std::uint64_t> inodeAt(const char* place);

bool isThere(const std::same_as<FilePath> auto& path) {
    return inodeOf(path).has_value();
}

std::optional<std::uint64_t> inodeOf(const std::same_as<FilePath> auto& path) {
    return inodeAt(standardized(path).c_str());
}

}  // namespace tamble
