#pragma once

#include <TambleCore/Images/Metadata/Containers/ByteAccess.h>

namespace tamble::iso {

/// A box of the ISO base media file format (ISO/IEC 14496-12), as HEIC and AVIF are made of.
struct Box {
    /// Four letters.
    std::string_view type;
    /// Without length and type.
    ByteView payload;
};

/// The boxes that follow one another in `bytes`; those before the first broken one.
std::vector<Box> boxes(ByteView bytes);

/// An item of a picture file: a coded picture, EXIF, XMP and so on.
struct Item {
    std::uint32_t id = 0;
    /// Four letters, as "hvc1", "Exif" or "mime".
    std::string type;
    std::string contentType;
    /// Put together from its extents; empty when unreadable. Only filled for items of metadata.
    Bytes data;
};

struct Items {
    std::vector<Item> items;
    /// The first embedded ICC profile among the items' properties.
    std::optional<Bytes> profile;
};

/// The items that the file's top-level meta box lists; empty when there is none.
std::optional<Items> items(ByteView file);

/// The TIFF structure in the data of an item of type "Exif".
std::optional<Bytes> exifStructure(ByteView itemData);

bool isXmp(const Item& item);

}  // namespace tamble::iso
