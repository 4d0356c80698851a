#pragma once

#include <TambleCore/Images/Metadata/Containers/ByteAccess.h>

namespace tamble::png {

struct Chunk {
    /// Four letters.
    std::string_view type;
    ByteView data;
    /// With length, type and checksum.
    ByteView whole;
};

struct Layout {
    std::vector<Chunk> chunks;
    /// Where the picture ends.
    std::size_t end = 0;
};

inline constexpr std::string_view signature = "\x89PNG\r\n\x1A\n";

/// The chunks up to IEND; empty when the structure is broken or cut off. Checksums are not looked at.
std::optional<Layout> layout(ByteView file);

void appendChunk(Bytes& file, std::string_view type, ByteView data);

/// What a tEXt, zTXt or iTXt chunk says; empty for other chunks and damaged ones.
struct Text {
    std::string keyword;
    Bytes value;
};
std::optional<Text> text(const Chunk& chunk);

/// The keyword under which XMP is stored.
inline constexpr std::string_view xmpKeyword = "XML:com.adobe.xmp";
void appendXmp(Bytes& file, ByteView packet);

/// A block of metadata in a text chunk, as written by programs older than the eXIf chunk: keyword "Raw
/// profile type " and a name ("exif", "iptc", "xmp", "icc", "APP1"), the text a name, a length and
/// hexadecimal digits.
inline constexpr std::string_view rawProfileKeyword = "Raw profile type ";
std::optional<Bytes> rawProfile(const Text& text);
void appendRawProfile(Bytes& file, std::string_view name, ByteView block);

/// An iCCP chunk's profile and name.
struct Profile {
    std::string name;
    /// Still compressed.
    ByteView stream;
};
std::optional<Profile> profile(const Chunk& chunk);

}  // namespace tamble::png
