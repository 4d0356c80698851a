#pragma once

#include <cstddef>
#include <filesystem>
#include <span>

namespace tamble {

/// A file's bytes, read by the system as they are touched. A file that is cut off meanwhile ends the process
/// with SIGBUS: for worker processes.
class MappedFile {
  public:
    /// Throws std::filesystem::filesystem_error.
    explicit MappedFile(const std::filesystem::path& file);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    std::span<const std::byte> bytes() const noexcept { return bytes_; }

  private:
    std::span<const std::byte> bytes_;
};

}  // namespace tamble
