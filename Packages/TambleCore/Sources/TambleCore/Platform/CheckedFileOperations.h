#pragma once

#include <TambleCore/Platform/FileOperations.h>

namespace tamble {

/// Another's operations, except that an error of one that happened all the same is none: network file systems
/// answer so when an answer was lost and the request sent again.
class CheckedFileOperations final : public FileOperations {
  public:
    /// `real` must live longer.
    explicit CheckedFileOperations(FileOperations& real) : real_(real) {}

    std::filesystem::path trash(const std::filesystem::path& item) override;
    void move(const std::filesystem::path& from, const std::filesystem::path& to) override;
    void remove(const std::filesystem::path& item) override;
    void createDirectory(const std::filesystem::path& folder) override;
    void removeEmptyDirectory(const std::filesystem::path& folder) override;
    std::optional<std::filesystem::path> findInTrash(const std::filesystem::path& original) override;
    bool isNoBinError(const std::error_code& error) const override;

  private:
    FileOperations& real_;
};

}  // namespace tamble
