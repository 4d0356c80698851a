#pragma once

#include <cstdint>

namespace tamble {

/// The most pixels a picture may have, read from its header before anything is decoded: twice the largest
/// panoramas that phones and stitching programs make. A file of a few hundred kilobytes can claim thousands
/// of millions.
#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
// A fuzzer learns nothing from waiting for an empty picture.
inline constexpr std::int64_t mostPixels = 1'000'000;
#else
inline constexpr std::int64_t mostPixels = 400'000'000;
#endif

/// Throws ConversionError::cannotDecode for a picture of more pixels than that, or of none.
void refuseOversized(std::int64_t width, std::int64_t height);

}  // namespace tamble
