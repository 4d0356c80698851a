#pragma once

#include <TambleCore/Platform/FileDescriptor.h>

#include <filesystem>
#include <optional>

namespace tamble {

/// An advisory lock (flock) between programs, held while it lives; the system releases it when the program
/// dies. The lock file is made if it is missing and stays.
class FileLock {
  public:
    /// Waits for the lock. Throws std::filesystem::filesystem_error.
    static FileLock waitFor(const std::filesystem::path& lockFile);
    /// Empty when somebody else holds the lock.
    static std::optional<FileLock> tryTake(const std::filesystem::path& lockFile);

    /// Whether the lock file is still the one at the path.
    bool isStillAt(const std::filesystem::path& lockFile) const;
    int fileNumber() const noexcept { return file_.number(); }

  private:
    explicit FileLock(FileDescriptor file) : file_(std::move(file)) {}
    FileDescriptor file_;
};

}  // namespace tamble
