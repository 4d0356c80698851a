#pragma once

#include <TambleCore/Support/FilePath.h>
#include <TambleCore/Support/Text.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace tamble {

/// The absolute path without "." and ".." and without a trailing slash; links are not resolved.
std::filesystem::path standardized(const std::filesystem::path& path);
/// For this very type, which is not taken apart where that can be seen to be needless.
FilePath standardized(const std::same_as<FilePath> auto& path);

/// The standardized path in precomposed Unicode: equal for one file named twice.
std::string exactPathKey(const std::filesystem::path& path);

/// The exact key in lower case: equal for two names that differ only in letter case or Unicode composition.
std::string pathKey(const std::filesystem::path& path);
std::string pathKey(const std::same_as<FilePath> auto& path);

/// Whether the path is surely absolute and the same when standardized, but for a slash at its end. Taking a
/// path apart costs more than most of what is done with it.
bool isPlainAbsolute(std::string_view path);

/// Whether the path names a folder: it ends in a slash.
bool namesFolder(const std::filesystem::path& path);

FilePath standardized(const std::same_as<FilePath> auto& path) {
    const bool isStandard = isPlainAbsolute(path.native()) && !path.native().ends_with('/');
    return isStandard ? path : FilePath(standardized(path.path()));
}

std::string pathKey(const std::same_as<FilePath> auto& path) {
    return lowercased(precomposed(standardized(path).native()));
}

}  // namespace tamble
