#pragma once

#include <TambleCore/Images/Metadata/Containers/ByteAccess.h>

namespace tamble::webp {

struct Chunk {
    /// Four letters, as "VP8 ".
    std::string_view type;
    ByteView data;
};

struct Layout {
    std::vector<Chunk> chunks;
    /// Where the picture ends.
    std::size_t end = 0;
};

/// The chunks of a RIFF file of form WEBP; empty when the structure is broken or cut off.
std::optional<Layout> layout(ByteView file);

/// The bits of the first byte of a VP8X chunk that speak of metadata (WebP container specification).
inline constexpr std::byte xmpFlag{0x04};
inline constexpr std::byte exifFlag{0x08};
inline constexpr std::byte animationFlag{0x02};

/// Begins a file; `finish` puts in its length.
void appendStart(Bytes& file);
void appendChunk(Bytes& file, std::string_view type, ByteView data);
void finish(Bytes& file);

/// The file with the blocks beside its picture, made by the format's own library; empty when it refuses.
std::optional<Bytes> withBlocks(ByteView file, const MetadataBlocks& blocks);

}  // namespace tamble::webp
