#pragma once

#include <cstdint>
#include <cstdlib>

namespace tamble::pdf {

/// Of the neighbours to the left, above, and above to the left: the one closest to their plane (PNG
/// specification, 9.4).
inline std::uint8_t paeth(int left, int above, int corner) {
    const int plane = left + above - corner;
    const int toLeft = std::abs(plane - left);
    const int toAbove = std::abs(plane - above);
    const int toCorner = std::abs(plane - corner);
    if (toLeft <= toAbove && toLeft <= toCorner) return static_cast<std::uint8_t>(left);
    return static_cast<std::uint8_t>(toAbove <= toCorner ? above : corner);
}

}  // namespace tamble::pdf
