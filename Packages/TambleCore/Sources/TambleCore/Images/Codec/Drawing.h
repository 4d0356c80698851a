#pragma once

#include <TambleCore/Images/Codec/Encoders.h>
#include <TambleCore/Images/ImageConverter.h>

namespace tamble {

/// The file of a picture that was drawn, with its resolution in it. Throws ConversionError; Cancelled.
Bytes encodedDrawing(const Raster& picture, const ImageConverter::Drawn& how, const WorkContext& context);

}  // namespace tamble
