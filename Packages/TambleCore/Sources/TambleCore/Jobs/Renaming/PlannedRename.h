#pragma once

#include <TambleCore/Support/Json/JsonCoding.h>

#include <span>

namespace tamble {

/// A file that a job renamed.
struct RenamedItem {
    FilePath from;
    FilePath to;
    friend bool operator==(const RenamedItem&, const RenamedItem&) = default;
};
BOOST_DESCRIBE_STRUCT(RenamedItem, (), (from, to))

/// A file on its way from one name to another. Written down before it is moved, so that it is found again
/// wherever it was when the program died.
struct PlannedRename {
    FilePath from;
    /// A hidden name in its folder, under which it waits until the names of the others are free; absent where
    /// none of them is in the way.
    std::optional<FilePath> parked = {};
    FilePath to;
    /// Of the file, which keeps it under every name; 0 when it is not known.
    std::uint64_t inode = 0;

    friend bool operator==(const PlannedRename&, const PlannedRename&) = default;
};
BOOST_DESCRIBE_STRUCT(PlannedRename, (), (from, parked, to, inode))

/// Plans renames that may swap and rotate names among themselves. A file waits if another one's old name, in
/// any spelling, is its new name or the other way round: so the way back is free as well. Hidden names are
/// `parkedPrefix` and a new UUID.
std::vector<PlannedRename> plannedRenames(std::span<const RenamedItem> items, std::string_view parkedPrefix);

/// The way back.
std::vector<PlannedRename> reversed(std::vector<PlannedRename> renames);

}  // namespace tamble
