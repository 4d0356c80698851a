#include <Tamble/Model/SignaturePlace.h>

#include <algorithm>
#include <cmath>

namespace tamble::SignaturePlace {
namespace {

constexpr double usualWidth = 0.3;
constexpr double usualHeight = 0.2;
/// Of the longer side.
constexpr double smallest = 0.02;
constexpr double margin = 0.08;

/// The width in reach of the one that is wanted, with room for at most `roomX` by `roomY`.
double allowed(const NormalizedRect& rect, double width, double roomX, double roomY) {
    const double shape = rect.height / rect.width;
    const double most = std::min(roomX, roomY / shape);
    return std::clamp(width, std::min(most, smallest / std::max(1.0, shape)), most);
}

}  // namespace

NormalizedRect first(double pictureRatio, double pageRatio) {
    const double shape = pageRatio / pictureRatio;
    const double width = std::min(usualWidth, usualHeight / shape);
    return movedTo({0, 0, width, width * shape}, 1 - margin - width, 1 - margin - width * shape);
}

NormalizedRect movedTo(const NormalizedRect& rect, double x, double y) {
    return {std::clamp(x, 0.0, std::max(0.0, 1 - rect.width)),
            std::clamp(y, 0.0, std::max(0.0, 1 - rect.height)), rect.width, rect.height};
}

NormalizedRect widened(const NormalizedRect& rect, double width) {
    const double shape = rect.height / rect.width;
    const double now = allowed(rect, width, 1 - rect.x, 1 - rect.y);
    return {rect.x, rect.y, now, now * shape};
}

NormalizedRect scaled(const NormalizedRect& rect, double factor) {
    const double shape = rect.height / rect.width;
    const double width = allowed(rect, rect.width * factor, 1, 1);
    const NormalizedRect around{0, 0, width, width * shape};
    return movedTo(around, rect.x + (rect.width - around.width) / 2,
                   rect.y + (rect.height - around.height) / 2);
}

}  // namespace tamble::SignaturePlace
