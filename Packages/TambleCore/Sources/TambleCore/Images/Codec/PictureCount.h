#pragma once

#include <TambleCore/Images/Codec/Container.h>

namespace tamble {

// Files that hold several pictures are refused before anything is decoded: animations (animatedNotSupported)
// and pages (multiPageNotSupported). Sets of icon sizes are one picture.

/// By what the file's own structure says.
void refuseSeveralPictures(ByteView file, Container container);

/// By how many pictures its loader counts.
void refuseSeveralPictures(Container container, int count);

}  // namespace tamble
