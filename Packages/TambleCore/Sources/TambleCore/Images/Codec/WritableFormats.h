#pragma once

#include <TambleCore/Images/ImageFormat.h>

namespace tamble {

/// Whether pictures can be saved in the format on this machine; HEIC and AVIF need a codec that may be
/// missing.
bool canBeWritten(ImageFormat format);

bool libraryWritesWebP();

}  // namespace tamble
