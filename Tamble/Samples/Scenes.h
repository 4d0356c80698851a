#pragma once

#include "Painting.h"

namespace tamble::samples {

/// A sunset over the sea; landscape format.
Colour sunset(const Place& place);
/// Ridges of hills fading into the haze.
Colour hills(const Place& place);
/// Layers of waves, as if cut from paper.
Colour waves(const Place& place);
/// A moonlit night over a forest.
Colour night(const Place& place);
/// Dunes in the late afternoon; portrait format.
Colour dunes(const Place& place);
/// A hot-air balloon on a transparent ground.
Colour balloon(const Place& place);

}  // namespace tamble::samples
