#pragma once

#include <filesystem>
#include <string_view>

namespace tamble {

/// The note beside each item of a Bin: its name's ending, its first line, and the start of the line that says
/// where the item was.
namespace trash {
inline constexpr std::string_view noteExtension = ".trashinfo";
inline constexpr std::string_view noteHeading = "[Trash Info]";
inline constexpr std::string_view notePathKey = "Path=";
}  // namespace trash

/// One Bin: its folder with "files" and "info" in it.
struct TrashFolder {
    std::filesystem::path folder;
    /// What the notes' paths are relative to; empty where they are absolute.
    std::filesystem::path top;

    /// The Bin for the items of this existing folder, made if it is missing; throws
    /// std::filesystem::filesystem_error with trash::noBin() when there cannot be one.
    static TrashFolder forItemsOf(const std::filesystem::path& folder);

    std::filesystem::path files() const { return folder / "files"; }
    std::filesystem::path info() const { return folder / "info"; }
};

}  // namespace tamble
