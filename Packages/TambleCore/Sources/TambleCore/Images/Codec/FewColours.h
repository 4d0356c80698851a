#pragma once

#include <vips/vips8>

namespace tamble {

/// Whether an 8-bit picture (of up to four channels) has at most 256 colours, as drawings and logos do and
/// photographs do not. The picture must be in memory; a photograph is told after its first rows.
bool hasFewColours(const vips::VImage& image);

}  // namespace tamble
