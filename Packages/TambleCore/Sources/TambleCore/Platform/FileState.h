#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace tamble {

/// Enough of a file to see whether it was changed between two looks at it. For a folder: the sum of the sizes
/// and the newest time over all it holds.
struct FileState {
    enum class Links { follow, stay };

    std::int64_t size = 0;
    /// When it was modified: seconds since 1970, and nanoseconds.
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;

    /// Empty when there is nothing at the path, which has no slash at its end. `links` is for the path
    /// itself; those inside a folder count themselves.
    static std::optional<FileState> of(const std::filesystem::path& path, Links links);

    friend bool operator==(const FileState&, const FileState&) = default;
};

}  // namespace tamble
