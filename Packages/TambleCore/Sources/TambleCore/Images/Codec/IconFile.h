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

/// The largest picture of a Windows icon file or an Apple icon file. Throws ConversionError::unreadable when
/// the set is damaged, cannotDecode when it holds none that can be read (Apple's run-length coded sizes up to
/// 128 pixels).
IconPicture largestPicture(ByteView file, Container container);

}  // namespace tamble
