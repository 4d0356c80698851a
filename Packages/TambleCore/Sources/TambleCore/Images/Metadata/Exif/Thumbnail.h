#pragma once

#include <TambleCore/Images/Metadata/Metadata.h>

namespace tamble {

/// Whether an embedded thumbnail in JPEG form holds more than its picture, or is none that can be understood.
bool carriesMetadata(ByteView thumbnail);

}  // namespace tamble
