#pragma once

#include <TambleCore/Images/Metadata/Containers/ByteAccess.h>
#include <TambleCore/Images/Metadata/Exif/TiffTags.h>

namespace tamble::tiff {

struct Entry {
    std::uint16_t tag = 0;
    std::uint16_t type = 0;
    std::uint32_t count = 0;
    /// Where its 12 bytes lie in the structure.
    std::size_t at = 0;
    /// Where its value lies: in the entry itself when it has at most 4 bytes.
    std::size_t valueAt = 0;
    std::size_t size = 0;
    /// Whether the type is known and the value lies inside the structure.
    bool readable = false;

    bool isInline() const { return size <= 4; }
};

enum class DirectoryKind { page, exif, gps, interop, sub };

struct Directory {
    DirectoryKind kind = DirectoryKind::page;
    std::size_t at = 0;
    /// The directory that points here and by which tag; a page after the first has the page before it and tag
    /// 0.
    std::size_t parent = 0;
    std::uint16_t parentTag = 0;
    std::vector<Entry> entries;

    const Entry* find(std::uint16_t tag) const;
};

/// A classic TIFF file or EXIF block as its tables tell it. The first directory is the main one, and parents
/// come before their children.
struct Structure {
    ByteView bytes;
    ByteOrder order = ByteOrder::little;
    std::vector<Directory> directories;

    ByteView value(const Entry& entry) const { return bytes.subspan(entry.valueAt, entry.size); }
    /// The numbers of an entry of type BYTE, SHORT, LONG or IFD; empty when it is of another type.
    std::vector<std::uint32_t> numbers(const Entry& entry) const;
    std::optional<std::uint32_t> number(const Directory& directory, std::uint16_t tag) const;
};

/// Empty when the main directory cannot be read; directories below it that cannot be read are missing.
std::optional<Structure> parsed(ByteView bytes);

/// Bytes of one value of the type; 0 for unknown types.
std::size_t sizeOfType(std::uint16_t type);

/// A part of the structure.
struct Range {
    std::size_t at = 0;
    std::size_t size = 0;

    std::size_t end() const { return at + size; }
    bool overlaps(const Range& other) const { return at < other.end() && other.at < end(); }
};

/// Where the directory's pictures (strips, tiles, thumbnail) lie; empty when one lies outside the structure.
std::optional<std::vector<Range>> pictureData(const Structure& structure, const Directory& directory);

/// The orientation, 1…8, that a block's main directory tells; 1 when it tells none.
int orientation(ByteView block);

/// A block that tells nothing but the orientation.
Bytes blockWithOrientation(int orientation);

}  // namespace tamble::tiff
