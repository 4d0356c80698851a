#pragma once

#include <filesystem>
#include <string>

namespace tamble {

/// The absolute path without "." and ".." and without a trailing slash; links are not resolved.
std::filesystem::path standardized(const std::filesystem::path& path);

/// The standardized path in precomposed Unicode: equal for one file named twice.
std::string exactPathKey(const std::filesystem::path& path);

/// The exact key in lower case: equal for two names that differ only in letter case or Unicode composition.
std::string pathKey(const std::filesystem::path& path);

/// Whether the path names a folder: it ends in a slash.
bool namesFolder(const std::filesystem::path& path);

}  // namespace tamble
