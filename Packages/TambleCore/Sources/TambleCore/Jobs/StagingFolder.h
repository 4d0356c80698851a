#pragma once

#include <TambleCore/Platform/FileLock.h>

#include <filesystem>

namespace tamble {

/// A private folder for unfinished outputs, on the volume of the place they are made for, so that putting
/// them there is a rename. It is removed with its owner; when the program dies first, by the next one that
/// makes such a folder.
///
/// It stands where nobody looks and nothing is synchronised: in the program's caches when they are on that
/// volume, else hidden at the top of the volume, else hidden in the destination itself, else in the temporary
/// folder. A lock file in the caches, held while the owner lives, names it, wherever it stands.
class StagingFolder {
  public:
    /// Throws std::filesystem::filesystem_error when no folder can be made anywhere.
    static StagingFolder makeNear(const std::filesystem::path& place);

    ~StagingFolder();
    StagingFolder(StagingFolder&& other) noexcept;
    StagingFolder& operator=(StagingFolder&&) = delete;

    const std::filesystem::path& path() const noexcept { return path_; }

  private:
    StagingFolder(std::filesystem::path path, std::filesystem::path lockFile, FileLock lock);

    std::filesystem::path path_;
    std::filesystem::path lockFile_;
    FileLock lock_;
};

/// Removes the staging folders of programs that died; never throws.
void removeStaleStagingFolders();

}  // namespace tamble
