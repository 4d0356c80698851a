#pragma once

#include <TambleCore/Images/Metadata/Containers/ByteAccess.h>

namespace tamble::gif {

enum class BlockKind { image, graphicControl, comment, plainText, application, unknown };

struct Block {
    BlockKind kind;
    /// Identifier and code of an application extension, 11 characters.
    std::string_view application;
    /// The data sub-blocks as they lie in the file, with their length bytes, without the closing zero.
    ByteView data;
};

struct Layout {
    std::vector<Block> blocks;
    /// Where the picture ends.
    std::size_t end = 0;
};

/// The blocks between screen descriptor and trailer; empty when the structure is broken or cut off.
std::optional<Layout> layout(ByteView file);

/// The content of data sub-blocks without their length bytes.
Bytes content(ByteView subBlocks);

/// The XMP packet that an application extension holds: stored bare, length bytes and all, with a closing
/// trick of 256 bytes (XMP specification, part 3).
std::optional<ByteView> xmp(const Block& block);

}  // namespace tamble::gif
