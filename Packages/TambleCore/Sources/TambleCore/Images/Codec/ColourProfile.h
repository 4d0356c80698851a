#pragma once

#include <TambleCore/Images/Metadata/Metadata.h>

namespace tamble {

/// Whether an ICC profile describes RGB colours that differ from sRGB by no more than rounding, so that
/// converting to sRGB would change nothing.
bool isSRGB(ByteView profile);

/// How many channels the profile's pixels have (1 grey, 3 RGB, 4 CMYK); 0 for a profile that cannot be read.
int channels(ByteView profile);

}  // namespace tamble
