#pragma once

#include <TambleCore/Images/Raster.h>
#include <TambleCore/PDF/Pages/PageGeometry.h>
#include <TambleCore/Platform/ChildProgram.h>

namespace tamble::pdf {

/// The next picture in a child's output, a binary portable pixmap (PPM) of 8 bits a sample; empty at the end.
/// Throws ChildFailed for anything else, and for sides that differ from those expected by more than rounding;
/// what ChildProgram::read does.
std::optional<Raster> nextPixMap(ChildProgram& child, PagePixels expected);

}  // namespace tamble::pdf
