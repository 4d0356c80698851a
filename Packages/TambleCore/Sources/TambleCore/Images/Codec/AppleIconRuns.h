#pragma once

#include <TambleCore/Images/Metadata/Metadata.h>

#include <vips/vips8>

namespace tamble {

/// The largest run-length coded picture of an Apple icon file, as icons of up to 128 pixels were stored
/// before they were PNG files: RGB or RGBA. Throws ConversionError::cannotDecode when there is none or it is
/// cut off.
vips::VImage runLengthCodedIcon(ByteView file);

}  // namespace tamble
