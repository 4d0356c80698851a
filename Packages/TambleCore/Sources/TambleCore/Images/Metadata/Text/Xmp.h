#pragma once

#include <TambleCore/Images/Metadata/Containers/ByteAccess.h>

namespace tamble::xmp {

struct PixelSize {
    int width = 0;
    int height = 0;
};

struct Edit {
    /// Where the picture was taken, in any of the vocabularies that say so.
    bool withoutLocation = false;
    /// What speaks of data outside the packet that goes: files behind the picture's end (a gain map, the
    /// video of a motion photo).
    bool withoutAttachments = false;
    /// The reference to a packet that holds what did not fit in.
    bool withoutExtension = false;
    /// The picture is upright and has this size now; embedded thumbnails, which show the old one, go.
    std::optional<PixelSize> upright = {};
};

/// The packet with the edit done: the same bytes when nothing in it is concerned; empty when it cannot be
/// understood.
std::optional<Bytes> edited(ByteView packet, const Edit& edit);

/// One packet with the properties of both and without reference to an extension; empty when one of them
/// cannot be understood.
std::optional<Bytes> joined(ByteView packet, ByteView extension);

/// The packet without its largest properties, so that it has at most `limit` bytes; empty when it cannot be
/// understood.
std::optional<Bytes> shortened(ByteView packet, std::size_t limit);

/// The parts of an extended packet, as JPEG splits it: each begins with 32 letters that name the packet, its
/// full length and the part's offset, big-endian. Empty when a part is missing.
std::optional<Bytes> assembledExtension(const std::vector<ByteView>& parts, std::string_view digest);
inline constexpr std::size_t digestSize = 32;
inline constexpr std::size_t extensionHeaderSize = digestSize + 8;

/// The name of the extension that the packet refers to; empty when it refers to none.
std::string extensionDigest(ByteView packet);

/// The last component of a property's name, in lower case, says where a picture was taken.
bool isLocationName(std::string_view name);

}  // namespace tamble::xmp
