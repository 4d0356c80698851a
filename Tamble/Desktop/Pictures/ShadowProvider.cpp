#include <Tamble/Desktop/Pictures/DrawnProviders.h>

#include <QColor>
#include <cmath>

namespace tamble {
namespace {

/// How far a point is outside a rounded square that stands `inset` pixels inside a picture with that side;
/// negative inside.
double distance(double x, double y, double side, double inset, double radius) {
    const double half = side / 2 - inset - radius;
    const double dx = std::max(std::abs(x - side / 2) - half, 0.0);
    const double dy = std::max(std::abs(y - side / 2) - half, 0.0);
    return std::hypot(dx, dy) - radius;
}

}  // namespace

QImage ShadowProvider::requestImage(const QString& id, QSize* size, const QSize&) {
    const double scale = std::max(1.0, id.section(QLatin1Char('/'), 3, 3).toDouble());
    const double radius = scale * id.section(QLatin1Char('/'), 0, 0).toDouble();
    const double blur = scale * id.section(QLatin1Char('/'), 1, 1).toDouble();
    const QString code = id.section(QLatin1Char('/'), 2, 2);
    QColor color(QLatin1Char('#') + code.left(6));
    const int strongest = code.mid(6, 2).toInt(nullptr, 16);
    const int side = static_cast<int>(std::ceil(2 * (radius + 2 * blur))) + 2;
    QImage image(side, side, QImage::Format_ARGB32);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double away = distance(x + 0.5, y + 0.5, side, blur, radius);
            // A smooth step from full inside to nothing at the blur's end looks like a Gaussian and ends.
            const double t = std::clamp((blur - away) / (2 * blur), 0.0, 1.0);
            color.setAlpha(static_cast<int>(std::lround(strongest * t * t * (3 - 2 * t))));
            image.setPixelColor(x, y, color);
        }
    }
    *size = image.size();
    return image;
}

}  // namespace tamble
