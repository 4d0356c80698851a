#pragma once

#include <cstdint>
#include <functional>

#include <vips/vips8>

namespace tamble {

/// Takes full-width rows: the first one's number, how many, their bytes and the bytes from one to the next.
using RowTaker = std::function<void(int top, int height, const std::uint8_t* pixels, std::size_t stride)>;

/// Computes an 8-bit picture from top to bottom, handing each piece over as soon as it is there. What the
/// taker throws ends the work and comes out. Throws vips::VError.
void forEachRow(const vips::VImage& image, const RowTaker& take);

}  // namespace tamble
