#pragma once

#include <TambleCore/Images/Codec/Container.h>
#include <TambleCore/Images/Raster.h>
#include <TambleCore/Support/WorkContext.h>

namespace tamble {

/// The picture in the file for a screen; see ImageConverter::picture. Throws ConversionError; Cancelled.
Raster shownPicture(ByteView file, Container container, int maxPixelSize, const WorkContext& context);

}  // namespace tamble
