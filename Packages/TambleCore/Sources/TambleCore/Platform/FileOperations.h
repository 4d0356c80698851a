#pragma once

#include <filesystem>
#include <optional>
#include <system_error>

namespace tamble {

/// The one way in which jobs and undo change the file system outside a staging folder. All operations throw
/// the system's std::filesystem::filesystem_error.
class FileOperations {
  public:
    virtual ~FileOperations() = default;

    /// Moves a file or folder to the Bin of its volume and answers where it landed.
    virtual std::filesystem::path trash(const std::filesystem::path& item) = 0;
    /// Moves a file or folder, across volumes too; `to` appears whole or not at all, and nothing that stands
    /// at `to` is ever overwritten (the error is then std::errc::file_exists).
    virtual void move(const std::filesystem::path& from, const std::filesystem::path& to) = 0;
    /// Removes a file, or a folder with all it holds.
    virtual void remove(const std::filesystem::path& item) = 0;
    /// Creates the folder and those above it that are missing; one that exists already is no error.
    virtual void createDirectory(const std::filesystem::path& folder) = 0;
    /// Removes a folder that holds nothing (the error is otherwise std::errc::directory_not_empty).
    virtual void removeEmptyDirectory(const std::filesystem::path& folder) = 0;

    /// Where in the Bin the item is that stood at the path, the newest if there are several; for what trash()
    /// could not answer. Empty when there is none. Never throws.
    virtual std::optional<std::filesystem::path> findInTrash(const std::filesystem::path& original) = 0;
    /// Whether an error of trash() means that the volume has no Bin.
    virtual bool isNoBinError(const std::error_code& error) const = 0;
};

}  // namespace tamble
