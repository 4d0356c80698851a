#pragma once

#include <TambleCore/PDF/Pictures/DrawnPictures.h>
#include <TambleCore/PDF/Pictures/Picture.h>

namespace tamble::pdf {

/// The pixels of a picture; empty when it says none, or nonsense.
std::optional<PictureShape> shapeOf(QPDFObjectHandle picture);

/// What is needed to code a picture anew. `drawn` is empty when its size on the pages is unknown, so that it
/// must stay as it is. Empty for pictures that are not understood. Throws Cancelled.
std::optional<Picture> readPicture(QPDFObjectHandle picture, std::optional<DrawnSize> drawn, bool isMask,
                                   const WorkContext& context);

/// The colour space of the colours that a picture's indices stand for.
QPDFObjectHandle paletteSpace(QPDFObjectHandle picture);

}  // namespace tamble::pdf
