#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>

namespace tamble {

/// Takes the bytes copied so far and the size of the whole; what it throws ends the copying.
using CopyProgress = std::function<void(std::int64_t done, std::int64_t total)>;

/// Copies the bytes of a regular file into a new file; shares them where the file system can. The progress is
/// called at least every 8 MiB. Throws std::filesystem::filesystem_error; what was written is removed then.
void copyFileContents(const std::filesystem::path& from, const std::filesystem::path& to,
                      const CopyProgress& progress = {});

/// Copies a file, a symbolic link, or a folder with all it holds to `to`, which must not exist, with
/// permissions, times, extended attributes and, as far as allowed, owner; synced to disk. Throws
/// std::filesystem::filesystem_error; what was written is removed then. Pipes, sockets and devices are not
/// supported.
void copyItem(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace tamble
