#pragma once

#include <TambleCore/Images/Codec/Container.h>

namespace tamble {

/// Where in a set of icon sizes its largest picture stands: a file of its own within the set, or a page of
/// it.
struct IconPicture {
    ByteView file;
    Container container;
    int page = 0;
};

/// The largest picture of a Windows icon file or an Apple icon file; its `file` is empty when an Apple icon
/// holds none but run-length coded ones. Throws ConversionError::unreadable when the set is damaged.
IconPicture largestPicture(ByteView file, Container container);

/// A part of an Apple icon file.
struct IconBlock {
    /// Four letters.
    std::string_view type;
    ByteView data;
};

/// Throws ConversionError::unreadable when a length is wrong.
std::vector<IconBlock> appleIconBlocks(ByteView file);

}  // namespace tamble
