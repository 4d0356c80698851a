#pragma once

#include <TambleCore/Images/Metadata/Containers/ByteAccess.h>

/// The image resource blocks in which JPEG (APP13), TIFF (tag 34377) and PNG (a raw profile) carry IPTC.
namespace tamble::photoshop {

struct Resource {
    std::uint16_t id = 0;
    ByteView data;
    /// With signature, number, name, length and padding.
    ByteView whole;
};

inline constexpr std::uint16_t iptcId = 0x0404;

/// Empty when the blocks are damaged.
std::optional<std::vector<Resource>> resources(ByteView blocks);

void appendResource(Bytes& blocks, std::uint16_t id, ByteView data);

/// The IPTC records among the blocks.
std::optional<Bytes> iptcRecords(ByteView blocks);

/// The blocks without location in the IPTC records and without copies of EXIF and XMP, which nobody keeps in
/// step; a thumbnail that carries metadata of its own goes too. Empty when the blocks are damaged.
std::optional<Bytes> withoutLocation(ByteView blocks);

/// The blocks without the thumbnail. Empty when they are damaged.
std::optional<Bytes> withoutThumbnail(ByteView blocks);

}  // namespace tamble::photoshop
