#pragma once

#include <TambleCore/Platform/FileDescriptor.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>
#include <system_error>
#include <vector>

namespace tamble {

enum class ItemKind : std::uint8_t { unreadable, regularFile, folder, symbolicLink, other };

/// Opens the folder for listing without following a symbolic link in its last component; `parent` is an open
/// folder, or AT_FDCWD for paths of any form. Names below an open folder may make up a path of any length.
FileDescriptor openFolder(int parent, const char* name, std::error_code& error) noexcept;

struct ItemProperties {
    ItemKind kind = ItemKind::unreadable;
    std::int64_t byteSize = 0;
};
/// What stands there itself; a symbolic link is not followed.
ItemProperties itemProperties(int parent, const char* name) noexcept;

/// The items of one folder that are not hidden, in no order.
class DirectoryListing {
  public:
    /// Reads on from the folder's position, the start after opening. Kinds come from the folder itself where
    /// the file system stores them there. Empty on failure.
    static std::optional<DirectoryListing> read(const FileDescriptor& folder, std::error_code& error);

    /// The names refer into the listing; each is followed by a zero byte.
    std::span<const std::string_view> names() const noexcept { return names_; }
    std::string_view name(std::size_t index) const noexcept { return names_[index]; }
    ItemKind kind(std::size_t index) const noexcept { return kinds_[index]; }

  private:
    std::vector<char> text_;
    std::vector<std::string_view> names_;
    std::vector<ItemKind> kinds_;
};

}  // namespace tamble
