#pragma once

#include <TambleCore/Previews/PreviewPicture.h>

#include <optional>

namespace tamble {

/// The writing of a photographed or scanned signature without its paper, cut to what is written: four
/// channels, the paper see-through, however unevenly it is lit. A picture that is see-through already is only
/// cut. Nothing when there is no writing on it.
std::optional<PreviewPicture> inkFromPhoto(const PreviewPicture& photo);

}  // namespace tamble
