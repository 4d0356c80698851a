#pragma once

#include <TambleCore/Images/Metadata/Exif/TiffStructure.h>

#include <functional>

namespace tamble::tiff {

/// A directory and all below it, free of offsets, to be put together anew.
struct Tree {
    struct Value {
        std::uint16_t tag = 0;
        std::uint16_t type = 0;
        std::uint32_t count = 0;
        Bytes bytes;
        /// The directories that the value points to; `bytes` is empty then.
        std::vector<Tree> children;
    };

    std::vector<Value> values;

    bool has(std::uint16_t tag) const;
    /// Puts a value in, or in place of the one with its tag.
    void set(Value value);
};

using KeepsTag = std::function<bool(DirectoryKind kind, std::uint16_t tag)>;

/// The main directory and those below it as far as `keeps` says, numbers in the given byte order. Unreadable
/// values are missing.
Tree treeOf(const Structure& structure, ByteOrder order, const KeepsTag& keeps);

/// The tree's bytes to be put at an even `offset` of a file, main directory first, with no directory after
/// it.
Bytes serialized(const Tree& tree, ByteOrder order, std::size_t offset);

/// A whole block: header and tree.
Bytes block(const Tree& tree, ByteOrder order);

/// Whether a main directory's tag describes the photograph rather than how its pixels are stored.
bool describesPhotograph(std::uint16_t tag);

}  // namespace tamble::tiff
