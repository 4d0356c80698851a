#pragma once

#include <TambleCore/Support/WorkContext.h>

#include <vips/vips8>

namespace tamble {

/// The upright picture with everything outside its main subject see-through. Throws
/// ConversionError::noSubjectFound, backgroundRemovalFailed; Cancelled.
vips::VImage cutOut(const vips::VImage& picture, const WorkContext& context);

}  // namespace tamble
