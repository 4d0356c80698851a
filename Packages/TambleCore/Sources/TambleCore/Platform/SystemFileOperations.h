#pragma once

#include <TambleCore/Platform/FileOperations.h>

namespace tamble {

/// Acts on the real file system. The Bin is the freedesktop Trash (specification 1.0): the home Bin for files
/// on its volume, ".Trash/$uid" or ".Trash-$uid" at the top of other volumes.
class SystemFileOperations final : public FileOperations {
  public:
    std::filesystem::path trash(const std::filesystem::path& item) override;
    void move(const std::filesystem::path& from, const std::filesystem::path& to) override;
    void remove(const std::filesystem::path& item) override;
    void createDirectory(const std::filesystem::path& folder) override;
    void removeEmptyDirectory(const std::filesystem::path& folder) override;
    std::optional<std::filesystem::path> findInTrash(const std::filesystem::path& original) override;
    bool isNoBinError(const std::error_code& error) const override;
};

}  // namespace tamble
